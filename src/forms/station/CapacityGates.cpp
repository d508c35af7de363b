#include "forms/station/CapacityGates.h"

#include "forms/program/Program.h"
#include "forms/station/IOReports.h"
#include "project/RunNeeds.h"

namespace gfc::forms {

namespace {

using project::ShortageKind;

// The verdict, after the message of the shortage where it is one.
int Judge(Program& program, const project::RunNeed* need) {
    if (need == nullptr || Fits(CapacityOf(program.Session), *need, program.Session.Station.ActiveRunCount))
        return 0;
    ReportIOShortage(program, need->AGA7 ? ShortageKind::AGA7 : ShortageKind::AGA3Family);
    return need->Verdict;
}

} // namespace

int SourceVerdict(Program& program, const GateChoices& choices) {
    return Judge(program, project::NeedOfSource(choices.AGA7, choices.Source));
}

int CompositionVerdict(Program& program, const GateChoices& choices) {
    return Judge(program, project::NeedOfComposition(choices.AGA7, choices.Source));
}

bool RunsFit(Program& program, const GateChoices& choices, bool outside) {
    const bool fromOutside = outside && choices.Source > 0;
    const auto needOf = fromOutside ? project::NeedOfRunsFromOutside : project::NeedOfSource;
    return Judge(program, needOf(choices.AGA7, choices.Source)) == 0;
}

} // namespace gfc::forms
