#pragma once

#include "qt/Renderer.h"

// One for each kind of control, in the file of its name. Each gives null if the widget does not fit.
namespace gfc::qt {

using RendererPtr = std::unique_ptr<Renderer>;

RendererPtr RenderLabel(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderTextBox(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderCommandButton(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderCheckBox(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderOptionButton(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderDropDownList(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderFrame(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderTree(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderListView(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderTabbedPane(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderStatusBar(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderMenuEntry(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderTimer(FormWindow& window, ui::Control& control, QWidget* widget);
RendererPtr RenderImageList(FormWindow& window, ui::Control& control, QWidget* widget);

// A renderer of R for its control and its widget, null if either is of another type.
template <class R, class C, class W>
[[nodiscard]] RendererPtr Fitting(FormWindow& window, ui::Control& control, QWidget* widget) {
    auto* itsControl = dynamic_cast<C*>(&control);
    auto* itsWidget = dynamic_cast<W*>(widget);
    if (itsControl == nullptr || itsWidget == nullptr)
        return nullptr;
    return std::make_unique<R>(window, *itsControl, *itsWidget);
}

} // namespace gfc::qt
