#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Buttons.h"

#include <QMouseEvent>
#include <QRadioButton>

namespace gfc::qt {

namespace {

class OptionButtonRenderer final : public WidgetRenderer<ui::OptionButton, QRadioButton> {
public:
    OptionButtonRenderer(FormWindow& window, ui::OptionButton& control, QRadioButton& widget)
        : WidgetRenderer(window, control, widget) {
        widget.installEventFilter(this);
        QObject::connect(&widget, &QRadioButton::clicked, this, [this] { Click(); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            Act([this] { (void)control_.PersonPresses(); });
        return QObject::eventFilter(watched, event);
    }

private:
    // A click has moved the mark in the widgets already: all that stand together are put right.
    void Click() {
        const FormWindow::InEvent going(window_);
        Act([this] { (void)control_.PersonClicks(); });
        if (window_.Form() != nullptr)
            window_.RefreshAll();
    }

    void RefreshContent() override {
        const QString text = ToQt(control_.Caption());
        if (widget_.text() != text)
            widget_.setText(text);
        if (widget_.isChecked() == control_.Value())
            return;
        // Exclusive buttons give the arrow keys, but would not let the last mark be taken away.
        widget_.setAutoExclusive(control_.Value());
        widget_.setChecked(control_.Value());
        widget_.setAutoExclusive(true);
    }
};

} // namespace

RendererPtr RenderOptionButton(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<OptionButtonRenderer, ui::OptionButton, QRadioButton>(window, control, widget);
}

} // namespace gfc::qt
