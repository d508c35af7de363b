// Runs are turned off and on.
#include "scenarios/StoredStation.h"
#include "support/InJobs.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using moves::Choose;
using moves::NorthNode;
using moves::RunNode;
using moves::RunsNode;
using moves::SeeImage;
using ui::Answer;
using ui::Icon;

const std::string log = InJobs("KDOrmAGA_plant_North_Errors.log");
const std::string logGenerated = "A log file describing the error and its cause has been generated in:\r\n" +
                                 log + "\r\n\r\nDo you wish to see the log file of errors ?";

void Off(FileText& file, int run) {
    file.Set("FlowRuns", "Run" + std::to_string(run), "No");
}

Scenario TurnedOff() {
    return TheScenario({.Name = "a_run_is_turned_off",
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Choose(story, RunNode(5), "dRun");
                                SeeImage(story, RunNode(5), "NoRun");
                                SeeImage(story, RunNode(2), "Run");
                                story.Menu("GFCPrincipal", "dRun")
                                    .Box("Run disabled", "The run already selected is disabled",
                                         Icon::Information);
                            },
                        .Changes = [](FileText& file) { Off(file, 5); }});
}

Scenario TurnedOn() {
    return TheScenario({.Name = "runs_are_turned_on_again",
                        .ByHand = [](FileText& file) { Off(file, 2); },
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Choose(story, RunNode(5), "dRun");
                                SeeImage(story, RunNode(5), "NoRun");
                                Choose(story, RunNode(5), "erun");
                                SeeImage(story, RunNode(5), "Run");
                                Choose(story, RunNode(2), "erun");
                                SeeImage(story, RunNode(2), "Run");
                                story.Menu("GFCPrincipal", "erun")
                                    .Box("Run enabled", "The selected run is enabled already",
                                         Icon::Information);
                            },
                        .Changes = [](FileText& file) { file.Set("FlowRuns", "Run2", "Yes"); }});
}

// "Enable" in both; and to enable, the tags are read and compared before anything is said.
Scenario NoRunSelected() {
    return TheScenario(
        {.Name = "commands_on_runs_ask_for_a_run", .Tell = [](Story& story, const TheOutside& outside) {
             Choose(story, RunsNode, "dRun");
             story
                 .Box("Error select run", "Please select the run you wish to enable at individual parameters",
                      Icon::Exclamation)
                 .Check([=](Driver&) {
                     EXPECT_EQ(std::ranges::count(outside->Program->Library.Calls, "ReadTags North"), 0);
                 })
                 .Menu("GFCPrincipal", "erun")
                 .Box("Error select run",
                      "Please select the run that wish to enable at individual parameters", Icon::Exclamation)
                 .Check([=](Driver&) {
                     EXPECT_EQ(std::ranges::count(outside->Program->Library.Calls, "ReadTags North"), 1);
                     EXPECT_FALSE(outside->Program->Session.Expected.ExpectedFloat.empty());
                 });
         }});
}

// The command on a run whose bindings are broken, in the words of the class of the first that is.
struct Broken {
    std::string Name;
    std::string Golden;
    std::vector<std::string> Keys; // of the tags that are lost, in section Run2
    std::string FirstLine;
    std::string Rest = logGenerated;
};

Scenario Refused(const Broken& broken) {
    return TheScenario({.Name = "a_run_is_refused_for_" + broken.Name,
                        .Golden = broken.Golden,
                        .Tell =
                            [=](Story& story, const TheOutside& outside) {
                                story.Do("rename tags", [=](Driver&) {
                                    for (const auto& key : broken.Keys)
                                        outside->RenameTag(outside->Key("Run2", key), "renamed " + key);
                                });
                                // A bad tag of another run does not stop this one.
                                Choose(story, RunNode(5), "erun");
                                story.Box("Run enabled", "", Icon::Information);
                                Choose(story, RunNode(2), "erun");
                                story
                                    .Box("Failed enable run", broken.FirstLine + "Run 2\r\n" + broken.Rest,
                                         Icon::Question, Answer::No)
                                    .Check(
                                        [=](Driver&) { EXPECT_EQ(outside->Key("FlowRuns", "Run2"), "No"); });
                                // Until the tree is built anew.
                                SeeImage(story, RunNode(2), "Run");
                            },
                        .Changes = [](FileText& file) { Off(file, 2); }});
}

const std::string inconsistencies = "Error : Configuration errors or inconsistencies found in ";

const std::vector<Broken> allBroken = {
    {"a_float",
     "aga3_densimeter",
     {"GasDPKDIOTag"},
     "Error : Configuration errors or inconsistecies found in "},
    {"a_digital_before_a_float", "aga3_densimeter", {"GasDPKDIOTag", "ResetTotalsKDIOTag"}, inconsistencies},
    {"an_analog", "aga3_aga8_fixed", {"AGA8StatusKDIOTag"}, inconsistencies},
};

// Two runs count the same pulses.
Scenario RefusedForALong() {
    return TheScenario(
        {.Name = "a_run_is_refused_for_a_long",
         .Golden = "aga7_densimeter",
         .Tell =
             [](Story& story, const TheOutside& outside) {
                 story.Do("rename a tag", [=](Driver&) { outside->RenameTag("PI-1", "renamed"); });
                 Choose(story, RunNode(2), "erun");
                 story.Box("Failed enable run",
                           inconsistencies +
                               "Run 2\r\nA lof file describing the error and its cause has been generated "
                               "in:\r\n" +
                               log + "\r\n\r\nDou you wish to see the log file of  errors ?",
                           Icon::Question, Answer::No);
             },
         .Changes = [](FileText& file) { Off(file, 2); }});
}

// The log is the one of the last check that had an answer; there may be none.
Scenario LogAskedFor() {
    return TheScenario({.Name = "the_log_of_a_refused_run_is_asked_for",
                        .Tell =
                            [](Story& story, const TheOutside& outside) {
                                const std::string file = outside->File();
                                story.Do("rename tags", [=](Driver&) {
                                    for (const char* tag : {"FT-3", "FT-11"})
                                        outside->RenameTag(tag, std::string("renamed ") + tag);
                                });
                                Choose(story, RunNode(2), "erun");
                                story.Box("Failed enable run", "", Icon::Question, Answer::Yes)
                                    .Box("Gas Flow Computer", "", Icon::Exclamation)
                                    .Do("a log is there", [=](Driver&) {
                                        outside->Program->Files.Content[log] = "[Errors]\r\n";
                                    });
                                Choose(story, RunNode(5), "erun");
                                story.Box("Failed enable run", "", Icon::Question, Answer::Yes);
                            },
                        .Changes =
                            [](FileText& file) {
                                Off(file, 2);
                                Off(file, 5);
                            },
                        .Leaves = {log}});
}

Scenario OtherWord() {
    return TheScenario(
        {.Name = "a_run_of_which_the_file_says_nothing_clear_stays_off",
         .ByHand = [](FileText& file) { file.Set("FlowRuns", "Run33", "yes").Remove("FlowRuns", "Run44"); },
         .Tell =
             [](Story& story, const TheOutside&) {
                 for (const int run : {3, 4}) {
                     Choose(story, RunNode(run), "erun");
                     SeeImage(story, RunNode(run), "NoRun");
                 }
             }});
}

// The configuring command at a run that is off means to enable it, and nothing else.
Scenario ConfigureMeansEnable() {
    return TheScenario({.Name = "configure_at_a_run_that_is_off_enables_it",
                        .ByHand = [](FileText& file) { Off(file, 2); },
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Choose(story, RunNode(2), "ConfigPar");
                                story.SeeShown("FrModificarTags", false).SeeShown("Configurador", false);
                                SeeImage(story, RunNode(2), "Run");
                                Choose(story, RunNode(4), "ConfigPar");
                                story.Box("Configure Run",
                                          "The selected run is not configured. Do you want to configure it?",
                                          Icon::Information, Answer::No);
                                // One that is on has its tags edited.
                                story.ClickNode("GFCPrincipal", "TreeGFC", RunNode(2))
                                    .Menu("GFCPrincipal", "ConfigPar")
                                    .SeeShown("FrModificarTags")
                                    .Click("FrModificarTags", "Command2");
                            },
                        .Changes = [](FileText& file) { file.Set("FlowRuns", "Run2", "Yes"); }});
}

} // namespace

std::vector<Scenario> RunCommandScenarios() {
    std::vector<Scenario> all;
    for (auto* scenario : {&TurnedOff, &TurnedOn, &NoRunSelected, &RefusedForALong, &LogAskedFor, &OtherWord,
                           &ConfigureMeansEnable})
        all.push_back((*scenario)());
    for (const Broken& broken : allBroken)
        all.push_back(Refused(broken));
    return all;
}

} // namespace gfc::test
