#pragma once

#include "plan/Columns.h"
#include "plan/Sheet.h"

#include <map>
#include <string>
#include <vector>

// What a plan says of each station, before anything is known of the stations.
namespace gfc::plan {

struct Said {
    int Row = 0;
    std::string Text;
};

using Cells = std::map<const Column*, Said>;

struct RunWish {
    int Run = 0; // 1 to 5
    int Row = 0;
    Cells Own;
};

struct StationWish {
    std::string Station;
    int Row = 0; // the first one
    Cells Common;
    std::vector<RunWish> Runs; // ascending

    // Empty where nothing was said.
    [[nodiscard]] std::string TextOf(std::string_view key) const;
};

// The rows of a station may say different things of different runs, but what its runs share only once, or the
// same each time. An unknown title, a station twice in one run, and whatever else makes no sense is a fault.
[[nodiscard]] std::vector<StationWish> WishesIn(const Sheet& sheet, Faults& faults);

} // namespace gfc::plan
