#include "app/app_services.h"
#include "platform/recorded/recorded_machine.h"
#include "views/dashboard_view.h"
#include "views/main_window_view.h"
#include "views/power_history_chart.h"
#include "views/power_flow_view.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cmath>

#include <benchmark/benchmark.h>

using namespace ferrow;

namespace {

PowerSnapshot recorded(const char *folder)
{
    return readRecordedSnapshot(QStringLiteral(FERROW_SOURCE_DIR "/tests/fixtures/") + QLatin1String(folder), nullptr).value_or(PowerSnapshot());
}

// The connector's glowing routes at 2x: drawn once per reading into the cached layer.
void BM_FlowConnectorRoutes(benchmark::State &state)
{
    const PowerSnapshot snapshot = recorded(state.range(0) ? "notebook-battery-27" : "notebook-charging-26");
    QImage image(QSize(98, 76) * 2, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        PowerFlowView::paintConnectorRoutes(painter, QRectF(0, 0, 98, 76), snapshot);
    }
}
BENCHMARK(BM_FlowConnectorRoutes)->Arg(0)->Arg(1)->ArgName("discharging");

// One animation frame of the flow view at 2x: the cached layer and three dots, as the timer
// repaints it 30 times a second. The snapshot stays the same, as it does between readings.
void BM_FlowViewFrame(benchmark::State &state)
{
    PowerFlowView view;
    view.resize(430, 116);
    view.setSnapshot(recorded("notebook-charging-26"));
    const qreal scale = view.devicePixelRatioF();
    QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    const QRegion connectorArea(QRect(158, 26, 114 + 16, 76 + 16)); // what the animation timer invalidates
    {
        QPainter warm(&image);
        view.render(&warm); // builds the cached layer, as the first paint after a reading does
    }
    for (auto _ : state) {
        QPainter painter(&image);
        view.render(&painter, QPoint(), connectorArea, QWidget::RenderFlags());
    }
}
BENCHMARK(BM_FlowViewFrame);

// The whole popover painted into an image, as when it opens.
void BM_PopoverPaint(benchmark::State &state)
{
    DashboardView dashboard;
    dashboard.setSnapshot(recorded("notebook-charging-26"));
    dashboard.setFerrowPalette(FerrowPalette{ColorScheme::dark});
    QImage image(DashboardView::kSize * 2, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    for (auto _ : state) {
        QPainter painter(&image);
        dashboard.render(&painter);
    }
}
BENCHMARK(BM_PopoverPaint);

// A full hour of readings a second apart, in runs of ten minutes.
PowerHistory fullHour(WallTime end)
{
    PowerHistory history;
    for (int second = 3600; second >= 1; --second) {
        PowerSnapshot s;
        s.isExternalConnected = true;
        s.isDataAvailable = second % 600 != 0;
        s.dcPowerW = 20 + 10 * std::sin(second / 30.0);
        s.updatedAt = end - std::chrono::seconds(second);
        history.append(s);
    }
    return history;
}

// The chart's once-a-second update with an hour of history in the 60-minute window: series
// refilled in place, axes and statistics recomputed.
void BM_ChartUpdateFullHour(benchmark::State &state)
{
    PowerHistoryChart chart;
    chart.resize(800, 280);
    chart.setMinutes(60);
    WallTime end = std::chrono::system_clock::now();
    PowerHistory history = fullHour(end);
    for (auto _ : state) {
        end += std::chrono::seconds(1);
        PowerSnapshot next;
        next.isExternalConnected = true;
        next.isDataAvailable = true;
        next.dcPowerW = 25;
        next.updatedAt = end;
        history.append(next);
        chart.setHistory(history);
    }
}
BENCHMARK(BM_ChartUpdateFullHour);

// One repaint of the details window at its default size, chart with an hour of history included.
void BM_MainWindowPaint(benchmark::State &state)
{
    MainWindowView window;
    window.setSnapshot(recorded("notebook-charging-26"));
    window.setHistory(fullHour(std::chrono::system_clock::now()));
    window.resize(1040, 720);
    const qreal scale = window.devicePixelRatioF();
    QImage image(window.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    for (auto _ : state) {
        QPainter painter(&image);
        window.render(&painter);
    }
}
BENCHMARK(BM_MainWindowPaint)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2"); // a Retina-class display
    QApplication application(argc, argv);
    registerBrandFonts();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
