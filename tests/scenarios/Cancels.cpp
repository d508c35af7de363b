#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/ProjectFiles.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

// Goes through the pass for run 3 until the window-th dialog (from 1) is open, cancels it, and then takes the
// same station through a whole pass: what the cancelled one used must be free again.
Scenario CancelAt(const std::string& name, const moves::Choices& choices, int window,
                  const std::string& form) {
    return {name, moves::ThreeStations,
            [=](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {3});
                moves::WalkPages(story, choices);
                moves::PassUntil(story, choices, 3, window);
                moves::CancelWindow(story, form);
                story.SeeShown("GFCPrincipal").SeeShown("WizardFC", false).SeeShown("Step", false);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1});
                moves::WalkPages(story, choices);
                moves::PassAllRuns(story, choices, {1});
                moves::SaveAndClose(story);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                const std::string file = program.ConfigFile("North");
                EXPECT_EQ(program.Program.Ini.ReadKey("FlowRuns", "Run1", file), "Yes");
                EXPECT_EQ(program.Program.Ini.ReadKey("FlowRuns", "Run3", file), "No");
                EXPECT_FALSE(program.Files.Content.at(file).find("[Run3]") != std::string::npos);
                EXPECT_EQ(program.Program.Ini.ReadKey("Run1", "StdVolFlowKDIORegAddr", file).substr(0, 2),
                          "10");
            }};
}

Scenario CancelOfRunSelection() {
    return {"cancel_of_the_run_selection", moves::ThreeStations,
            [](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                const std::string question = "Are you sure do you want to cancel the configuration process?";
                story.Click("SelectRuns", "Command1")
                    .Box("Flow Gas Computer", "Select at least one Run ", Icon::Critical)
                    .Click("SelectRuns", "Command2")
                    .Box("Gas flow Computer", question, Icon::None, Answer::No)
                    .SeeShown("SelectRuns")
                    .Click("SelectRuns", "Command2")
                    .Box("Gas flow Computer", question, Icon::None, Answer::Yes)
                    .SeeShown("SelectRuns", false);
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(ProjectFiles(program.Files).empty()); }};
}

void SeeRows(Story& story, const std::string& list, int count) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.Rows("TagRuns", list), count) << list; });
}

// The dialogs of a run with a gas composition entered by hand, up to the outputs of the flow calculation.
void UpToTheOutputs(Story& story) {
    story.Click("Step", "Command1");
    moves::AcceptEditor(story, "FrParMec");
    story.Click("Step", "Command1");
    moves::AutoBind(story);
    story.Click("Step", "Command1");
}

void WholeFirstRun(Story& story) {
    UpToTheOutputs(story);
    moves::AutoBind(story);
    story.Click("Step", "Command1");
    moves::AcceptEditor(story, "MDetail");
    story.Click("Step", "Command1");
    moves::AutoBind(story);
}

// What the first run took and gave must not shine through when the same station is begun again.
void SeeNothingLeft(Story& story) {
    story.Click("Step", "Command1")
        .SeeText("FrParMec", "txtDiaPipe", "2.90039")
        .Click("FrParMec", "Check1")
        .SeeEnabled("FrParMec", "Option1_0", false)
        .SeeEnabled("FrParMec", "Option1_1", false)
        .Click("FrParMec", "cmdAceptar")
        .Click("Step", "Command1");
    SeeRows(story, "ListViewRuns", 300);
    SeeRows(story, "ListAnalogDig", 80);
    story.Check([](Driver& d) {
        EXPECT_EQ(d.NodeImage("TagRuns", "TreeAGA", "AGA 3 Inputs\\Temperature"), "NoConfig");
    });
    moves::AutoBind(story);
    story.Click("Step", "Command1");
    SeeRows(story, "ListAnalogDig", 40);
    moves::AutoBind(story);
    story.Click("Step", "Command1")
        .SeeText("MDetail", "Text10", "0.965222")
        .SeeEnabled("MDetail", "CopyGasCompButton", false)
        .Click("MDetail", "Command1")
        .Click("Step", "Command1");
    moves::CancelWindow(story, "TagRuns");
}

Scenario CancelledInTheSecondRun() {
    return {"cancel_in_the_second_run_leaves_nothing_of_the_first", moves::ThreeStations,
            [](Story& story) {
                const moves::Choices choices{.Source = 1};
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, choices);
                WholeFirstRun(story);
                UpToTheOutputs(story);
                moves::CancelWindow(story, "TagRuns");
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, choices);
                SeeNothingLeft(story);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_TRUE(ProjectFiles(program.Files).empty());
                EXPECT_EQ(program.Session.Station.ActiveRunCount, 0);
                EXPECT_TRUE(program.Session.Inventory.AvailFloat.empty());
                EXPECT_TRUE(program.Session.Station.Runs.IO.empty());
            }};
}

Scenario CancelledOnTheClosingPage() {
    return {"cancel_on_the_closing_page_writes_nothing", moves::ThreeStations,
            [](Story& story) {
                const moves::Choices choices{.Standard = 1};
                const std::string question = "Do you want to quit the configuration wizard ?";
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1});
                moves::WalkPages(story, choices);
                moves::PassAllRuns(story, choices, {1});
                story.SeeText("WizardFC", "Label19", "Configuration Finished !")
                    .SelectTab("WizardFC", "wizard", 1)
                    .Check([](Driver& d) { EXPECT_EQ(d.Tab("WizardFC", "wizard"), 4); })
                    .SeeEnabled("WizardFC", "Command1")
                    .Click("WizardFC", "cancelar")
                    .Box("Gas Flow Computer", question, Icon::None, Answer::No)
                    .SeeShown("WizardFC")
                    .Click("WizardFC", "cancelar")
                    .Box("Gas Flow Computer", question, Icon::None, Answer::Yes)
                    .SeeShown("WizardFC", false)
                    .SeeShown("GFCPrincipal");
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(ProjectFiles(program.Files).empty()); }};
}

// What the pass has behind it, and what was bound in the window that was cancelled, is there again; the draft
// goes with the file.
Scenario CancelledAndGoneOnWith() {
    return {"a_cancelled_pass_goes_on_from_its_draft", moves::ThreeStations,
            [](Story& story) {
                const moves::Choices choices{.Source = 1};
                const std::string drafts = "FrDrafts";
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {3});
                moves::WalkPages(story, choices);
                moves::PassUntil(story, choices, 3, 3);
                story.ClickNode("TagRuns", "TreeAGA", "AGA 3 Outputs\\Mass Flow")
                    .ClickRow("TagRuns", "ListViewRuns", 5)
                    .Click("TagRuns", "Command1");
                moves::CancelWindow(story, "TagRuns");
                story.Menu("GFCPrincipal", "drafts")
                    .SeeText(drafts, "Label1", "1 draft")
                    .SeeText(drafts, "Combo1", "North")
                    .OpenRow(drafts, "ListView1", 1);
                moves::Continue(story, "Run 3 flow calculation output tag assignments", "Step 3 of 5");
                story.Click("TagRuns", "Command6")
                    .Box("Automatic Tags assignments", "", Icon::Information)
                    .Box("Tags configuration", "", Icon::Information)
                    .Click("TagRuns", "Command3");
                moves::AutoBind(story);
                story.Click("Step", "Command1").Click("MDetail", "Command1").Click("Step", "Command1");
                moves::AutoBind(story);
                moves::SaveAndClose(story);
                story.Menu("GFCPrincipal", "drafts")
                    .SeeEnabled(drafts, "Command3", false)
                    .Click(drafts, "Command4");
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                const std::string file = program.ConfigFile("North");
                EXPECT_EQ(program.Program.Ini.ReadKey("FlowRuns", "Run3", file), "Yes");
                EXPECT_NE(program.Program.Ini.ReadKey("Run3", "AGA8StatusKDIORegAddr", file), "");
                EXPECT_EQ(program.Files.Content.size(), 1U) << "the draft has gone";
            }};
}

} // namespace

std::vector<Scenario> CancelScenarios() {
    const moves::Choices detail{.Source = 1, .GageExternal = true};
    const moves::Choices gross{.Standard = 1, .Source = 2};
    const moves::Choices chromatograph{.Source = 1, .Chromatograph = true};
    return {
        CancelOfRunSelection(),
        CancelledInTheSecondRun(),
        CancelledOnTheClosingPage(),
        CancelledAndGoneOnWith(),
        CancelAt("cancel_at_the_common_inputs", detail, 1, "TagRuns"),
        CancelAt("cancel_at_the_mechanical_parameters", detail, 2, "FrParMec"),
        CancelAt("cancel_at_the_run_inputs", detail, 3, "TagRuns"),
        CancelAt("cancel_at_the_run_outputs", detail, 4, "TagRuns"),
        CancelAt("cancel_at_the_gas_composition", detail, 5, "MDetail"),
        CancelAt("cancel_at_the_gas_outputs", detail, 6, "TagRuns"),
        CancelAt("cancel_at_the_measured_composition", chromatograph, 4, "TagRuns"),
        CancelAt("cancel_at_the_gas_properties", gross, 3, "frSGERG88"),
        CancelAt("cancel_at_the_accelabar_parameters", {.Standard = 2}, 1, "FrAccelabar"),
    };
}

} // namespace gfc::test
