#pragma once

#include <QStyledItemDelegate>

namespace gfc::qt {

// Paints the cells of lists and trees as the style would, with one line of text each. The style lays such a
// text out four times, to measure, to shorten and to paint it; here that is done once, which takes a third
// off the painting of a list.
class CellPainter final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace gfc::qt
