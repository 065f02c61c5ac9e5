#include "views/report/report_sidebar.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/accessible_content.h"
#include "views/brand_links.h"
#include "views/report/sidebar_row.h"
#include "views/view_painting.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace ferrow {
ReportSidebar::ReportSidebar(QWidget *parent)
    : QWidget(parent)
    , m_logo(new FerrowLogoLink(34, 8))
    , m_status(fontLabel(uiFont(11)))
    , m_alertLine(fontLabel(uiFont(11, QFont::DemiBold)))
    , m_updatedAt(fontLabel(uiFont(10)))
{
    setObjectName(QStringLiteral("sidebar"));
    setMinimumWidth(184);
    setMaximumWidth(244);
    setAutoFillBackground(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(8, 10, 8, 10);
    column->setSpacing(2);

    auto *brand = new QHBoxLayout;
    brand->setContentsMargins(6, 0, 6, 8);
    brand->setSpacing(10);
    brand->addWidget(m_logo);
    auto *brandText = new QVBoxLayout;
    brandText->setSpacing(0);
    brandText->setAlignment(Qt::AlignVCenter);
    brandText->addWidget(fontLabel(uiFont(13, QFont::DemiBold), localizedText("FERROW")));
    m_status->setObjectName(QStringLiteral("sidebarStatus"));
    m_status->setWordWrap(true); // a narrow sidebar takes a longer status on two lines
    brandText->addWidget(m_status);
    m_alertLine->setObjectName(QStringLiteral("sidebarAlert"));
    m_alertLine->setWordWrap(true);
    m_alertLine->hide();
    brandText->addWidget(m_alertLine);
    brand->addLayout(brandText, 1);
    column->addLayout(brand);

    const auto addHeader = [&](const char *key) {
        QLabel *header = fontLabel(uiFont(11, QFont::DemiBold), localizedText(key));
        header->setContentsMargins(8, 10, 8, 4);
        markAsHeading(header);
        m_headers.push_back(header);
        column->addWidget(header);
    };
    addHeader("sidebar.monitor");
    for (const MainSection section : kMainSections) {
        if (section == MainSection::history)
            addHeader("sidebar.system");
        auto *row = new SidebarRow(section);
        row->setObjectName(QStringLiteral("sidebar.") + QLatin1String(sectionTitleKey(section)));
        connect(row, &QAbstractButton::clicked, this, [this, section] { emit sectionPicked(section); });
        m_rows[section] = row;
        column->addWidget(row);
    }
    column->addStretch();
    m_updatedAt->setObjectName(QStringLiteral("updatedAt"));
    m_updatedAt->setContentsMargins(8, 0, 8, 0);
    readWhenAsked(m_updatedAt);
    column->addWidget(m_updatedAt);
}

void ReportSidebar::setSnapshot(const PowerSnapshot &s)
{
    m_status->setText(s.statusText());
    const QTime time = QDateTime::fromMSecsSinceEpoch(std::chrono::duration_cast<std::chrono::milliseconds>(s.updatedAt.time_since_epoch()).count())
                           .time();
    m_updatedAt->setText(localizedFormatText("sidebar.updated_at", {timeOfDayText(time, QLocale())}));
}

void ReportSidebar::setFerrowPalette(const FerrowPalette &p)
{
    QPalette ground;
    ground.setColor(QPalette::Window, p.sidebarBackground());
    setPalette(ground);
    setTextColor(m_status, p.secondaryText());
    setTextColor(m_alertLine, readableOn(p.color(ColorRole::orange), p.sidebarBackground()));
    setTextColor(m_updatedAt, p.tertiaryText());
    // The headers' grey is ours to choose, so it is one that reads on the sidebar.
    for (QLabel *header : m_headers)
        setTextColor(header, readableOn(p.secondaryText(), p.sidebarBackground()));
    for (auto &[section, row] : m_rows)
        row->setFerrowPalette(p);
    m_logo->setFerrowPalette(p, p.sidebarBackground());
}

void ReportSidebar::setAlertLine(const QString &line)
{
    if (line == m_alertLine->text())
        return;
    m_alertLine->setText(line);
    m_alertLine->setVisible(!line.isEmpty());
}

void ReportSidebar::setSelection(MainSection section, bool animated)
{
    for (auto &[rowSection, row] : m_rows)
        row->setSelected(rowSection == section, animated);
}

void ReportSidebar::setReduceMotion(bool reduceMotion)
{
    m_logo->setReduceMotion(reduceMotion);
}

} // namespace ferrow
