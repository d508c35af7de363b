#pragma once

#include "ui/Control.h"

namespace gfc::ui {

// An entry of a menu, or a menu itself if other entries stand in it. "&" marks the mnemonic.
class MenuEntry : public Control {
public:
    MenuEntry(Place place, std::string name, std::string caption)
        : Control(place, Kind::MenuEntry, std::move(name), std::move(caption)) {}

    // The picture's name in the icon set; empty for none.
    [[nodiscard]] const std::string& Image() const { return image_; }
    void SetImage(std::string image);
    // The keys that choose it, such as "Ctrl+Shift+Z"; empty for none. A field that uses them itself keeps
    // them.
    [[nodiscard]] const std::string& Shortcut() const { return shortcut_; }
    void SetShortcut(std::string shortcut);
    // A separator has no caption and cannot be chosen.
    [[nodiscard]] bool IsSeparator() const { return Caption() == "-"; }
    // Runs for an entry when it is chosen, for a menu when it is about to open.
    std::function<void()> OnClick;
    bool PersonClicks();

private:
    std::string image_;
    std::string shortcut_;
};

} // namespace gfc::ui
