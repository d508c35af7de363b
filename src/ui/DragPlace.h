#pragma once

#include "ui/Control.h"

namespace gfc::ui {

// A list or a tree between which and others of its form a person drags what is selected. Rows and nodes are
// counted from 1; 0 is beside them all.
class DragPlace : public Control {
public:
    using Control::Control;

    // What would be dragged, in words; empty where that is nothing.
    std::function<std::string()> Dragged;
    // Onto what it would fall, in words; empty where it may not.
    std::function<std::string(const DragPlace& from, int item)> DropsOn;
    // The button is still down when this runs: no box may be opened by it.
    std::function<void(const DragPlace& from, int item)> OnDrop;

    // Empty, too, where a person can do nothing.
    [[nodiscard]] std::string WhatToDrag() const;
    [[nodiscard]] std::string WhereToDrop(const DragPlace& from, int item) const;
    bool PersonDrops(const DragPlace& from, int item);
};

} // namespace gfc::ui
