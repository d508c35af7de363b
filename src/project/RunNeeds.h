#pragma once

#include "project/Requirements.h"

// How many registers one run needs under the choices of its station.
namespace gfc::project {

// Rows are tried in order; the first whose standard and source match decides.
struct RunNeed {
    bool AGA7;
    int FirstSource; // entries of the source list
    int LastSource;
    int Floats;
    int Analogs;
    int Digitals;
    int Verdict; // of the gate, on failure
};

// source is an entry of the source list. Null where no row applies, and nothing is tested then.
[[nodiscard]] const RunNeed* NeedOfSource(bool isAGA7, int source);
// With a gas composition from outside.
[[nodiscard]] const RunNeed* NeedOfComposition(bool isAGA7, int source);
// The same where the runs themselves are counted.
[[nodiscard]] const RunNeed* NeedOfRunsFromOutside(bool isAGA7, int source);

[[nodiscard]] bool Fits(const StationCapacity& station, const RunNeed& need, int runs);

} // namespace gfc::project
