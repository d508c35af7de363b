#include "forms/station/IOReports.h"

#include "forms/program/HelpFile.h"
#include "forms/program/Program.h"

#include <algorithm>

namespace gfc::forms {

project::StationCapacity CapacityOf(const Session& session) {
    return {session.Inventory, session.Modules};
}

void ReportIOShortage(Program& program, project::ShortageKind kind) {
    program.Screen.Ask(
        {.Title = project::IOShortageTitle(kind),
         // Before any run is chosen the needs are those of one run.
         .Text = project::IOShortageText(kind, std::max(1, program.Session.Station.ActiveRunCount)),
         .TheIcon = ui::Icon::Exclamation,
         .HelpContext = MinimumIOContext,
         .HelpFile = HelpFile});
}

int MaximumRuns(Program& program, bool isAGA7, bool show) {
    const int runs = project::MaximumRuns(CapacityOf(program.Session), isAGA7);
    const std::string text = project::MaximumRunsText(runs);
    if (show && !text.empty())
        program.Screen.Ask({.Title = "Gas Flow Computer",
                            .Text = text,
                            .TheIcon = ui::Icon::Information,
                            .HelpContext = MinimumIOContext,
                            .HelpFile = HelpFile});
    return runs;
}

} // namespace gfc::forms
