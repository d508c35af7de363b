#include "qt/OutlinedStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace gfc::qt {

namespace {

bool IsDark(const QPalette& palette) {
    constexpr int middle = 128;
    return palette.color(QPalette::Window).lightness() < middle;
}

// Between the ground, or what highlights, and the words; the words of what is disabled are faded already.
QColor OutlineOn(const QPalette& palette, bool hasFocus) {
    const QColor ground = palette.color(hasFocus ? QPalette::Highlight : QPalette::Window);
    const QColor words = palette.color(QPalette::WindowText);
    const auto between = [](int from, int to) { return from + (to - from) * 45 / 100; };
    return {between(ground.red(), words.red()), between(ground.green(), words.green()),
            between(ground.blue(), words.blue())};
}

void DrawOutline(QStyle::PrimitiveElement element, const QRect& rect, QPainter& painter) {
    constexpr qreal corner = 2;
    const QRectF line = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == QStyle::PE_IndicatorRadioButton)
        painter.drawEllipse(line);
    else
        painter.drawRoundedRect(line, corner, corner);
}

// The marks of lists and of menus are drawn as those of boxes. A field is told from a light ground by its
// own.
bool NeedsOutline(QStyle::PrimitiveElement element, const QPalette& palette) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton ||
           (element == QStyle::PE_FrameLineEdit && IsDark(palette));
}

} // namespace

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!NeedsOutline(element, option->palette))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(OutlineOn(option->palette, option->state.testFlag(State_HasFocus)));
    DrawOutline(element, option->rect, *painter);
    painter->restore();
}

} // namespace gfc::qt
