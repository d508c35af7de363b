#pragma once

#include "forms/program/Program.h"

#include <span>

namespace gfc::forms {

// What the menu Tools offers: one row for each command, in its order.
struct Tool {
    const char* Name; // of the menu's entry
    const char* Caption;
    void (*Command)(Program& program);
};

[[nodiscard]] std::span<const Tool> Tools();

} // namespace gfc::forms
