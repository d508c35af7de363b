#pragma once

#include "support/Room.h"

#include <optional>
#include <string>

// What runs need of a station's registers, and what is said where it lacks them, written out a second time.
// Rooms are those of a station with one working module of each kind, where every count is looked at.
namespace gfc::test::sweep {

// Of one run. Longs of 0: they are not looked at.
[[nodiscard]] Room SourceNeed(int standard, int source);
// Of one run with a chromatograph; nothing where none is tested.
[[nodiscard]] std::optional<Room> CompositionNeed(int standard, int source);
[[nodiscard]] Room Times(const Room& need, int runs);
[[nodiscard]] bool Fits(const Room& room, const Room& need);

// 0 to 4, and the box that says so; empty for 0.
[[nodiscard]] int MostRuns(const Room& room, bool isAGA7);
[[nodiscard]] std::string MostRunsText(int runs);
[[nodiscard]] std::string ShortageTitle(bool isAGA7);
[[nodiscard]] std::string ShortageText(bool isAGA7, int runs);

} // namespace gfc::test::sweep
