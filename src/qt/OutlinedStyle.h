#pragma once

#include <QProxyStyle>

namespace gfc::qt {

// A style that outlines what a person marks or types into so that it can be told from its ground, a dark one
// above all; the style below it takes a shade of that very ground for the line.
class OutlinedStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace gfc::qt
