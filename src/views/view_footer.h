#pragma once

#include "views/ferrow_palette.h"

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace ferrow {

class Divider;
class OfficialWebsiteLink;

// What closes a view: a hairline, then a line with the website's name. A note for the user can
// take the website's place, and a view may end the line with a widget of its own.
class ViewFooter : public QWidget {
    Q_OBJECT
public:
    // The popover's is inset from its edges, the website centred; the window's hairline spans the
    // column, the website at the leading edge.
    enum class Kind { popover, window };

    explicit ViewFooter(Kind kind, QWidget *parent = nullptr);

    void setFerrowPalette(const FerrowPalette &palette);
    // Shows the note in the website's place; an empty note brings the website back.
    void setNote(const QString &note);
    QPushButton *noteButton() const { return m_note; }
    void addTrailing(QWidget *widget);

signals:
    void noteClicked();

private:
    bool m_popover;
    Divider *m_divider;
    OfficialWebsiteLink *m_website;
    QPushButton *m_note;
    QHBoxLayout *m_line;
};

} // namespace ferrow
