#pragma once

#include "ui/Form.h"

#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <unordered_map>
#include <vector>

namespace gfc::qt {

class FormWindow;

// A field that a person leaves may check itself, open a box and keep the focus. That must not happen inside
// the mouse or key event: the button that was pressed would stay down behind the box. So the check runs right
// after the event; what the mouse does meanwhile is held, and goes on only if the focus could move.
class FocusGate : public QObject {
public:
    FocusGate(FormWindow& window, ui::Form& form) : window_(window), form_(&form) {}

    // focusWidget is the one that the focus rests on, mouseWidget the one that is pressed.
    void Watch(QWidget* focusWidget, QWidget* mouseWidget, ui::Control& control);
    // The focus stands firm: what was still to be done about it is void.
    void Settled() { target_ = nullptr; }
    void Release();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct HeldEvent {
        QPointer<QWidget> Widget;
        std::unique_ptr<QEvent> Event;
    };

    [[nodiscard]] bool CheckIsDue(const ui::Control& control) const;
    bool Hold(QWidget& widget, const QMouseEvent& event, ui::Control& control);
    void MoveSoon(ui::Control& control);
    void Move();
    [[nodiscard]] bool StillThere(ui::Control& target) const;

    FormWindow& window_;
    ui::Form* form_;
    std::unordered_map<const QObject*, ui::Control*> watched_;
    ui::Control* target_ = nullptr;
    QPointer<QWidget> targetWidget_;
    std::vector<HeldEvent> held_;
    bool queued_ = false;
};

} // namespace gfc::qt
