#include "ui/DragPlace.h"

namespace gfc::ui {

std::string DragPlace::WhatToDrag() const {
    return Dragged && Usable() ? Dragged() : std::string();
}

std::string DragPlace::WhereToDrop(const DragPlace& from, int item) const {
    return DropsOn && Usable() && !from.WhatToDrag().empty() ? DropsOn(from, item) : std::string();
}

bool DragPlace::PersonDrops(const DragPlace& from, int item) {
    if (WhereToDrop(from, item).empty() || !PersonActs())
        return false;
    Fire([this, &from, item] {
        if (OnDrop)
            OnDrop(from, item);
    });
    return true;
}

} // namespace gfc::ui
