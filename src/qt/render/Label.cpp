#include "ui/Label.h"

#include "qt/Icons.h"
#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"

#include <QLabel>

namespace gfc::qt {

namespace {

class LabelRenderer final : public WidgetRenderer<ui::Label, QLabel> {
public:
    LabelRenderer(FormWindow& window, ui::Label& control, QLabel& widget)
        : WidgetRenderer(window, control, widget) {
        widget.setTextFormat(Qt::PlainText);
        if (!control.Image().empty())
            widget.setPixmap(IconNamed(control.Image()).pixmap(PictureSize()));
    }

private:
    [[nodiscard]] QSize PictureSize() const {
        const QSize given = widget_.minimumSize();
        return given.isEmpty() ? QSize(48, 48) : given;
    }

    void RefreshContent() override {
        const QString text = LinesOf(control_.Caption());
        if (control_.Image().empty() && widget_.text() != text)
            widget_.setText(text);
    }
};

} // namespace

RendererPtr RenderLabel(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<LabelRenderer, ui::Label, QLabel>(window, control, widget);
}

} // namespace gfc::qt
