#pragma once

#include "ui/Control.h"

#include <QObject>

#include <memory>

class QWidget;

namespace gfc::qt {

class FormWindow;

// Shows one control. What a person does to the widget is reported to the control through FormWindow::Act;
// what the control holds is written to the widget by Refresh, only where it differs.
class Renderer : public QObject {
public:
    explicit Renderer(FormWindow& window) : window_(window) {}

    virtual void Refresh() = 0;
    // Takes the observers of the control back, which may go before the window does.
    virtual void Release() {}
    // The widget on which the input focus rests; null if it cannot.
    [[nodiscard]] virtual QWidget* FocusWidget() const { return nullptr; }
    // The widget that a person presses with the mouse; null if the focus does not follow the mouse.
    [[nodiscard]] virtual QWidget* MouseWidget() const { return FocusWidget(); }

protected:
    FormWindow& window_;
};

// Null if the widget is not of the kind that shows such a control, or is missing where one is needed.
[[nodiscard]] std::unique_ptr<Renderer> MakeRenderer(FormWindow& window, ui::Control& control,
                                                     QWidget* widget);

} // namespace gfc::qt
