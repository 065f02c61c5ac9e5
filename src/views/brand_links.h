#pragma once

#include "views/ferrow_button.h"
#include "views/ferrow_palette.h"

#include <QAbstractButton>
#include <QUrl>
#include <QVariantAnimation>

namespace ferrow {

// The maker's official website, which both brand links open in the default browser.
const QUrl &officialWebsiteUrl();

// The brand icon as a link: dims when hovered, and rises a point unless motion is reduced.
class FerrowLogoLink : public FerrowButton {
public:
    FerrowLogoLink(double size, double cornerRadius, QWidget *parent = nullptr);
    void setReduceMotion(bool reduceMotion) { m_reduceMotion = reduceMotion; }
    // The ring's colour, and the ground the link sits on.
    void setFerrowPalette(const FerrowPalette &palette, const QColor &ground);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setHovered(bool hovered);

    double m_size;
    double m_cornerRadius;
    bool m_reduceMotion = false;
    FerrowPalette m_palette;
    QColor m_ground;
    bool m_hovered = false;
    double m_hoverProgress = 0; // 0 at rest, 1 hovered; animated over 0.14 s
    QVariantAnimation m_hoverAnimation;
};

// The website's name as a link: secondary text, the accent colour while hovered, placed by
// alignment in whatever width the layout gives it.
class OfficialWebsiteLink : public FerrowButton {
public:
    explicit OfficialWebsiteLink(Qt::Alignment alignment = Qt::AlignHCenter, QWidget *parent = nullptr);
    void setFerrowPalette(const FerrowPalette &palette, const QColor &ground);
    QSize sizeHint() const override { return {120, 20}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    Qt::Alignment m_alignment;
    FerrowPalette m_palette;
    QColor m_ground;
    bool m_hovered = false;
};

} // namespace ferrow
