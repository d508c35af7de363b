#pragma once

#include "forms/program/Session.h"
#include "project/Requirements.h"

// The boxes that say what a station's registers can carry.
namespace gfc::forms {

struct Program;

// Where the help tells of the minimum I/O.
inline constexpr int MinimumIOContext = 7300;

// What the capacity tests look at: the station that was opened last.
[[nodiscard]] project::StationCapacity CapacityOf(const Session& session);

// Lists the minimum I/O for Session.Station.ActiveRunCount runs.
void ReportIOShortage(Program& program, project::ShortageKind kind);

// How many runs the station carries, 0 to 4; if show is set, a box says so for 1 to 4.
int MaximumRuns(Program& program, bool isAGA7, bool show);

} // namespace gfc::forms
