#include "views/popover/apps_card.h"

#include "model/localized_text.h"
#include "views/ferrow_button.h"
#include "views/glyphs.h"
#include "views/view_painting.h"

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace ferrow {
namespace {

constexpr int kPadding = 8;
constexpr int kTitleHeight = 14;
constexpr int kLinesTop = 26;
constexpr int kLineHeight = 17;
constexpr int kLines = 3;
constexpr int kLineInset = 4; // each line's focus ring sits this far inside the card, its content as far again
constexpr double kShareWidth = 40;
constexpr double kAmountWidth = 62;

} // namespace

// One application, or the note that there is none yet.
class AppsCard::Line : public FerrowButton, public AccessibleContent {
public:
    explicit Line(AppsCard *card)
        : m_card(card)
    {
        setFixedHeight(kLineHeight * kLines); // the note, until a row comes
    }

    void setRow(std::optional<AppRow> row, bool energy)
    {
        if (row == m_row && energy == m_energy)
            return; // a new sample every second that changes no figure paints nothing
        m_row = std::move(row);
        m_energy = energy;
        // The note alone takes the room of all the lines, in the middle of it.
        setFixedHeight(m_row ? kLineHeight : kLineHeight * kLines);
        update();
    }

    AccessibleItem accessibleSelf() const override
    {
        return {QAccessible::Button, m_row ? spokenAppRow(*m_row, false, m_energy) : localizedText(m_card->noneKey()), {}};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = m_card->m_palette;
        painter.setOpacity(isDown() ? 0.75 : 1.0);
        const QRectF inner = QRectF(rect()).adjusted(kLineInset, 0, -kLineInset, 0);
        if (!m_row) {
            painter.setPen(palette.secondaryText());
            drawFittedText(painter, inner, localizedText(m_card->noneKey()), uiFont(9), 0.85, Qt::AlignHCenter);
        } else {
            paintAppIcon(painter, QRectF(inner.left(), inner.center().y() - 6.5, 13, 13), *m_row, m_card->m_icons, palette);
            const double amountLeft = inner.right() - kAmountWidth;
            const double shareLeft = amountLeft - kShareWidth;
            painter.setPen(palette.primaryText());
            drawFittedText(painter, QRectF(inner.left() + 19, 0, shareLeft - inner.left() - 23, height()), m_row->name, uiFont(10), 0.85,
                           Qt::AlignLeft);
            painter.setPen(palette.secondaryText());
            drawFittedText(painter, QRectF(shareLeft, 0, kShareWidth, height()), m_row->share, monospacedFont(9), 0.8, Qt::AlignRight);
            paintAppAmount(painter, QRectF(amountLeft, 0, kAmountWidth, height()), *m_row, monospacedFont(10, QFont::Bold), palette);
        }
        painter.setOpacity(1.0);
        paintFocusRing(painter, QRectF(rect()), 5, palette, palette.cardGround());
    }

private:
    AppsCard *m_card;
    std::optional<AppRow> m_row;
    bool m_energy = true;
};

AppsCard::AppsCard(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(kHeight);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kPadding - kLineInset, kLinesTop, kPadding - kLineInset, 0);
    column->setSpacing(0);
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        m_lines[i] = new Line(this);
        m_lines[i]->setObjectName(QStringLiteral("appLine%1").arg(i));
        connect(m_lines[i], &QAbstractButton::clicked, this, &AppsCard::applicationsRequested);
        column->addWidget(m_lines[i]);
    }
    column->addStretch();
    setSession(AppEnergyList{});
}

void AppsCard::setSession(const AppEnergyList &session)
{
    const std::vector<AppRow> rows = topAppRows(session, m_lines.size());
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        // Without an application the first line says so; the others go.
        m_lines[i]->setVisible(i < std::max<std::size_t>(rows.size(), 1));
        m_lines[i]->setRow(i < rows.size() ? std::optional(rows[i]) : std::nullopt, listsEnergy(session));
    }
}

void AppsCard::setHasSessions(bool hasSessions)
{
    if (hasSessions == m_hasSessions)
        return;
    m_hasSessions = hasSessions;
    m_titleKey = hasSessions ? "apps.popover_title" : "apps.popover_title_since_start";
    update();
    for (Line *line : m_lines)
        line->update();
}

void AppsCard::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
    for (Line *line : m_lines)
        line->update();
}

std::vector<AccessibleItem> AppsCard::accessibleParts() const
{
    return {{QAccessible::Heading, localizedText(m_titleKey), QRect(kPadding, kPadding, width() - 2 * kPadding, kTitleHeight)}};
}

void AppsCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF card = QRectF(rect());
    paintCardSurface(painter, card, 9, m_palette);
    const QRectF title(kPadding, kPadding, card.width() - 2 * kPadding, kTitleHeight);
    paintGlyph(painter, Glyph::apps, QRectF(title.left() + 1, title.top() + 2, 10, 10), m_palette.secondaryText());
    painter.setPen(m_palette.secondaryText());
    drawFittedText(painter, title.adjusted(18, 0, -14, 0), localizedText(m_titleKey), uiFont(9), 0.9, Qt::AlignLeft);
    paintGlyph(painter, Glyph::chevronRight, QRectF(title.right() - 8, title.top() + 3, 8, 8), m_palette.secondaryText());
}

} // namespace ferrow
