#include "views/report/distribution_panel.h"

#include "views/accessibility_model.h"
#include "views/main_window_model.h"
#include "views/value_rows_view.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

// The rule under the figures, then how they relate and how often they are read.
class DistributionPanel::Caption : public QWidget, public AccessibleContent {
public:
    Caption() { setFixedHeight(30); }

    std::vector<AccessibleItem> accessibleParts() const override
    {
        return {{QAccessible::StaticText, m_text, {}}, {QAccessible::StaticText, spokenValue(kSampleRate), {}}};
    }

    void setText(const QString &text)
    {
        m_text = text;
        update();
    }
    void setFerrowPalette(const FerrowPalette &palette)
    {
        m_palette = palette;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.translate(contentsRect().topLeft());
        const double width = contentsRect().width();
        painter.setPen(QPen(m_palette.separator(), 1));
        painter.drawLine(QPointF(0, 5.5), QPointF(width, 5.5));
        painter.setPen(m_palette.secondaryText());
        painter.setFont(uiFont(11));
        const QRectF line(0, 10, width, 20);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_text);
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, kSampleRate);
    }

private:
    inline static const QString kSampleRate = QStringLiteral("1 Hz");
    QString m_text;
    FerrowPalette m_palette;
};

DistributionPanel::DistributionPanel(QWidget *parent)
    : ReportPanel("power.distribution", Glyph::nodes, std::nullopt, parent)
    , m_rows(new ValueRowsView(ValueRowsView::Size::regular))
    , m_caption(new Caption)
{
    addContent(m_rows);
    addContent(m_caption);
}

void DistributionPanel::setSnapshot(const PowerSnapshot &snapshot)
{
    m_rows->setRows(distributionRows(snapshot));
    m_caption->setText(distributionCaption(snapshot));
}

void DistributionPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_rows->setFerrowPalette(palette);
    // The battery's green or pink is this panel's own choice, so it has to read on a light panel too.
    m_rows->setLegibleOn(palette.reportPanelBackground());
    m_caption->setFerrowPalette(palette);
}

} // namespace ferrow
