#include "forms/runs/AddRunStory.h"
#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string window = "GFCPrincipal";
const std::string tree = "TreeGFC";

std::string RunNode(int run) {
    return "All Stations\\North\\Individual Parameters\\Run " + std::to_string(run);
}

void ChooseRun(Story& story, int run, const std::string& command) {
    story.ClickNode(window, tree, RunNode(run)).Menu(window, command);
}

void SeeImage(Story& story, int run, const std::string& image) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.NodeImage(window, tree, RunNode(run)), image); });
}

void Configure(Story& story, const moves::Choices& choices, const std::vector<int>& runs) {
    moves::StartUp(story);
    moves::OpenWizard(story, "North");
    moves::SelectRuns(story, runs);
    moves::WalkPages(story, choices);
    moves::PassAllRuns(story, choices, runs);
    moves::SaveAndClose(story);
}

std::string Flag(FakeProgram& program, const std::string& key) {
    return program.Program.Ini.ReadKey("FlowRuns", key, program.ConfigFile("North"));
}

void Offer(Story& story, Answer answer) {
    story.Box("Configure Run", "The selected run is not configured. Do you want to configure it?",
              Icon::Information, answer);
}

Scenario OffAndOn() {
    return {"a_run_is_turned_off_and_on", moves::ThreeStations,
            [](Story& story) {
                Configure(story, {}, {1, 4});
                ChooseRun(story, 4, "dRun");
                SeeImage(story, 4, "NoRun");
                ChooseRun(story, 4, "dRun");
                story.Box("Run disabled", "The run already selected is disabled", Icon::Information);
                ChooseRun(story, 1, "erun");
                story.Box("Run enabled", "The selected run is enabled already", Icon::Information);
                ChooseRun(story, 4, "erun");
                SeeImage(story, 4, "Run");
                ChooseRun(story, 1, "dRun");
                SeeImage(story, 1, "NoRun");
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_EQ(Flag(program, "Run1"), "No");
                EXPECT_EQ(Flag(program, "Run11"), "Yes");
                EXPECT_EQ(Flag(program, "Run4"), "Yes");
            }};
}

Scenario Added(const std::string& name, const moves::Choices& choices) {
    return {name, moves::ThreeStations,
            [=](Story& story) {
                Configure(story, choices, {1});
                ChooseRun(story, 3, "erun");
                Offer(story, Answer::Yes);
                const AddRunStory adding({choices.Standard, choices.Source, choices.Chromatograph, 3});
                adding.Through(story);
                AddRunStory::Finish(story, Answer::Yes);
                SeeImage(story, 3, "Run");
                SeeImage(story, 2, "NoRun");
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_EQ(Flag(program, "Run3"), "Yes");
                EXPECT_EQ(Flag(program, "Run33"), "Yes");
                EXPECT_EQ(Flag(program, "Run2"), "No");
                const auto& ini = program.Program.Ini;
                const std::string file = program.ConfigFile("North");
                EXPECT_NE(ini.ReadKey("Run3", "StdVolFlowKDIORegAddr", file), "");
                EXPECT_NE(ini.ReadKey("Run3", "StdVolFlowKDIORegAddr", file),
                          ini.ReadKey("Run1", "StdVolFlowKDIORegAddr", file));
            }};
}

Scenario NotAdded() {
    return {"a_run_is_given_up_and_declined", moves::ThreeStations,
            [](Story& story) {
                Configure(story, {}, {1});
                ChooseRun(story, 2, "erun");
                Offer(story, Answer::No);
                ChooseRun(story, 2, "erun");
                Offer(story, Answer::Yes);
                const AddRunStory adding({.Run = 2});
                adding.Until(story, 1);
                story.Click("TagRuns", "Command2")
                    .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes)
                    .SeeShown("TagRuns", false)
                    .SeeShown(window);
                ChooseRun(story, 2, "erun");
                Offer(story, Answer::Yes);
                adding.Through(story);
                AddRunStory::Finish(story, Answer::No);
                SeeImage(story, 2, "NoRun");
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_EQ(Flag(program, "Run2"), "No");
                EXPECT_EQ(Flag(program, "Run22"), "No");
                EXPECT_EQ(program.Files.Content.at(program.ConfigFile("North")).find("[Run2]"),
                          std::string::npos);
            }};
}

// The tags of the station change while the program runs.
Scenario TagsLost() {
    return {"a_run_whose_tags_are_lost_is_turned_off",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                auto& tags = program.Library.TagsOf["South"];
                std::erase_if(tags, [](const auto& tag) { return tag.TagName == "FT-2"; });
            },
            [](Story& story) {
                Configure(story, {}, {1});
                // South lacks a tag that the copied configuration names.
                story.ClickNode(window, tree, "All Stations\\North")
                    .Menu(window, "copiar1")
                    .Click("frCopyStation", "Command1")
                    .Box("Copy configuration from a station to another station within the same project...",
                         "", Icon::Information)
                    .ClickNode(window, tree, "All Stations\\South\\Individual Parameters\\Run 1")
                    .Menu(window, "erun")
                    .Box("Failed enable run", "", Icon::Question, Answer::No);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                const auto& ini = program.Program.Ini;
                EXPECT_EQ(ini.ReadKey("FlowRuns", "Run1", program.ConfigFile("South")), "No");
                EXPECT_EQ(ini.ReadKey("FlowRuns", "Run1", program.ConfigFile("North")), "Yes");
            }};
}

} // namespace

std::vector<Scenario> RunCommandScenarios() {
    return {OffAndOn(),
            Added("a_run_is_added_with_a_densimeter", {}),
            Added("a_run_is_added_with_a_composition", {.Standard = 1, .Source = 1}),
            Added("a_run_is_added_with_a_chromatograph", {.Source = 1, .Chromatograph = true}),
            Added("a_run_is_added_to_accelabar_meters", {.Standard = 2, .Source = 2}),
            NotAdded(),
            TagsLost()};
}

} // namespace gfc::test
