#pragma once

#include "ui/Control.h"

namespace gfc::ui {

class CommandButton : public Control {
public:
    // image names a picture of the icon set; a picture button has an empty caption.
    CommandButton(Place place, std::string name, std::string caption = {}, std::string image = {})
        : Control(place, Kind::CommandButton, std::move(name), std::move(caption)), image_(std::move(image)) {
    }

    [[nodiscard]] const std::string& Image() const { return image_; }
    std::function<void()> OnClick;
    // False if a person cannot press it now.
    bool PersonClicks();

private:
    std::string image_;
};

class CheckBox : public Control {
public:
    CheckBox(Place place, std::string name, std::string caption = {})
        : Control(place, Kind::CheckBox, std::move(name), std::move(caption)) {}

    [[nodiscard]] bool Value() const { return value_; }
    // A change runs OnClick, whoever made it.
    void SetValue(bool value);
    std::function<void()> OnClick;
    bool PersonClicks();

private:
    bool value_ = false;
};

// One of the options that stand in the same place; at most one of them is selected.
class OptionButton : public Control {
public:
    OptionButton(Place place, std::string name, std::string caption = {}, bool value = false)
        : Control(place, Kind::OptionButton, std::move(name), std::move(caption)), value_(value) {}

    [[nodiscard]] bool Value() const { return value_; }
    // Becoming selected takes the selection from the others and runs OnClick, whoever did it.
    void SetValue(bool value);
    std::function<void()> OnClick;
    // The press of the mouse button alone; the keyboard does not cause it.
    std::function<void()> OnMouseDown;
    bool PersonPresses();
    bool PersonClicks();

private:
    void ClearOthers();
    bool value_ = false;
};

} // namespace gfc::ui
