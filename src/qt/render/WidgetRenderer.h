#pragma once

#include "qt/FormWindow.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"

#include <QWidget>

namespace gfc::qt {

// What the renderers that have a widget share: presence, use, accessible name.
template <class C, class W>
class WidgetRenderer : public Renderer {
public:
    WidgetRenderer(FormWindow& window, C& control, W& widget)
        : Renderer(window), control_(control), widget_(widget) {
        KeepRoomIfAsked(widget);
    }

    void Refresh() final {
        RefreshContent();
        if (widget_.isEnabledTo(widget_.parentWidget()) != control_.Enabled())
            widget_.setEnabled(control_.Enabled());
        if (widget_.isHidden() == control_.Visible())
            widget_.setVisible(control_.Visible());
    }

    [[nodiscard]] QWidget* FocusWidget() const override {
        return control_.TakesFocus() ? static_cast<QWidget*>(&widget_) : nullptr;
    }

protected:
    virtual void RefreshContent() = 0;

    void Act(const std::function<void()>& act) { window_.Act(*this, act); }

    C& control_;
    W& widget_;

private:
    static void KeepRoomIfAsked(QWidget& widget) {
        if (!widget.property("keepsRoom").toBool())
            return;
        QSizePolicy policy = widget.sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget.setSizePolicy(policy);
    }
};

} // namespace gfc::qt
