#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string window = "GFCPrincipal";
const std::string tree = "TreeGFC";
const std::string content =
    "[General]\r\nProject=/jobs/plant.KPJ\r\nOrmStation=North\r\n[FlowRuns]\r\nRun2=Yes\r\n";

void NorthIsConfigured(FakeProgram& program) {
    moves::ThreeStations(program);
    program.Files.Content["/jobs/KDOrmAGA_plant_North.ini"] = content;
}

void Choose(Story& story, const std::string& station, const std::string& command) {
    story.ClickNode(window, tree, "All Stations\\" + station).Menu(window, command);
}

void SeeImage(Story& story, const std::string& station, const std::string& image) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.NodeImage(window, tree, "All Stations\\" + station), image); });
}

std::string General(FakeProgram& program, const std::string& key, const std::string& file) {
    return program.Program.Ini.ReadKey("General", key, file);
}

Scenario WithinTheProject() {
    return {"a_configuration_is_copied_and_deleted", NorthIsConfigured,
            [](Story& story) {
                moves::StartUp(story);
                Choose(story, "North", "copiar1");
                story.SeeCaption("frCopyStation", "Name of the destination station to configure")
                    .SeeText("frCopyStation", "Combo1", "South")
                    .Click("frCopyStation", "Command2");
                SeeImage(story, "South", "StationNoConfig");
                Choose(story, "North", "copiar1");
                story.Select("frCopyStation", "Combo1", 1)
                    .Click("frCopyStation", "Command1")
                    .Box("Copy configuration from a station to another station within the same project...",
                         "", Icon::Information);
                SeeImage(story, "Empty", "StationConfig");
                Choose(story, "North", "undo");
                story.Box("Delete Configuration", "", Icon::None, Answer::Yes);
                SeeImage(story, "North", "StationNoConfig");
                Choose(story, "North", "copiar1");
                story.Box("Error: Copy configuration file",
                          "Could not copy the configuration file \r\nThe station is not configured",
                          Icon::None);
                Choose(story, "North", "undo");
                story.Box("Orm Gas Flow Computer",
                          "No configuration exists for the current station. Ignoring...", Icon::Exclamation);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                EXPECT_EQ(program.Files.Content.size(), 1U);
                const std::string file = program.ConfigFile("Empty");
                EXPECT_EQ(General(program, "OrmStation", file), "Empty");
                ASSERT_EQ(program.Library.FilesToLoad.size(), 1U);
                EXPECT_EQ(std::get<0>(program.Library.FilesToLoad[0]), "Empty");
            }};
}

Scenario ToAnotherProject() {
    return {"a_configuration_is_copied_to_another_project", NorthIsConfigured,
            [](Story& story) {
                const std::string prompt = "Name of the destination station to configure";
                moves::StartUp(story);
                Choose(story, "North", "copiar2");
                story.ChooseFile(std::nullopt);
                Choose(story, "North", "copiar2");
                story.ChooseFile("/jobs/other.KPJ").Prompt(prompt, "");
                Choose(story, "North", "copiar2");
                story.ChooseFile("/jobs/other.KPJ")
                    .Prompt(prompt, "../Far")
                    .Box("Error: Copy configuration file", "", Icon::Exclamation);
                Choose(story, "North", "copiar2");
                story.ChooseFile("/jobs/other.KPJ")
                    .Prompt(prompt, "Far")
                    .Box("Copy configuration from a station to another station of another project", "",
                         Icon::Information);
                Choose(story, "North", "copiar2");
                story.ChooseFile("/jobs/other.KPJ")
                    .Prompt(prompt, "Far")
                    .Box("Error: Copy configuration file", "", Icon::None);
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                const std::string file = "/jobs/KDOrmAGA_other_Far.ini";
                EXPECT_EQ(program.Files.Content.size(), 2U);
                EXPECT_EQ(General(program, "Project", file), "/jobs/other.KPJ");
                EXPECT_EQ(General(program, "OrmStation", file), "Far");
            }};
}

} // namespace

std::vector<Scenario> CopyScenarios() {
    return {WithinTheProject(), ToAnotherProject()};
}

} // namespace gfc::test
