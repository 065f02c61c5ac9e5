#include "views/report/sessions_panel.h"

#include "model/localized_text.h"
#include "views/accessibility_model.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

// Two lines a session: what and when on the leading side, the figures trailing, ruled apart.
class SessionsPanel::Rows : public QWidget, public AccessibleContent {
public:
    static constexpr int kRowHeight = 44;

    Rows() { setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); }

    // A session as one sentence, in the order it is shown.
    std::vector<AccessibleItem> accessibleParts() const override
    {
        std::vector<AccessibleItem> parts;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const SessionRowText &row = m_rows[i];
            QString sentence = row.title;
            for (const QString &figure : {row.when, row.percent, row.energy, row.power})
                sentence = spokenReading(sentence, figure);
            parts.push_back({QAccessible::StaticText, sentence, QRect(0, kRowHeight * static_cast<int>(i), width(), kRowHeight)});
        }
        return parts;
    }

    void setRows(std::vector<SessionRowText> rows, std::vector<bool> onBattery)
    {
        m_rows = std::move(rows);
        m_onBattery = std::move(onBattery);
        setFixedHeight(kRowHeight * static_cast<int>(m_rows.size()));
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
        const double leading = width * 0.5;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const SessionRowText &row = m_rows[i];
            const double top = static_cast<double>(i) * kRowHeight + 4;
            const QColor tint = m_onBattery[i] ? FixedColor::meterCurrent : FixedColor::meterInput;
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(tint);
            painter.drawEllipse(QRectF(0, top + 5, 8, 8));
            painter.setPen(m_palette.primaryText());
            drawFittedText(painter, QRectF(14, top, leading - 14, 18), row.title, uiFont(12, QFont::DemiBold), 0.85, Qt::AlignLeft);
            painter.setPen(m_palette.secondaryText());
            drawFittedText(painter, QRectF(14, top + 18, leading - 14, 16), row.when, uiFont(11), 0.85, Qt::AlignLeft);
            painter.setPen(m_palette.primaryText());
            drawFittedText(painter, QRectF(leading, top, width - leading, 18), row.percent + QStringLiteral("   ") + row.energy,
                           monospacedFont(12), 0.8, Qt::AlignRight);
            painter.setPen(m_palette.secondaryText());
            drawFittedText(painter, QRectF(leading, top + 18, width - leading, 16), row.power, uiFont(11), 0.85, Qt::AlignRight);
            if (i + 1 < m_rows.size())
                paintBottomSeparator(painter, QRectF(0, top - 4, width, kRowHeight), m_palette);
        }
    }

private:
    std::vector<SessionRowText> m_rows;
    std::vector<bool> m_onBattery;
    FerrowPalette m_palette;
};

SessionsPanel::SessionsPanel(QWidget *parent)
    : ReportPanel("energy_history.sessions", Glyph::listRectangle, std::nullopt, parent)
    , m_rows(new Rows)
    , m_none(new PanelText(uiFont(12), ColorRole::secondaryText, 0, 20, 24))
{
    m_none->setText(localizedText("energy_history.no_sessions"));
    addContent(m_rows);
    addContent(m_none);
}

void SessionsPanel::setSessions(const std::vector<SessionRecord> &sessions)
{
    std::vector<SessionRowText> rows;
    std::vector<bool> onBattery;
    const QLocale locale;
    for (const SessionRecord &session : sessions) {
        rows.push_back(sessionRowText(session, locale));
        onBattery.push_back(!session.externalPower);
    }
    m_none->setVisible(rows.empty());
    m_rows->setVisible(!rows.empty());
    m_rows->setRows(std::move(rows), std::move(onBattery));
}

void SessionsPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_rows->setFerrowPalette(palette);
    m_none->setFerrowPalette(palette);
}

} // namespace ferrow
