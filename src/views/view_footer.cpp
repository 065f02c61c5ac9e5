#include "views/view_footer.h"

#include "views/brand_links.h"
#include "views/divider.h"
#include "views/view_painting.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ferrow {

ViewFooter::ViewFooter(Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_popover(kind == Kind::popover)
    , m_divider(new Divider)
    , m_website(new OfficialWebsiteLink(kind == Kind::popover ? Qt::AlignHCenter : Qt::AlignLeading))
    , m_note(new QPushButton)
    , m_line(new QHBoxLayout)
{
    m_divider->setObjectName(QStringLiteral("footerDivider"));
    m_website->setObjectName(QStringLiteral("website"));
    m_note->setFlat(true);
    m_note->setCursor(Qt::PointingHandCursor);
    m_note->setFocusPolicy(Qt::TabFocus);
    m_note->setFixedHeight(m_website->sizeHint().height());
    m_note->hide();
    connect(m_note, &QPushButton::clicked, this, &ViewFooter::noteClicked);

    auto *column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addWidget(m_divider);
    column->addLayout(m_line);
    const bool popover = m_popover;
    column->setContentsMargins(popover ? QMargins(10, 6, 10, 0) : QMargins());
    m_line->setContentsMargins(popover ? QMargins() : QMargins(24, 10, 24, 10));
    m_line->addWidget(m_website, 1);
    m_line->addWidget(m_note, 1);
    if (!popover) {
        // The website keeps to the leading half, so a click far from it opens nothing.
        m_website->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_line->addStretch(1);
    }
}

void ViewFooter::setFerrowPalette(const FerrowPalette &palette)
{
    m_divider->setFerrowPalette(palette);
    m_website->setFerrowPalette(palette, m_popover ? palette.panelBackground() : palette.windowBackground());
    // A link-like line: no frame, the accent colour; underlined while it has the keyboard focus.
    m_note->setStyleSheet(QStringLiteral("QPushButton { border: none; padding: 0; text-align: center; color: %1; }"
                                         "QPushButton:focus { text-decoration: underline; }")
                              .arg(palette.accent().name()));
    m_note->setFont(uiFont(9));
}

void ViewFooter::setNote(const QString &note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_website->setVisible(note.isEmpty());
}

void ViewFooter::addTrailing(QWidget *widget)
{
    m_line->addWidget(widget);
}

} // namespace ferrow
