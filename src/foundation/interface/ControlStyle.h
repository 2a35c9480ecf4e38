#pragma once

#include <QPalette>
#include <QProxyStyle>

#include <optional>

namespace barquell {

/// How far the lightness of two colours is apart: 1 for the same to 21 for black and white. The outline of a
/// control is to have 3 at least against what lies around it.
double contrastBetween(const QColor &one, const QColor &other);

/// White on black, black on white, or nearly: the colours of somebody who needs them so. Qt has no other word
/// of what the desktop asks for.
bool isHighContrast(const QPalette &palette);

/// Fusion with outlines that can be seen, and room around the text of a button. Fusion shades outlines from
/// the colour of the window, of which nothing is left on black and little in the dark; so here it is told
/// another: in high contrast that of the text, else for check boxes and radio buttons the first that is far
/// enough from the window's. Follows the palette of the control, whenever that changes. In high contrast it
/// also sees to it that what is disabled can be read at all, which some desktops leave to the program. Main
/// thread only.
class ControlStyle final : public QProxyStyle {
    Q_OBJECT

public:
    ControlStyle();

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;

private:
    QPalette outlined(const QPalette &palette) const;

    /// The controls of a window have one palette, so the last one is the next.
    struct Outlined {
        qint64 source;
        QPalette palette;
    };
    mutable std::optional<Outlined> _last;
};

/// Puts it in the place of Fusion, if that is what the program's windows are drawn with.
void installControlStyle();

} // namespace barquell
