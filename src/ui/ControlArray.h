#pragma once

#include "ui/Control.h"

#include <array>
#include <memory>
#include <string>

namespace gfc::ui {

// Controls of one kind under one name, told apart by an index from 0: "CheckRun_0", "CheckRun_1", ...
template <class C, int N>
class ControlArray {
public:
    // caption(i) gives the caption of item i.
    template <class CaptionOf>
    ControlArray(Place place, const std::string& name, CaptionOf caption) {
        for (int i = 0; i < N; ++i)
            items_[static_cast<std::size_t>(i)] =
                std::make_unique<C>(place, name + "_" + std::to_string(i), caption(i));
    }

    [[nodiscard]] C& operator[](int index) { return *items_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] const C& operator[](int index) const { return *items_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] static constexpr int Size() { return N; }

private:
    std::array<std::unique_ptr<C>, N> items_;
};

} // namespace gfc::ui
