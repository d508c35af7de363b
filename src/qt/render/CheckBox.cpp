#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Buttons.h"

#include <QCheckBox>

namespace gfc::qt {

namespace {

class CheckBoxRenderer final : public WidgetRenderer<ui::CheckBox, QCheckBox> {
public:
    CheckBoxRenderer(FormWindow& window, ui::CheckBox& control, QCheckBox& widget)
        : WidgetRenderer(window, control, widget) {
        QObject::connect(&widget, &QCheckBox::clicked, this,
                         [this] { Act([this] { (void)control_.PersonClicks(); }); });
    }

private:
    void RefreshContent() override {
        const QString text = ToQt(control_.Caption());
        if (widget_.text() != text)
            widget_.setText(text);
        if (widget_.isChecked() != control_.Value())
            widget_.setChecked(control_.Value());
    }
};

} // namespace

RendererPtr RenderCheckBox(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<CheckBoxRenderer, ui::CheckBox, QCheckBox>(window, control, widget);
}

} // namespace gfc::qt
