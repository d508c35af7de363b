#pragma once

// Whether the registers of the station that is open carry what is chosen for its runs. Each gate looks at
// Session.Station.ActiveRunCount runs and says what is missing in a box.
namespace gfc::forms {

struct Program;

// What is chosen: source is the entry of the source list, 0 for a densimeter; below 0, nothing is tested.
struct GateChoices {
    bool AGA7 = false;
    int Source = 0;
};

// The standard with the density source. 0, or the row that failed: 1 and 2 under AGA-7, 3 and 4 under any
// other standard; the even ones with a gas model.
[[nodiscard]] int SourceVerdict(Program& program, const GateChoices& choices);

// A gas composition from outside. 0, or 1 under AGA-7 and 2 under any other standard.
[[nodiscard]] int CompositionVerdict(Program& program, const GateChoices& choices);

// The number of runs itself; outside tells that the gas composition comes from outside.
[[nodiscard]] bool RunsFit(Program& program, const GateChoices& choices, bool outside);

} // namespace gfc::forms
