#include "ui/Frame.h"

#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"

#include <QFrame>
#include <QGroupBox>
#include <QLayout>

namespace gfc::qt {

namespace {

// What is inside a nested layout is aligned by that one.
QLayoutItem* ItemOf(QLayout* layout, const QWidget& widget) {
    for (int i = 0; layout != nullptr && i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() == &widget)
            return item;
        if (QLayoutItem* inside = ItemOf(item->layout(), widget); inside != nullptr)
            return inside;
    }
    return nullptr;
}

template <class W>
class FrameRenderer final : public WidgetRenderer<ui::Frame, W> {
public:
    FrameRenderer(FormWindow& window, ui::Frame& control, W& widget)
        : WidgetRenderer<ui::Frame, W>(window, control, widget) {
        QWidget* parent = widget.parentWidget();
        item_ = parent == nullptr ? nullptr : ItemOf(parent->layout(), widget);
        if (item_ != nullptr)
            own_ = item_->alignment();
    }

private:
    void RefreshContent() override {
        if constexpr (std::is_same_v<W, QGroupBox>)
            if (const QString title = ToQt(this->control_.Caption()); this->widget_.title() != title)
                this->widget_.setTitle(title);
        if (item_ == nullptr || centred_ == this->control_.Centred())
            return;
        centred_ = this->control_.Centred();
        item_->setAlignment(centred_ ? Qt::Alignment(Qt::AlignHCenter) : own_);
        this->widget_.parentWidget()->layout()->invalidate();
    }

    QLayoutItem* item_ = nullptr;
    Qt::Alignment own_;
    bool centred_ = false;
};

} // namespace

RendererPtr RenderFrame(FormWindow& window, ui::Control& control, QWidget* widget) {
    if (dynamic_cast<QGroupBox*>(widget) != nullptr)
        return Fitting<FrameRenderer<QGroupBox>, ui::Frame, QGroupBox>(window, control, widget);
    return Fitting<FrameRenderer<QFrame>, ui::Frame, QFrame>(window, control, widget);
}

} // namespace gfc::qt
