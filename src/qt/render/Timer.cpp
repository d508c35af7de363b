#include "qt/FormWindow.h"
#include "qt/Texts.h"
#include "qt/render/Renderers.h"
#include "ui/Furniture.h"

#include <QTimer>

namespace gfc::qt {

namespace {

class TimerRenderer final : public Renderer {
public:
    TimerRenderer(FormWindow& window, ui::Timer& control)
        : Renderer(window), control_(control), timer_(*new QTimer(&window)) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setObjectName(ToQt(control.Name()));
        QObject::connect(&timer_, &QTimer::timeout, this,
                         [this] { window_.Act(*this, [this] { control_.Tick(); }); });
    }

    void Refresh() override {
        if (timer_.isActive() == control_.Enabled())
            return;
        if (control_.Enabled())
            timer_.start(control_.Interval());
        else
            timer_.stop();
    }
    void Release() override { timer_.stop(); }

private:
    ui::Timer& control_;
    // In the window's care, so that it is found there by its name.
    QTimer& timer_;
};

} // namespace

RendererPtr RenderTimer(FormWindow& window, ui::Control& control, QWidget*) {
    return std::make_unique<TimerRenderer>(window, dynamic_cast<ui::Timer&>(control));
}

} // namespace gfc::qt
