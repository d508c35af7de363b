// Whole configurations are copied.
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"
#include "support/InJobs.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using moves::Choose;
using moves::NorthNode;
using moves::SeeImage;
using ui::Icon;

const std::string southNode = "All Stations\\South";
const std::string could = "Could not copy the configuration file \r\n";
const std::string reminder = "Reminder: Please make sure the destination station satisfies the minimun I/O "
                             "requirements (The source station's I/O amount).";
const std::string withinTitle =
    "Copy configuration from a station to another station within the same project...";
const std::string acrossTitle = "Copy configuration from a station to another station of another project";
const std::string prompt = "Name of the destination station to configure";

// The source with two keys of one section changed.
std::string CopyOf(const std::string& source, const std::string& project, const std::string& station) {
    return FileText(source).Set("General", "Project", project).Set("General", "OrmStation", station).Bytes();
}

void Refused(Story& story, const std::string& reason, Icon icon = Icon::None) {
    story.Box("Error: Copy configuration file", could + reason, icon);
}

void CopyWithin(Story& story) {
    Choose(story, NorthNode, "copiar1");
    story.SeeCaption("frCopyStation", prompt)
        .SeeText("frCopyStation", "Label1",
                 "Please select the destination station to copy the configuration to:")
        .SeeText("frCopyStation", "Combo1", "South");
}

void CopyAcross(Story& story, const std::string& station) {
    Choose(story, NorthNode, "copiar2");
    story.ChooseFile(InJobs("other.KPJ")).Prompt(prompt, station);
}

Scenario WithinTheProject() {
    return TheScenario(
        {.Name = "a_configuration_is_copied_to_another_station",
         .Golden = "aga3_aga8_outside",
         .Tell =
             [](Story& story, const TheOutside& outside) {
                 CopyWithin(story);
                 story.Click("frCopyStation", "Command2");
                 SeeImage(story, southNode, "StationNoConfig");
                 CopyWithin(story);
                 story.Select("frCopyStation", "Combo1", 1)
                     .Click("frCopyStation", "Command1")
                     .Box(withinTitle, reminder, Icon::Information);
                 SeeImage(story, "All Stations\\Empty", "StationConfig");
                 SeeImage(story, moves::RunNode(5, "Empty"), "Run");
                 story.Check([=](Driver&) {
                     EXPECT_EQ(outside->Content("Empty"),
                               CopyOf(outside->Content(), InJobs("plant.KPJ"), "Empty"));
                     EXPECT_TRUE(outside->Program->Library.FilesToLoad.empty()) << "at the exit only";
                 });
             },
         .Leaves = {Outside::File("Empty")},
         .After =
             [](const Outside& outside) { EXPECT_EQ(outside.Program->Library.FilesToLoad.size(), 2U); }});
}

Scenario RefusedWithin() {
    return TheScenario(
        {.Name = "a_copy_to_another_station_is_refused",
         .Tell =
             [](Story& story, const TheOutside& outside) {
                 Choose(story, southNode, "copiar1");
                 Refused(story, "The station is not configured");
                 // It comes up while the list stands open.
                 CopyWithin(story);
                 story
                     .Do("configure from outside",
                         [=](Driver&) { outside->Content("South") = "[Station]\r\n"; })
                     .Click("frCopyStation", "Command1");
                 Refused(story, "Please, Verify that the station has not been configured previously...");
                 story.Do("configure the last one",
                          [=](Driver&) { outside->Content("Empty") = "[Run1]\r\n"; });
                 Choose(story, NorthNode, "copiar1");
                 story
                     .Box("Error: Copy configuration...", "Cannot copy. All stations are already configured",
                          Icon::None)
                     .SeeShown("frCopyStation", false);
                 Choose(story, "All Stations", "copiar1");
                 story.SeeShown("frCopyStation", false);
             },
         .Leaves = {Outside::File("South"), Outside::File("Empty")},
         .After =
             [](const Outside& outside) {
                 EXPECT_EQ(outside.Content("South"), "[Station]\r\n");
                 EXPECT_EQ(outside.Content("Empty"), "[Run1]\r\n");
             }});
}

// Once more in vain, then no more.
void NotCopied(Story& story, const std::string& file) {
    for (const auto answer : {ui::Answer::Retry, ui::Answer::Close})
        story.Box("Error: Copy configuration file",
                  "Could not copy the configuration file \r\n" + file +
                      "\r\n\r\nThe system says: Permission denied\r\nThere is no such file now.",
                  Icon::Exclamation, answer);
}

Scenario NothingCanBeWritten() {
    return TheScenario({.Name = "a_copy_that_fails_leaves_no_file",
                        .Beside =
                            [](FakeProgram& program) {
                                for (const std::string& file :
                                     {InJobs("KDOrmAGA_plant_South.ini"), InJobs("KDOrmAGA_other_Far.ini")})
                                    program.Files.Unwritable.insert(file);
                            },
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                CopyWithin(story);
                                story.Click("frCopyStation", "Command1");
                                NotCopied(story, InJobs("KDOrmAGA_plant_South.ini"));
                                CopyAcross(story, "Far");
                                NotCopied(story, InJobs("KDOrmAGA_other_Far.ini"));
                            }});
}

Scenario ProjectOfOneStation() {
    return {"a_copy_needs_a_project_of_several_stations",
            [](FakeProgram& program) {
                program.AddStation("North", LargeStationTags());
                program.Files.Content[Outside::File()] = "[General]\r\n";
            },
            [](Story& story) {
                moves::StartUp(story);
                for (const auto& node : {NorthNode, std::string("All Stations")}) {
                    Choose(story, node, "copiar1");
                    story.Box("Error: Copy configuration of a station...",
                              "To use this option the project must have multiple stations",
                              Icon::Exclamation);
                }
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_EQ(program.Files.Content.size(), 1U); }};
}

Scenario ToAnotherProject() {
    const std::string far = InJobs("KDOrmAGA_other_Far Away.ini");
    return TheScenario({.Name = "a_configuration_is_copied_to_another_project",
                        .Golden = "aga7_iso3_fixed_external",
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                CopyAcross(story, "Far Away");
                                story.Box(acrossTitle, reminder, Icon::Information);
                                CopyAcross(story, "Far Away");
                                Refused(story, "Please verify that the station has not been configured "
                                               "previously");
                            },
                        .Leaves = {far},
                        .After =
                            [far](const Outside& outside) {
                                EXPECT_EQ(outside.Program->Files.Content[far],
                                          CopyOf(outside.Content(), InJobs("other.KPJ"), "Far Away"));
                                EXPECT_EQ(outside.Program->Library.FilesToLoad.size(), 1U);
                            }});
}

Scenario EndsInSilence() {
    return TheScenario(
        {.Name = "a_copy_to_another_project_ends_in_silence", .Tell = [](Story& story, const TheOutside&) {
             Choose(story, NorthNode, "copiar2");
             story.ChooseFile(std::nullopt);
             CopyAcross(story, "");
             Choose(story, "All Stations", "copiar2");
             Choose(story, southNode, "copiar2");
             Refused(story, "The station is not configured");
         }});
}

// In plain words, and with nothing written.
Scenario NamesRefused() {
    const std::string characters =
        "The name of the station has characters that the name of a file cannot have.";
    const std::vector<std::pair<std::string, std::string>> names = {
        {"a/b", characters},
        {"a\\b", characters},
        {std::string(300, 'x'), "The name of the station is longer than 80 characters."},
    };
    return TheScenario({.Name = "a_copy_to_a_station_that_cannot_be_is_refused",
                        .Tell = [names](Story& story, const TheOutside&) {
                            for (const auto& [name, reason] : names) {
                                CopyAcross(story, name);
                                Refused(story, reason, Icon::Exclamation);
                            }
                        }});
}

} // namespace

std::vector<Scenario> CopyScenarios() {
    return {WithinTheProject(), RefusedWithin(), NothingCanBeWritten(), ProjectOfOneStation(),
            ToAnotherProject(), EndsInSilence(), NamesRefused()};
}

} // namespace gfc::test
