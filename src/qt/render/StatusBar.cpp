#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Furniture.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>

namespace gfc::qt {

namespace {

class StatusBarRenderer final : public WidgetRenderer<ui::StatusBar, QStatusBar> {
public:
    StatusBarRenderer(FormWindow& window, ui::StatusBar& control, QStatusBar& widget)
        : WidgetRenderer(window, control, widget), panel_(*new QLabel(&widget)) {
        panel_.setTextFormat(Qt::PlainText);
        panel_.setObjectName("layout" + widget.objectName() + "Panel1");
        widget.addWidget(&panel_);
    }

    // The panel is kept as wide as its model, whatever a person does to that one's width.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            panel_.setMinimumWidth(static_cast<QWidget*>(watched)->width());
        return QObject::eventFilter(watched, event);
    }

private:
    void RefreshContent() override {
        const QString text = ToQt(control_.PanelText(1));
        if (panel_.text() != text)
            panel_.setText(text);
        const ui::Control* like = control_.WidthOfPanel1();
        QWidget* model = like == nullptr ? nullptr : window_.WidgetNamed(like->Name());
        if (model == nullptr || model == model_)
            return;
        model_ = model;
        model->installEventFilter(this);
        panel_.setMinimumWidth(model->width());
    }

    QLabel& panel_;
    QWidget* model_ = nullptr;
};

} // namespace

RendererPtr RenderStatusBar(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<StatusBarRenderer, ui::StatusBar, QStatusBar>(window, control, widget);
}

} // namespace gfc::qt
