#pragma once

#include "ui/Control.h"

namespace gfc::ui {

// A captioned group of controls.
class Frame : public Control {
public:
    Frame(Place place, std::string name, std::string caption = {})
        : Control(place, Kind::Frame, std::move(name), std::move(caption)) {}

    // Stands in the middle of what it stands in, instead of at its own left edge.
    [[nodiscard]] bool Centred() const { return centred_; }
    void SetCentred(bool centred);

private:
    bool centred_ = false;
};

} // namespace gfc::ui
