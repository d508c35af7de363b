#include "ui/Label.h"

#include "qt/Icons.h"
#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

namespace gfc::qt {

namespace {

class LabelRenderer final : public WidgetRenderer<ui::Label, QLabel> {
public:
    LabelRenderer(FormWindow& window, ui::Label& control, QLabel& widget)
        : WidgetRenderer(window, control, widget) {
        widget.setTextFormat(Qt::PlainText);
        widget.installEventFilter(this);
        if (!control.Image().empty())
            widget.setPixmap(IconNamed(control.Image()).pixmap(PictureSize()));
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool asked = event->type() == QEvent::ToolTip && window_.Form() != nullptr;
        const QString hint = asked ? Hint() : QString();
        if (hint.isEmpty())
            return QObject::eventFilter(watched, event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), hint, &widget_);
        return true;
    }

private:
    [[nodiscard]] QString Hint() const { return control_.HintOf ? LinesOf(control_.HintOf()) : QString(); }
    [[nodiscard]] QSize PictureSize() const {
        const QSize given = widget_.minimumSize();
        return given.isEmpty() ? QSize(48, 48) : given;
    }

    void RefreshContent() override {
        const QString text = LinesOf(control_.Caption());
        if (control_.Image().empty() && widget_.text() != text)
            widget_.setText(text);
        if (control_.HintOf)
            widget_.setAccessibleDescription(Hint());
    }
};

} // namespace

RendererPtr RenderLabel(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<LabelRenderer, ui::Label, QLabel>(window, control, widget);
}

} // namespace gfc::qt
