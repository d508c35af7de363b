// Whole configurations are deleted, and the list of files to load follows at the exit.
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace gfc::test {

namespace {

using moves::Choose;
using moves::NorthNode;
using moves::SeeImage;
using ui::Answer;
using ui::Icon;

const std::string southNode = "All Stations\\South";

// South is a copy of North, and entered in its list.
void SouthToo(FakeProgram& program) {
    program.Files.Content[Outside::File("South")] = program.Files.Content[Outside::File()];
    program.Library.FilesToLoad.emplace_back("South", Outside::File("South"), "/etc/stacfg/kdormaga.ini");
}

void Delete(Story& story, Answer answer) {
    Choose(story, southNode, "undo");
    story.Box("Delete Configuration",
              "Are you sure that you want to delete the configuration of this station?", Icon::None, answer);
}

void Ignored(Story& story) {
    story.Box("Orm Gas Flow Computer", "No configuration exists for the current station. Ignoring...",
              Icon::Exclamation);
}

Scenario Deleted() {
    return TheScenario(
        {.Name = "a_configuration_is_deleted",
         .Beside = SouthToo,
         .Tell =
             [](Story& story, const TheOutside& outside) {
                 Delete(story, Answer::No);
                 SeeImage(story, southNode, "StationConfig");
                 Delete(story, Answer::Yes);
                 SeeImage(story, southNode, "StationNoConfig");
                 SeeImage(story, southNode + "\\Common Parameters", "no such node");
                 SeeImage(story, NorthNode, "StationConfig");
                 story
                     .Check([=](Driver& d) {
                         EXPECT_TRUE(outside->Program->Library.FilesToLoad.empty());
                         EXPECT_EQ(d.Cell("GFCPrincipal", "ListView1", 2, 1), "No");
                     })
                     // The station is an empty one, and there is nothing more to delete.
                     .ClickNode("GFCPrincipal", "TreeGFC", southNode)
                     .SeeVisible("GFCPrincipal", "SSTab1", false)
                     .Menu("GFCPrincipal", "undo");
                 Ignored(story);
                 Choose(story, "All Stations", "undo");
                 Ignored(story);
             },
         .After =
             [](const Outside& outside) { EXPECT_EQ(outside.Program->Library.FilesToLoad.size(), 1U); }});
}

void HeldSouth(FakeProgram& program) {
    SouthToo(program);
    program.Files.Unwritable.insert(Outside::File("South"));
}

void SeeWait(Story& story) {
    story.SeeText("WaitForFile", "Label2", Outside::File("South"))
        .SeeText("WaitForFile", "Label3", "The system says: Permission denied");
}

// Something holds the file; the program says so and waits for it.
Scenario Waited() {
    return TheScenario({.Name = "a_configuration_that_is_held_is_deleted_later",
                        .Beside = HeldSouth,
                        .Tell = [](Story& story, const TheOutside& outside) {
                            Delete(story, Answer::Yes);
                            SeeWait(story);
                            story.Tick("WaitForFile", "timerWait");
                            SeeWait(story);
                            story.Do("let the file go", [=](Driver& driver) {
                                EXPECT_TRUE(outside->Program->Library.FilesToLoad.empty());
                                outside->Program->Files.Unwritable.clear();
                                driver.Tick("WaitForFile", "timerWait");
                            });
                            story.SeeShown("WaitForFile", false);
                            SeeImage(story, southNode, "StationNoConfig");
                        }});
}

Scenario GivenUp() {
    return TheScenario({.Name = "the_wait_for_a_deleted_file_is_given_up",
                        .Beside = HeldSouth,
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Delete(story, Answer::Yes);
                                SeeWait(story);
                                story.Click("WaitForFile", "Command1");
                                SeeImage(story, southNode, "StationConfig");
                            },
                        .Leaves = {Outside::File("South")},
                        .After =
                            [](const Outside& outside) {
                                EXPECT_EQ(outside.Program->Library.FilesToLoad.size(), 2U)
                                    << "the list follows the file that is still there";
                            }});
}

std::vector<std::string> RegistrationsOf(const Outside& outside) {
    std::vector<std::string> calls = outside.Program->Library.Calls;
    std::erase_if(calls,
                  [](const std::string& call) { return call.find("FileToLoad") == std::string::npos; });
    return calls;
}

const std::vector<std::string> oncePerStation = {"AddFileToLoad North", "RemoveFileToLoad South",
                                                 "RemoveFileToLoad Empty"};

// What has come is entered and what has gone is taken out, twice over and with the same outcome.
Scenario Registered() {
    return TheScenario({.Name = "the_exit_enters_each_station_twice",
                        .Beside = SouthToo,
                        .Tell =
                            [](Story& story, const TheOutside& outside) {
                                // The entry is named after the station that is selected.
                                story.ClickNode("GFCPrincipal", "TreeGFC", southNode)
                                    .Do("take the file of South away", [=](Driver&) {
                                        outside->Program->Files.Content.erase(Outside::File("South"));
                                    });
                            },
                        .After =
                            [](const Outside& outside) {
                                auto twice = oncePerStation;
                                twice.insert(twice.end(), oncePerStation.begin(), oncePerStation.end());
                                EXPECT_EQ(RegistrationsOf(outside), twice);
                                const std::tuple north{std::string("North"), Outside::File(),
                                                       std::string("/etc/stacfg/kdormaga.ini")};
                                ASSERT_EQ(outside.Program->Library.FilesToLoad.size(), 1U);
                                EXPECT_EQ(outside.Program->Library.FilesToLoad.front(), north);
                            }});
}

Scenario RegisteredByClosing() {
    return TheScenario(
        {.Name = "closing_the_window_enters_each_station_once",
         .Tell = [](Story& story, const TheOutside&) { story.CloseWindow("GFCPrincipal"); },
         .After = [](const Outside& outside) { EXPECT_EQ(RegistrationsOf(outside), oncePerStation); },
         .EndsByItself = true});
}

} // namespace

std::vector<Scenario> DeleteScenarios() {
    return {Deleted(), Waited(), GivenUp(), Registered(), RegisteredByClosing()};
}

} // namespace gfc::test
