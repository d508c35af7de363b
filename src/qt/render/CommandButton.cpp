#include "qt/Icons.h"
#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Buttons.h"
#include "ui/Form.h"

#include <QPushButton>

namespace gfc::qt {

namespace {

class CommandButtonRenderer final : public WidgetRenderer<ui::CommandButton, QPushButton> {
public:
    CommandButtonRenderer(FormWindow& window, ui::CommandButton& control, QPushButton& widget)
        : WidgetRenderer(window, control, widget) {
        if (!control.Image().empty())
            widget.setIcon(IconNamed(control.Image()));
        widget.setDefault(control.Owner().DefaultButton() == &control);
        QObject::connect(&widget, &QPushButton::clicked, this,
                         [this] { Act([this] { (void)control_.PersonClicks(); }); });
    }

private:
    void RefreshContent() override {
        const QString text = ToQt(control_.Caption());
        if (widget_.text() != text)
            widget_.setText(text);
    }
};

} // namespace

RendererPtr RenderCommandButton(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<CommandButtonRenderer, ui::CommandButton, QPushButton>(window, control, widget);
}

} // namespace gfc::qt
