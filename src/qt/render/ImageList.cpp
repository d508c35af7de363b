#include "qt/render/Renderers.h"
#include "ui/Furniture.h"

namespace gfc::qt {

namespace {

// Its pictures are shown by the controls that name them.
class ImageListRenderer final : public Renderer {
public:
    using Renderer::Renderer;
    void Refresh() override {}
};

} // namespace

RendererPtr RenderImageList(FormWindow& window, ui::Control&, QWidget*) {
    return std::make_unique<ImageListRenderer>(window);
}

} // namespace gfc::qt
