#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Furniture.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>

#include <vector>

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
        Show(panel_, 1);
        for (int panel = 2; panel <= control_.Panels(); ++panel)
            Show(PanelAtTheRight(panel), panel);
        const ui::Control* like = control_.WidthOfPanel1();
        QWidget* model = like == nullptr ? nullptr : window_.WidgetNamed(like->Name());
        if (model == nullptr || model == model_)
            return;
        model_ = model;
        model->installEventFilter(this);
        panel_.setMinimumWidth(model->width());
    }

    void Show(QLabel& label, int panel) {
        if (const QString text = ToQt(control_.PanelText(panel)); label.text() != text)
            label.setText(text);
    }

    QLabel& PanelAtTheRight(int panel) {
        while (static_cast<int>(atTheRight_.size()) < panel - 1) {
            QLabel* label = atTheRight_.emplace_back(new QLabel(&widget_));
            label->setTextFormat(Qt::PlainText);
            label->setObjectName("layout" + widget_.objectName() + "Panel" + QString::number(panel));
            widget_.addPermanentWidget(label);
        }
        return *atTheRight_[static_cast<std::size_t>(panel - 2)];
    }

    QLabel& panel_;
    std::vector<QLabel*> atTheRight_; // from panel 2 on
    QWidget* model_ = nullptr;
};

} // namespace

RendererPtr RenderStatusBar(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<StatusBarRenderer, ui::StatusBar, QStatusBar>(window, control, widget);
}

} // namespace gfc::qt
