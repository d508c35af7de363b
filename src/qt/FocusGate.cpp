#include "qt/FocusGate.h"

#include "qt/FormWindow.h"
#include "ui/TextBox.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QTimer>

namespace gfc::qt {

namespace {
bool ByAPerson(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}
} // namespace

void FocusGate::Watch(QWidget* focusWidget, QWidget* mouseWidget, ui::Control& control) {
    for (QWidget* widget : {focusWidget, mouseWidget}) {
        if (widget == nullptr || !watched_.emplace(widget, &control).second)
            continue;
        widget->installEventFilter(this);
    }
}

void FocusGate::Release() {
    form_ = nullptr;
    target_ = nullptr;
    held_.clear();
}

bool FocusGate::eventFilter(QObject* watched, QEvent* event) {
    const auto found = watched_.find(watched);
    if (form_ == nullptr || found == watched_.end() || window_.IsWriting())
        return false;
    auto& widget = static_cast<QWidget&>(*watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (ByAPerson(static_cast<QFocusEvent*>(event)->reason())) {
            targetWidget_ = &widget;
            MoveSoon(*found->second);
        }
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return Hold(widget, static_cast<QMouseEvent&>(*event), *found->second);
    default:
        return false;
    }
}

bool FocusGate::CheckIsDue(const ui::Control& control) const {
    const auto* left = dynamic_cast<const ui::TextBox*>(form_->FocusedControl());
    return left != nullptr && left != &control && left->OnLostFocus != nullptr && control.Usable();
}

bool FocusGate::Hold(QWidget& widget, const QMouseEvent& event, ui::Control& control) {
    const bool press = event.type() == QEvent::MouseButtonPress;
    if (held_.empty() && !(press && CheckIsDue(control)))
        return false;
    held_.push_back({&widget, std::unique_ptr<QEvent>(event.clone())});
    if (press && held_.size() == 1) {
        targetWidget_ = nullptr;
        MoveSoon(control);
    }
    return true;
}

void FocusGate::MoveSoon(ui::Control& control) {
    target_ = &control;
    if (queued_)
        return;
    queued_ = true;
    QTimer::singleShot(0, this, [this] { Move(); });
}

void FocusGate::Move() {
    queued_ = false;
    auto* target = std::exchange(target_, nullptr);
    const auto held = std::exchange(held_, {});
    if (form_ == nullptr || target == nullptr || !StillThere(*target))
        return;
    const FormWindow::InEvent going(window_);
    if (!form_->MoveFocus(*target))
        return;
    for (const HeldEvent& event : held)
        if (event.Widget != nullptr && form_ != nullptr)
            QCoreApplication::sendEvent(event.Widget, event.Event.get());
}

// The program may have put the focus elsewhere since.
bool FocusGate::StillThere(ui::Control& target) const {
    return target.Usable() &&
           (targetWidget_ == nullptr || targetWidget_->hasFocus() || !targetWidget_->isActiveWindow());
}

} // namespace gfc::qt
