#include "qt/render/CellPainter.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace gfc::qt {

namespace {

const QStyle& StyleOf(const QStyleOptionViewItem& cell) {
    return cell.widget == nullptr ? *QApplication::style() : *cell.widget->style();
}

// What a list does not show, and the cell that has the focus.
bool IsLeftToTheStyle(const QStyleOptionViewItem& cell) {
    return cell.features.testFlag(QStyleOptionViewItem::HasCheckIndicator) ||
           cell.decorationPosition != QStyleOptionViewItem::Left ||
           cell.state.testFlag(QStyle::State_HasFocus) || cell.text.contains(QChar::LineSeparator);
}

// With the style's own margins.
struct Places {
    QRect Picture, Text;
};

Places PlacesIn(const QStyleOptionViewItem& cell) {
    const auto mirrored = [&cell](const QRect& place) {
        return QStyle::visualRect(cell.direction, cell.rect, place);
    };
    const int margin = StyleOf(cell).pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
    QRect picture = cell.rect;
    picture.setWidth(cell.features.testFlag(QStyleOptionViewItem::HasDecoration)
                         ? cell.decorationSize.width() + 2 * margin
                         : 0);
    const QRect text = cell.rect.adjusted(picture.width() + margin, 0, -margin, 0);
    return {
        QStyle::alignedRect(cell.direction, cell.decorationAlignment, cell.decorationSize, mirrored(picture)),
        mirrored(text)};
}

void PaintPicture(QPainter& painter, const QStyleOptionViewItem& cell, const QRect& place) {
    const bool enabled = cell.state.testFlag(QStyle::State_Enabled);
    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    const bool open = cell.state.testFlag(QStyle::State_Open);
    cell.icon.paint(&painter, place, cell.decorationAlignment,
                    !enabled   ? QIcon::Disabled
                    : selected ? QIcon::Selected
                               : QIcon::Normal,
                    open ? QIcon::On : QIcon::Off);
}

QColor ColourOf(const QStyleOptionViewItem& cell) {
    const bool enabled = cell.state.testFlag(QStyle::State_Enabled);
    const bool active = cell.state.testFlag(QStyle::State_Active);
    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    return cell.palette.color(!enabled ? QPalette::Disabled
                              : active ? QPalette::Normal
                                       : QPalette::Inactive,
                              selected ? QPalette::HighlightedText : QPalette::Text);
}

// Within that width, out of which a longer text runs.
void LayOut(QTextLayout& layout, const QStyleOptionViewItem& cell, int width) {
    QTextOption option(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
    option.setWrapMode(QTextOption::ManualWrap);
    option.setTextDirection(cell.direction);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine().setLineWidth(width);
    layout.endLayout();
}

void PaintText(QPainter& painter, const QStyleOptionViewItem& cell, const QRect& place) {
    QTextLayout layout(cell.text, cell.font);
    LayOut(layout, cell, place.width());
    const QTextLine line = layout.lineAt(0);
    // A text that is shortened stays at the height of the whole one.
    const QSize size(place.width(), static_cast<int>(line.height()));
    const QPoint at = QStyle::alignedRect(cell.direction, cell.displayAlignment, size, place).topLeft();
    if (line.naturalTextWidth() > place.width()) {
        layout.setText(cell.fontMetrics.elidedText(cell.text, cell.textElideMode, place.width()));
        LayOut(layout, cell, place.width());
    }
    painter.setPen(ColourOf(cell));
    layout.draw(&painter, at);
}

} // namespace

void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (IsLeftToTheStyle(cell))
        return QStyledItemDelegate::paint(painter, option, index);
    painter->save();
    painter->setClipRect(cell.rect);
    StyleOf(cell).drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    const Places places = PlacesIn(cell);
    if (!cell.icon.isNull())
        PaintPicture(*painter, cell, places.Picture);
    if (!cell.text.isEmpty())
        PaintText(*painter, cell, places.Text);
    painter->restore();
}

} // namespace gfc::qt
