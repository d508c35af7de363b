#pragma once

#include <span>
#include <string_view>

class QWidget;

namespace gfc::qt {

// A form's design: what stands where in its window.
struct Design {
    std::string_view Form;
    // Fills an empty widget.
    void (*SetUp)(QWidget& window);
};

// One for each design file.
[[nodiscard]] std::span<const Design> Designs();

} // namespace gfc::qt
