#include "forms/station/CapacityGates.h"

#include "forms/program/Program.h"
#include "forms/station/IOReports.h"
#include "project/Requirements.h"

#include <array>
#include <span>

namespace gfc::forms {

namespace {

using project::ShortageKind;

// Registers that one run needs. Rows are tried in order; the first whose standard and source match decides.
struct Need {
    bool AGA7;
    int FirstSource; // entries of the source list
    int LastSource;
    int Floats;
    int Analogs;
    int Digitals;
    int Verdict; // on failure
};

// clang-format off
constexpr std::array<Need, 4> SourceNeeds = {{
    // AGA-7  sources  float analog digital  verdict
    {true,    0, 0,     6,   1,     3,       1},
    {true,    1, 4,    11,   2,     3,       2},
    {false,   0, 0,    17,   1,     3,       3},
    {false,   1, 4,    23,   2,     3,       4},
}};

// The two sources of ISO 12213 have no row: with them nothing is tested.
constexpr std::array<Need, 4> CompositionNeeds = {{
    {true,    1, 1,    32,   2,     4,       1},
    {false,   1, 1,    44,   2,     4,       2},
    {true,    2, 2,    15,   2,     4,       1},
    {false,   2, 2,    27,   2,     4,       2},
}};

// Where the runs themselves are counted, every gas model deliberately asks for what the largest one needs.
constexpr std::array<Need, 2> RunsFromOutsideNeeds = {{
    {true,    1, 4,    32,   2,     4,       1},
    {false,   1, 4,    44,   2,     4,       2},
}};
// clang-format on

const Need* NeedOf(std::span<const Need> needs, const GateChoices& choices) {
    for (const auto& need : needs)
        if (need.AGA7 == choices.AGA7 && choices.Source >= need.FirstSource &&
            choices.Source <= need.LastSource)
            return &need;
    return nullptr;
}

// The verdict, after the message of the shortage where it is one.
int Judge(Program& program, const Need* need) {
    if (need == nullptr)
        return 0;
    const auto station = CapacityOf(program.Session);
    const int n = program.Session.Station.ActiveRunCount;
    const bool fits = RunCapacity(station, need->Floats * n, need->Analogs * n, need->Digitals * n) &&
                      (!need->AGA7 || LongCapacity(station, n));
    if (fits)
        return 0;
    ReportIOShortage(program, need->AGA7 ? ShortageKind::AGA7 : ShortageKind::AGA3Family);
    return need->Verdict;
}

} // namespace

int SourceVerdict(Program& program, const GateChoices& choices) {
    return Judge(program, NeedOf(SourceNeeds, choices));
}

int CompositionVerdict(Program& program, const GateChoices& choices) {
    return Judge(program, NeedOf(CompositionNeeds, choices));
}

bool RunsFit(Program& program, const GateChoices& choices, bool outside) {
    const bool fromOutside = outside && choices.Source > 0;
    const auto needs = fromOutside ? std::span<const Need>(RunsFromOutsideNeeds) : SourceNeeds;
    return Judge(program, NeedOf(needs, choices)) == 0;
}

} // namespace gfc::forms
