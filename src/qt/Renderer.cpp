#include "qt/Renderer.h"

#include "qt/render/Renderers.h"

#include <array>

namespace gfc::qt {

namespace {

using Maker = RendererPtr (*)(FormWindow&, ui::Control&, QWidget*);

// In the order of ui::Kind.
constexpr std::array<Maker, 14> makers{
    RenderLabel,        RenderTextBox,   RenderCommandButton, RenderCheckBox,  RenderOptionButton,
    RenderDropDownList, RenderFrame,     RenderTree,          RenderListView,  RenderTabbedPane,
    RenderStatusBar,    RenderMenuEntry, RenderTimer,         RenderImageList,
};

} // namespace

std::unique_ptr<Renderer> MakeRenderer(FormWindow& window, ui::Control& control, QWidget* widget) {
    return makers.at(static_cast<std::size_t>(control.TheKind()))(window, control, widget);
}

} // namespace gfc::qt
