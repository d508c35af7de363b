#pragma once

#include "ui/Control.h"

namespace gfc::ui {

// A text beside other controls, or a picture if Image names one.
class Label : public Control {
public:
    Label(Place place, std::string name, std::string caption = {}, std::string image = {})
        : Control(place, Kind::Label, std::move(name), std::move(caption)), image_(std::move(image)) {}

    [[nodiscard]] const std::string& Image() const { return image_; }

    // More than the caption says, for a tip; asked when it is to be shown, empty for nothing.
    std::function<std::string()> HintOf;

private:
    std::string image_;
};

} // namespace gfc::ui
