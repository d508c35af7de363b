#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/ProjectFiles.h"
#include "support/Room.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using project::ShortageKind;
using ui::Answer;
using ui::Icon;

const std::string selection = "SelectRuns";
const std::string wizard = "WizardFC";

constexpr int aga3 = 0;
constexpr int aga7 = 1;
constexpr int densimeter = 0;

void Tick(Story& story, const std::vector<int>& runs) {
    for (const int run : runs)
        story.Click(selection, "CheckRun_" + std::to_string(run - 1));
}

void SayMaximum(Story& story, const std::string& runs) {
    story.Box("Gas Flow Computer", "Only " + runs + " can be configured", Icon::Information);
}

void CancelSelection(Story& story) {
    story.Click(selection, "Command2")
        .Box("Gas flow Computer", "Are you sure do you want to cancel the configuration process?", Icon::None,
             Answer::Yes)
        .SeeShown(selection, false);
}

void QuitWizard(Story& story) {
    story.Click(wizard, "cancelar")
        .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", Icon::None, Answer::Yes)
        .SeeShown(wizard, false);
}

// The wizard's command on a station of that room, from the start of the program to its end.
Scenario OnStation(
    const std::string& name, const Room& room, std::function<void(Story&)> acts,
    std::function<void(FakeProgram&)> after = [](FakeProgram& program) {
        EXPECT_TRUE(ProjectFiles(program.Files).empty());
        EXPECT_EQ(program.Session.Station.ActiveRunCount, 0);
    }) {
    return {name, [room](FakeProgram& program) { program.AddStation("North", TagsOf(room)); },
            [acts = std::move(acts)](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                acts(story);
                moves::Exit(story);
            },
            std::move(after)};
}

// Under which title a selection of one run too many is refused, and that the boxes stay as they were.
Scenario OverSelected(const std::string& name, int floats, const std::string& maximum, int runs,
                      const std::string& title) {
    return OnStation(name, {floats, 4, 40, 0}, [=](Story& story) {
        SayMaximum(story, maximum);
        for (int run = 1; run <= runs; ++run)
            Tick(story, {run});
        story.Click(selection, "Command1")
            .Box(title, "Unselect Runs", Icon::None)
            .SeeShown(selection)
            .SeeChecked(selection, "CheckRun_0")
            .SeeEnabled(selection, "Command1");
        CancelSelection(story);
    });
}

// Three runs are said to fit and do not pass the test all the same; two do.
void SelectUntilItFits(Story& story) {
    SayMaximum(story, "four Runs");
    Tick(story, {1, 2, 3, 4, 5});
    story.Click(selection, "Command1").Box("Missing Tags", "Unselect Runs", Icon::None);
    Tick(story, {1, 3});
    story.Click(selection, "Command1");
    moves::ShortageBox(story, ShortageKind::AGA3Family, 3);
    story.SeeShown(selection).SeeShown(wizard, false);
    Tick(story, {5});
    story.Click(selection, "Command1").SeeShown(wizard);
    QuitWizard(story);
}

// Opens on AGA-7, refuses a second run, takes back what only a larger station carries, and goes through.
void TurbineStation(Story& story) {
    SayMaximum(story, "one Run");
    Tick(story, {2, 4});
    story.Click(selection, "Command1");
    SayMaximum(story, "one Run");
    story.Box("Missing tags", "Unselect Runs", Icon::None);
    Tick(story, {2});
    story.Click(selection, "Command1")
        .SeeText(wizard, "CombStandard", "AGA-7")
        .SeeText(wizard, "cbSourceGas", "Densimeter")
        .Select(wizard, "CombStandard", aga3);
    moves::ShortageBox(story, ShortageKind::AGA3Family, 1);
    story.SeeText(wizard, "CombStandard", "AGA-7").Select(wizard, "cbSourceGas", 4);
    moves::ShortageBox(story, ShortageKind::AGA7, 1);
    story.SeeText(wizard, "cbSourceGas", "Densimeter");
    const moves::Choices choices{.Standard = aga7, .Source = densimeter};
    moves::WalkPages(story, choices);
    moves::PassAllRuns(story, choices, {4});
    moves::SaveAndClose(story);
}

void StandardFallsBackWithoutLongs(Story& story) {
    SayMaximum(story, "two Runs");
    moves::SelectRuns(story, {5});
    story.Select(wizard, "CombUnits", 2).Select(wizard, "CombStandard", aga7);
    moves::ShortageBox(story, ShortageKind::AGA7, 1);
    story.SeeText(wizard, "CombStandard", "AGA-3 1992").SeeText(wizard, "CombUnits", "US");
    story.Select(wizard, "cbSourceGas", 2);
    moves::ShortageBox(story, ShortageKind::AGA3Family, 1);
    story.SeeText(wizard, "cbSourceGas", "Densimeter")
        .SeeText(wizard, "lbStep", "Step 1 of 4")
        .SeeShown(wizard);
    QuitWizard(story);
}

void CompositionFallsBack(Story& story) {
    SayMaximum(story, "four Runs");
    moves::SelectRuns(story, {1});
    story.Select(wizard, "cbSourceGas", 1);
    for (int page = 1; page < 4; ++page)
        story.Click(wizard, "siguiente");
    story.SeeChecked(wizard, "OptComp").Click(wizard, "OptCromatografo");
    moves::ShortageBox(story, ShortageKind::AGA3Family, 1);
    story.SeeChecked(wizard, "OptComp").SeeChecked(wizard, "OptCromatografo", false);
    QuitWizard(story);
}

// The sources of ISO 12213 are not tested for a chromatograph: the tags run out at their binding.
void UntestedCompositionRunsOutOfTags(Story& story) {
    SayMaximum(story, "four Runs");
    moves::SelectRuns(story, {1});
    const moves::Choices choices{.Source = 3, .Chromatograph = true};
    moves::WalkPages(story, choices);
    moves::PassUntil(story, choices, 1, 4);
    story.SeeCaption("TagRuns", "Configuring the AGA-8/ISO-12213-2-1997 Gas Composition Input Tags for Run 1")
        .SeeEnabled("TagRuns", "Command1", false)
        .SeeEnabled("TagRuns", "Command4", false)
        .ClickRow("TagRuns", "ListViewRuns", 8)
        .Click("TagRuns", "Command6")
        .Box("Automatic Tags assignments", "All variables will be assigned to tags automatically",
             Icon::Information)
        .Box("Tag Auto-assignments...",
             "There must be at least:\r\n21 consecutive float    tags\r\n1 consecutive discrete tags\r\n",
             Icon::Exclamation)
        .Click("TagRuns", "Command5")
        .Box("Tags Configuration", "Can´t save. Please complete I/O assignments", Icon::Information)
        .Click("TagRuns", "Command6")
        .Box("Automatic Tags assignments", "", Icon::Information)
        .Check([](Driver& d) { EXPECT_EQ(d.Rows("TagRuns", "ListViewRuns"), 6); })
        .Click("TagRuns", "Command3")
        .Check([](Driver& d) { EXPECT_EQ(d.Rows("TagRuns", "ListViewRuns"), 27); })
        .Click("TagRuns", "Command2")
        .Box("Gas Flow Computer",
             "Are you sure you want to discard the changes made to the current configuration?",
             Icon::Question, Answer::Yes)
        .SeeShown("GFCPrincipal");
}

void CarriesNothing(Story& story) {
    moves::ShortageBox(story, ShortageKind::AGA3Family, 1);
    moves::ShortageBox(story, ShortageKind::AGA7, 1);
    story.SeeShown(selection, false).SeeShown(wizard, false).SeeShown("GFCPrincipal");
}

Scenario StationWithoutTags() {
    return {"wizard_on_a_station_without_tags_says_three_times_what_is_missing", moves::ThreeStations,
            [](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "Empty");
                story.Box("Flow Gas Computer", "Error: There are not Tags in Station", Icon::Critical);
                moves::ShortageBox(story, ShortageKind::AGA3Family, 1);
                moves::ShortageBox(story, ShortageKind::AGA7, 1);
                story.SeeShown("GFCPrincipal").SeeShown(selection, false);
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(ProjectFiles(program.Files).empty()); }};
}

Scenario WizardAnsweredNo() {
    return {"wizard_is_not_opened_where_the_old_configuration_is_to_stay", moves::ThreeStations,
            [](Story& story) {
                moves::StartUp(story);
                story.ClickNode("GFCPrincipal", "TreeGFC", "All Stations")
                    .Menu("GFCPrincipal", "ConfigWiard")
                    .Box("Gas Flow Computer", "Please select a station...", Icon::None)
                    .ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North")
                    .Menu("GFCPrincipal", "ConfigWiard")
                    .Box("Flow Gas Computer",
                         "Creating a new configuration for the station.\r\nThe current configuration will be "
                         "deleted.\r\nProceed?",
                         Icon::None, Answer::No)
                    .SeeShown(selection, false);
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(ProjectFiles(program.Files).empty()); }};
}

} // namespace

std::vector<Scenario> CapacityScenarios() {
    return {
        OverSelected("two_runs_are_said_to_fit_where_three_are_chosen", 17, "two Runs", 3, "Missing Tag"),
        OverSelected("three_runs_are_said_to_fit_where_four_are_chosen", 24, "three Runs", 4, "Missing Tags"),
        OverSelected("four_runs_are_said_to_fit_where_five_are_chosen", 32, "four Runs", 5, "Missing Tags"),
        OnStation("runs_are_unselected_until_they_fit", {34, 4, 40, 0}, SelectUntilItFits),
        OnStation("turbine_station_opens_on_aga7_and_stays_there", {7, 4, 40, 20}, TurbineStation,
                  [](FakeProgram& program) {
                      const auto read = [&](const std::string& section, const std::string& key) {
                          return program.Program.Ini.ReadKey(section, key, program.ConfigFile("North"));
                      };
                      EXPECT_EQ(read("FlowRuns", "FlowAlgorithm"), "AGA7");
                      EXPECT_EQ(read("FlowRuns", "GasDensitySource"), "MEASURED");
                      EXPECT_EQ(read("FlowRuns", "Run4"), "Yes");
                      EXPECT_EQ(read("FlowRuns", "Run2"), "No");
                      EXPECT_EQ(read("Run4", "GasPulseInputKDIOType"), "LX");
                  }),
        OnStation("standard_and_source_fall_back_on_a_small_station", {17, 2, 3, 0},
                  StandardFallsBackWithoutLongs),
        OnStation("composition_falls_back_where_a_chromatograph_does_not_fit", {32, 4, 40, 0},
                  CompositionFallsBack),
        OnStation("untested_composition_runs_out_of_tags", {34, 4, 40, 0}, UntestedCompositionRunsOutOfTags),
        OnStation("station_that_carries_neither_standard_is_refused", {5, 1, 3, 0}, CarriesNothing),
        StationWithoutTags(),
        WizardAnsweredNo(),
    };
}

} // namespace gfc::test
