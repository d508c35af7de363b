#include "ui/Menu.h"

namespace gfc::ui {

void MenuEntry::SetImage(std::string image) {
    if (image == image_)
        return;
    image_ = std::move(image);
    Changed();
}

void MenuEntry::SetShortcut(std::string shortcut) {
    shortcut_ = std::move(shortcut);
    Changed();
}

bool MenuEntry::PersonClicks() {
    if (IsSeparator() || !PersonActs())
        return false;
    Fire(OnClick);
    return true;
}

} // namespace gfc::ui
