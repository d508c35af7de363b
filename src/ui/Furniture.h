#pragma once

#include "ui/Control.h"

#include <vector>

namespace gfc::ui {

// Panels are counted from 1.
class StatusBar : public Control {
public:
    StatusBar(Place place, std::string name) : Control(place, Kind::StatusBar, std::move(name)), panels_(1) {}

    [[nodiscard]] const std::string& PanelText(int panel) const {
        return panels_.at(static_cast<std::size_t>(panel - 1));
    }
    // Adds the panels up to that one if they are not there yet; they stand at the right.
    void SetPanelText(int panel, std::string text);
    [[nodiscard]] int Panels() const { return static_cast<int>(panels_.size()); }
    // The control whose width panel 1 keeps; null for its own.
    [[nodiscard]] const Control* WidthOfPanel1() const { return likeWidth_; }
    void MakePanel1AsWideAs(const Control& control);

private:
    std::vector<std::string> panels_;
    const Control* likeWidth_ = nullptr;
};

class Timer : public Control {
public:
    // interval in milliseconds
    Timer(Place place, std::string name, int interval)
        : Control(place, Kind::Timer, std::move(name)), interval_(interval) {
        SetEnabled(false);
    }

    [[nodiscard]] int Interval() const { return interval_; }
    std::function<void()> OnTimer;
    // The interval has gone by; a disabled timer does nothing.
    void Tick();

private:
    int interval_;
};

// Named pictures; the names are resolved by the window's icon set.
class ImageList : public Control {
public:
    ImageList(Place place, std::string name, std::vector<std::string> images)
        : Control(place, Kind::ImageList, std::move(name)), images_(std::move(images)) {}

    [[nodiscard]] const std::vector<std::string>& Images() const { return images_; }
    // Images are counted from 1.
    [[nodiscard]] const std::string& Image(int number) const {
        return images_.at(static_cast<std::size_t>(number - 1));
    }

private:
    std::vector<std::string> images_;
};

} // namespace gfc::ui
