#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

struct CancelOf {
    std::string Form;
    std::string Button;
    std::string Title;
    std::string Text;
    Icon TheIcon;
};

const CancelOf mechanics{"FrParMec", "cmdCancel", "Close mechanical parameters",
                         "Are you sure want to discard the changes made to the current configuration ?",
                         Icon::None};
const CancelOf accelabar{"FrAccelabar", "Command2", "Close mechanical parameters",
                         "Are you sure want to discard the changes made to the current configuration ?",
                         Icon::None};
const CancelOf tags{"TagRuns", "Command2", "Gas Flow Computer",
                    "Are you sure you want to discard the changes made to the current configuration?",
                    Icon::Question};
const CancelOf composition{"MDetail", "Command3", "Orm Gas Flow Computer",
                           "Are you sure  you to want to cancel?. All changes will be lost", Icon::None};
const CancelOf properties{"frSGERG88", "Command2", "Gas Flow Computer",
                          "Are you sure  you to want to cancel?. All changes will be lost", Icon::None};

void Cancel(Story& story, const CancelOf& window) {
    story.Click(window.Form, window.Button)
        .Box(window.Title, window.Text, window.TheIcon, Answer::No)
        .SeeShown(window.Form)
        .Click(window.Form, window.Button)
        .Box(window.Title, window.Text, window.TheIcon, Answer::Yes);
}

// Goes through the pass for run 3 until the window-th dialog (from 1) is open, cancels it, and then takes the
// same station through a whole pass: what the cancelled one used must be free again.
Scenario CancelAt(const std::string& name, const moves::Choices& choices, int window,
                  const CancelOf& cancel) {
    return {name, moves::ThreeStations,
            [=](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {3});
                moves::WalkPages(story, choices);
                moves::PassUntil(story, choices, 3, window);
                Cancel(story, cancel);
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
            [](FakeProgram& program) { EXPECT_TRUE(program.Files.Content.empty()); }};
}

} // namespace

std::vector<Scenario> CancelScenarios() {
    const moves::Choices detail{.Source = 1, .GageExternal = true};
    const moves::Choices gross{.Standard = 1, .Source = 2};
    const moves::Choices chromatograph{.Source = 1, .Chromatograph = true};
    return {
        CancelOfRunSelection(),
        CancelAt("cancel_at_the_common_inputs", detail, 1, tags),
        CancelAt("cancel_at_the_mechanical_parameters", detail, 2, mechanics),
        CancelAt("cancel_at_the_run_inputs", detail, 3, tags),
        CancelAt("cancel_at_the_run_outputs", detail, 4, tags),
        CancelAt("cancel_at_the_gas_composition", detail, 5, composition),
        CancelAt("cancel_at_the_gas_outputs", detail, 6, tags),
        CancelAt("cancel_at_the_measured_composition", chromatograph, 4, tags),
        CancelAt("cancel_at_the_gas_properties", gross, 3, properties),
        CancelAt("cancel_at_the_accelabar_parameters", {.Standard = 2}, 1, accelabar),
    };
}

} // namespace gfc::test
