#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/ProjectFiles.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string runs = "TagRuns";
const std::string root = "AGA 3 Inputs\\";

void SelectVariable(Story& story, const std::string& path) {
    story.ClickNode(runs, "TreeAGA", path);
}

void SeeImage(Story& story, const std::string& path, const std::string& image) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.NodeImage(runs, "TreeAGA", path), image) << path; });
}

void SeeRow(Story& story, const std::string& list, int row, const std::string& name) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.Cell(runs, list, row, 1), name) << list << " row " << row; });
}

void SeeRows(Story& story, const std::string& list, int count) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.Rows(runs, list), count) << list; });
}

void CancelTagRuns(Story& story) {
    story.Click(runs, "Command2")
        .Box("Gas Flow Computer",
             "Are you sure you want to discard the changes made to the current configuration?",
             Icon::Question, Answer::Yes)
        .SeeShown("GFCPrincipal");
    moves::Exit(story);
}

// The input stage of run 1 of an AGA-3 station with densimeter, left by Cancel.
Scenario InInputStage(const std::string& name, const moves::Choices& choices,
                      std::function<void(Story&)> acts) {
    return {name, moves::ThreeStations,
            [choices, acts = std::move(acts)](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, choices);
                if (choices.Standard != 1) {
                    story.Click("Step", "Command1");
                    moves::AcceptEditor(story, "FrParMec");
                }
                story.Click("Step", "Command1").SeeShown(runs);
                acts(story);
                CancelTagRuns(story);
            },
            [](FakeProgram& program) {
                EXPECT_TRUE(ProjectFiles(program.Files).empty());
                EXPECT_EQ(program.Session.Station.ActiveRunCount, 0);
            }};
}

void AssignByHandAndUndo(Story& story) {
    story.SeeCaption(runs, "Configuring the AGA-3 Input Tags for Run 1");
    SeeRows(story, "ListViewRuns", 300);
    SelectVariable(story, root + "Density");
    story.ClickRow(runs, "ListViewRuns", 3).Click(runs, "Command1");
    SeeImage(story, root + "Density", "Config");
    SeeRows(story, "ListViewRuns", 299);
    SeeRow(story, "ListViewRuns", 3, "FT-4");
    // The row below the one used is taken next, without a click on it.
    SelectVariable(story, root + "Temperature");
    story.Click(runs, "Command1");
    SeeImage(story, root + "Temperature\\Name\\FT-4", "Tag2");
    story.Click(runs, "Command1").Box("Tags Configuration", "I/O tag already assigned", Icon::Information);
    story.Click(runs, "Command4");
    SeeImage(story, root + "Temperature", "NoConfig");
    SeeRow(story, "ListViewRuns", 299, "FT-4");
    story.Click(runs, "Command4")
        .Box("Error undo Tag", "Can´t undo. No I/O assignments has been made for this variable",
             Icon::Exclamation);
    SelectVariable(story, "AGA 3 Inputs");
    story.Click(runs, "Command1").Click(runs, "Command4");
}

void UndoAllBringsTheStageBack(Story& story) {
    story.Type(runs, "Text1", "2.5");
    SelectVariable(story, root + "Density");
    story.Click(runs, "Command1");
    story.Menu(runs, "borrartodo");
    SeeImage(story, root + "Density", "NoConfig");
    SeeRows(story, "ListViewRuns", 300);
    SeeRow(story, "ListViewRuns", 1, "FT-1");
    story.SeeText(runs, "Text1", "1.0");
}

void ContinueTestsBeforeItWrites(Story& story) {
    story.Click(runs, "Command5")
        .Box("Missing parameter...",
             "Error: No gas standard density has been configured. Please enter a value.", Icon::Exclamation)
        .Type(runs, "phostd", "0.7")
        .Click(runs, "Command5")
        .Box("Tags Configuration", "Can`t save. Please complete I/O assignments", Icon::Information)
        .SeeShown(runs);
}

void AutoAssignRefusals(Story& story) {
    const std::string automatic = "Automatic Tags assignments";
    const std::string announcement = "All variables will be assigned to tags automatically";
    story.ClickRow(runs, "ListViewRuns", 298)
        .Click(runs, "Command6")
        .Box(automatic, announcement, Icon::Information)
        .Box("Tag Auto-assignments...",
             "There must be at least:\r\n4 consecutive float    tags\r\n3 consecutive discrete tags\r\n",
             Icon::Exclamation);
    SeeImage(story, root + "Density", "NoConfig");
    SelectVariable(story, root + "Density");
    story.Click(runs, "Command1")
        .Menu(runs, "AutoAsociar")
        .Box(automatic, announcement, Icon::Information)
        .Box("Tags configuration",
             "In order to use the auto assign function, no tags should be already assigned. Please use Undo "
             "All first.",
             Icon::Information)
        .Click(runs, "Command3")
        .ClickRow(runs, "ListViewRuns", 2)
        .Click(runs, "Command6")
        .Box(automatic, announcement, Icon::Information);
    SeeImage(story, root + "Density\\Name\\FT-2", "Tag2");
    SeeImage(story, root + "Differential Pressure\\Name\\FT-5", "Tag2");
    SeeImage(story, root + "Reset\\Name\\XS-3", "Tag2");
    SeeRow(story, "ListViewRuns", 2, "FT-6");
    SeeRows(story, "ListAnalogDig", 77);
}

void LongTagsStayOnOffer(Story& story) {
    SeeRows(story, "ListLong", 10);
    story.Type(runs, "phostd", "0.7");
    moves::AutoBind(story);
    story.Click("Step", "Command1");
    moves::AutoBind(story);
    story.Click("Step", "Command1").SeeCaption(runs, "Configuring the AGA-7 Input Tags for Run 2");
    SeeRows(story, "ListLong", 10);
    SeeRow(story, "ListLong", 1, "PI-1");
    SeeRow(story, "ListViewRuns", 1, "FT-6");
}

void CancelAnsweredNoLeavesEverything(Story& story) {
    SelectVariable(story, root + "Density");
    story.Click(runs, "Command1").Click(runs, "Command2");
    story.Box("Gas Flow Computer",
              "Are you sure you want to discard the changes made to the current configuration?",
              Icon::Question, Answer::No);
    SeeImage(story, root + "Density", "Config");
    story.PressKey(runs, "Escape").CloseWindow(runs).SeeShown(runs);
}

// Two runs with a chromatograph; the second run's composition is copied from the first one's.
Scenario CopyOfAComposition() {
    return {"composition_tags_are_copied_from_another_run", moves::ThreeStations,
            [](Story& story) {
                const std::string inputs = "AGA 8 Inputs\\";
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, {.Standard = 1, .Source = 1, .Chromatograph = true});
                for (int stage = 0; stage < 6; ++stage) {
                    story.Click("Step", "Command1");
                    moves::AutoBind(story);
                }
                story.Click("Step", "Command1")
                    .SeeEnabled(runs, "Command1", false)
                    .SeeVisible(runs, "Option1_0")
                    .SeeVisible(runs, "Option1_1", false)
                    .Click(runs, "CopyGasCompButton")
                    .Box("Copy Tag assignments",
                         "Error: Can't copy tag assignments, no source Run selected. Please select a Run to "
                         "copy from.",
                         Icon::Exclamation)
                    .Click(runs, "Option1_0")
                    .Click(runs, "CopyGasCompButton");
                SeeImage(story, inputs + "Methane", "Config");
                SeeImage(story, inputs + "Enable", "Config");
                story.Click(runs, "CopyGasCompButton")
                    .Box("Tags configuration",
                         "In order to use the auto assign function, no tags should be already assigned. "
                         "Please use "
                         "Undo All first.",
                         Icon::Information)
                    .Click(runs, "Command5")
                    .Click("Step", "Command1");
                moves::AutoBind(story);
                moves::SaveAndClose(story);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                const auto& ini = program.Program.Ini;
                const std::string file = program.ConfigFile("North");
                const std::string methane = ini.ReadKey("Run1", "GC_C1KDIOTag", file);
                EXPECT_FALSE(methane.empty());
                EXPECT_EQ(ini.ReadKey("Run2", "GC_C1KDIOTag", file), methane);
                EXPECT_EQ(ini.ReadKey("Run2", "GCEnableKDIORegAddr", file),
                          ini.ReadKey("Run1", "GCEnableKDIORegAddr", file));
            }};
}

} // namespace

std::vector<Scenario> BindingScenarios() {
    const moves::Choices aga3;
    const moves::Choices aga7{.Standard = 1};
    return {
        InInputStage("tags_are_assigned_by_hand_and_undone", aga3, AssignByHandAndUndo),
        InInputStage("undo_all_brings_the_stage_back", aga3, UndoAllBringsTheStageBack),
        InInputStage("continue_tests_before_it_writes", aga3, ContinueTestsBeforeItWrites),
        InInputStage("automatic_assignment_refuses_and_succeeds", aga3, AutoAssignRefusals),
        InInputStage("long_tags_stay_on_offer_for_the_next_run", aga7, LongTagsStayOnOffer),
        InInputStage("cancel_answered_no_leaves_everything", aga3, CancelAnsweredNoLeavesEverything),
        CopyOfAComposition(),
    };
}

} // namespace gfc::test
