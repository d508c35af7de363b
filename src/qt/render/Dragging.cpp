#include "qt/render/Dragging.h"

#include "qt/Texts.h"
#include "qt/render/ItemRole.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollBar>
#include <QToolTip>

namespace gfc::qt {

namespace {

// Null beside the rows of any list or tree.
QAbstractItemView* ViewAt(const QWidget& window, QPoint at) {
    QWidget* under = window.childAt(window.mapFromGlobal(at));
    auto* view = under == nullptr ? nullptr : qobject_cast<QAbstractItemView*>(under->parentWidget());
    return view != nullptr && view->viewport() == under ? view : nullptr;
}

// What is out of sight comes in when the pointer stands at the edge.
void ScrollAtEdge(QAbstractItemView& view, QPoint at) {
    constexpr int edge = 16;
    const QWidget& port = *view.viewport();
    const int y = port.mapFromGlobal(at).y();
    if (y < edge)
        view.verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (y >= port.height() - edge)
        view.verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

} // namespace

void Dragging::Press(QPoint at) {
    dragged_ = from_.WhatToDrag();
    if (!dragged_.empty())
        pressed_ = at;
}

void Dragging::Move(QPoint at) {
    if (!pressed_)
        return;
    if (!going_ && (at - *pressed_).manhattanLength() < QApplication::startDragDistance())
        return;
    if (!IsStillChosen()) {
        Cancel();
        return;
    }
    if (!std::exchange(going_, true))
        QApplication::setOverrideCursor(Qt::ForbiddenCursor);
    if (QAbstractItemView* view = ViewAt(window_, at))
        ScrollAtEdge(*view, at);
    ShowWhere(at);
}

void Dragging::ShowWhere(QPoint at) {
    const Drop drop = DropAt(at);
    const std::string onto = drop.Onto == nullptr ? std::string() : drop.Onto->WhereToDrop(from_, drop.Item);
    QApplication::changeOverrideCursor(onto.empty() ? Qt::ForbiddenCursor : Qt::DragLinkCursor);
    QToolTip::showText(at, ToQt(onto.empty() ? dragged_ : dragged_ + " \u2192 " + onto), &window_);
}

Dragging::Drop Dragging::Release(QPoint at) {
    const bool falls = going_ && IsStillChosen();
    Cancel();
    const Drop drop = falls ? DropAt(at) : Drop{};
    return drop.Onto == nullptr || drop.Onto->WhereToDrop(from_, drop.Item).empty() ? Drop{} : drop;
}

bool Dragging::Cancel() {
    pressed_.reset();
    if (!std::exchange(going_, false))
        return false;
    QApplication::restoreOverrideCursor();
    QToolTip::hideText();
    return true;
}

bool Dragging::IsStillChosen() const {
    return window_.Form() != nullptr && from_.WhatToDrag() == dragged_;
}

// By the name that the widget has from its control.
Dragging::Drop Dragging::DropAt(QPoint at) const {
    const QAbstractItemView* view = ViewAt(window_, at);
    if (view == nullptr)
        return {};
    auto* onto = dynamic_cast<ui::DragPlace*>(window_.Form()->Find(FromQt(view->objectName())));
    const QModelIndex index = view->indexAt(view->viewport()->mapFromGlobal(at));
    return {onto, index.isValid() ? index.data(ItemRole).toInt() : 0};
}

} // namespace gfc::qt
