#include "forms/wizard/SelectRuns.h"

#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "forms/program/Loss.h"
#include "forms/station/IOReports.h"
#include "forms/wizard/WizardFC.h"
#include "project/Requirements.h"

#include <array>

namespace gfc::forms {

namespace {

// The title of the box by the number of runs that fit; the letters differ on purpose.
constexpr std::array<const char*, 5> OverSelectionTitles = {"", "Missing tags", "Missing Tag", "Missing Tags",
                                                            "Missing Tags"};

} // namespace

SelectRuns::SelectRuns(Program& program) : ProgramForm(program, "SelectRuns", "Enable Calculation Runs") {
    Command1.OnClick = [this] { Accept(); };
    Command2.OnClick = [this] { Cancel(); };
    SetDefaultButton(Command1);
}

void SelectRuns::Load() {
    RemoveCloseCommand();
    ClearBoxes();
}

void SelectRuns::Activate() {
    ClearBoxes();
}

void SelectRuns::Unloading() {
    session_.Modules.ClearCounts();
}

void SelectRuns::ClearBoxes() {
    for (int i = 0; i < CheckRun.Size(); ++i)
        CheckRun[i].SetValue(false);
}

int SelectRuns::SetBoxes() const {
    int set = 0;
    for (int i = 0; i < CheckRun.Size(); ++i)
        set += CheckRun[i].Value() ? 1 : 0;
    return set;
}

void SelectRuns::Accept() {
    Command1.SetEnabled(false);
    TakeSelection();
    TryTo();
    Command1.SetEnabled(true);
}

void SelectRuns::TakeSelection() {
    auto& station = session_.Station;
    // The count starts afresh: an earlier configuration of this session has left its own.
    station.ActiveRunCount = SetBoxes();
    for (int i = 0; i < CheckRun.Size(); ++i) {
        const auto run = static_cast<std::size_t>(i);
        station.Run.at(run) = CheckRun[i].Value() ? config::Yes : config::No;
        station.RunList.at(run) = {config::RunSection(i + 1), station.Run.at(run)};
    }
}

void SelectRuns::TryTo() {
    if (session_.Station.ActiveRunCount == 0) {
        program_.Screen.Ask({.Title = "Flow Gas Computer",
                             .Text = "Select at least one Run ",
                             .TheIcon = ui::Icon::Critical});
        return;
    }
    if (!Fits())
        return Refuse();
    Hide();
    program_.Forms.Get<WizardFC>().ShowModal();
}

bool SelectRuns::Fits() const {
    const auto station = CapacityOf(session_);
    const int n = session_.Station.ActiveRunCount;
    if (FlagAGA7)
        return RunCapacity(station, 6 * n, n, 3 * n) && LongCapacity(station, 3 * n);
    return RunCapacity(station, 17 * n, n, 3 * n);
}

void SelectRuns::Refuse() {
    const int fit = MaximumRuns(program_, FlagAGA7, FlagAGA7);
    const bool said = FlagAGA7 && !project::MaximumRunsText(fit).empty();
    // Neither of the two knows why fewer runs than fit, or one where none fits, are refused.
    if (!ReportOverSelection(fit) && !said)
        ReportIOShortage(program_,
                         FlagAGA7 ? project::ShortageKind::AGA7 : project::ShortageKind::AGA3Family);
    session_.Station.ActiveRunCount = 0;
}

bool SelectRuns::ReportOverSelection(int fit) {
    if (fit < 1 || fit > 4 || SetBoxes() <= fit)
        return false;
    program_.Screen.Ask(
        {.Title = OverSelectionTitles.at(static_cast<std::size_t>(fit)), .Text = "Unselect Runs"});
    return true;
}

void SelectRuns::Cancel() {
    if (!MayLose(program_, "Gas flow Computer",
                 "Are you sure do you want to cancel the configuration process?"))
        return;
    // The command has preset the wizard; kept loaded, it would show this station's modules for the next one.
    program_.Forms.Unload<WizardFC>();
    Unload();
}

} // namespace gfc::forms
