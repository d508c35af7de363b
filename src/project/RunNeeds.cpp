#include "project/RunNeeds.h"

#include <array>
#include <span>

namespace gfc::project {

namespace {

// clang-format off
constexpr std::array<RunNeed, 4> SourceNeeds = {{
    // AGA-7  sources  float analog digital  verdict
    {true,    0, 0,     6,   1,     3,       1},
    {true,    1, 4,    11,   2,     3,       2},
    {false,   0, 0,    17,   1,     3,       3},
    {false,   1, 4,    23,   2,     3,       4},
}};

// The two sources of ISO 12213 have no row: with them nothing is tested.
constexpr std::array<RunNeed, 4> CompositionNeeds = {{
    {true,    1, 1,    32,   2,     4,       1},
    {false,   1, 1,    44,   2,     4,       2},
    {true,    2, 2,    15,   2,     4,       1},
    {false,   2, 2,    27,   2,     4,       2},
}};

// Where the runs themselves are counted, every gas model deliberately asks for what the largest one needs.
constexpr std::array<RunNeed, 2> RunsFromOutsideNeeds = {{
    {true,    1, 4,    32,   2,     4,       1},
    {false,   1, 4,    44,   2,     4,       2},
}};
// clang-format on

const RunNeed* NeedOf(std::span<const RunNeed> needs, bool isAGA7, int source) {
    for (const RunNeed& need : needs)
        if (need.AGA7 == isAGA7 && source >= need.FirstSource && source <= need.LastSource)
            return &need;
    return nullptr;
}

} // namespace

const RunNeed* NeedOfSource(bool isAGA7, int source) {
    return NeedOf(SourceNeeds, isAGA7, source);
}

const RunNeed* NeedOfComposition(bool isAGA7, int source) {
    return NeedOf(CompositionNeeds, isAGA7, source);
}

const RunNeed* NeedOfRunsFromOutside(bool isAGA7, int source) {
    return NeedOf(RunsFromOutsideNeeds, isAGA7, source);
}

bool Fits(const StationCapacity& station, const RunNeed& need, int runs) {
    return RunCapacity(station, need.Floats * runs, need.Analogs * runs, need.Digitals * runs) &&
           (!need.AGA7 || LongCapacity(station, runs));
}

} // namespace gfc::project
