#pragma once

#include "support/Fakes.h"

#include <algorithm>
#include <string>

namespace gfc::test {

// Registers that are free once the working modules are set aside.
struct Room {
    int Floats = 0;
    int Analogs = 0;
    int Digitals = 0;
    int Longs = 0;
};

// A station with one working module of each kind, so that every count is looked at.
[[nodiscard]] inline project::TagList TagsOf(const Room& room) {
    project::TagList tags = TagsInModule("VL0", "Virtual LI", "LX", "LLOG-", 8, 1);
    // Modules too small to be candidates themselves.
    for (int left = room.Longs, at = 0; left > 0; left -= 7, ++at)
        tags += TagsInModule("VL-" + std::to_string(at), "Virtual LI", "LX", "L" + std::to_string(at) + "-",
                             std::min(left, 7), 101 + 7 * at);
    tags += TagsInModule("VA0", "Virtual AI", "AX", "ALOG-", 32, 1);
    tags += TagsInModule("AI-8", "Physical AI", "AX", "AI-", room.Analogs, 201);
    tags += TagsInModule("VF0", "Virtual FI", "FX", "FLOG-", 128, 1);
    for (int left = room.Floats, at = 0; left > 0; left -= 127, ++at)
        tags += TagsInModule("VF-" + std::to_string(at), "Virtual FI", "FX", "F" + std::to_string(at) + "-",
                             std::min(left, 127), 1001 + 127 * at);
    tags += TagsInModule("DI-16", "Physical DI", "X", "XS-", room.Digitals, 401);
    return tags;
}

} // namespace gfc::test
