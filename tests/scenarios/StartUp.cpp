#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/InJobs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace gfc::test {

namespace {

using ui::Icon;

void NoRegistration(FakeProgram& program) {
    for (const auto& call : program.Library.Calls) {
        EXPECT_FALSE(call.starts_with("AddFileToLoad")) << call;
    }
}

Scenario ConfiguredStationsAreRegisteredAtExit() {
    return {"start_up_and_exit_registers_each_station",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                program.Files.Content[InJobs("KDOrmAGA_plant_South.ini")] =
                    "[FlowRuns]\r\nRun1=Yes\r\nRun2=yes\r\n";
            },
            [](Story& story) {
                story.SeeText("formInicio", "labProgBar", "Loading ...");
                moves::StartUp(story);
                story.SeeCaption("GFCPrincipal", "Gas Flow Computer, V1.6.1")
                    .SeeText("GFCPrincipal", "Label2", "User ID : 4711")
                    .Check([](Driver& d) {
                        const std::string tree = "TreeGFC";
                        EXPECT_EQ(d.NodeImage("GFCPrincipal", tree, "All Stations\\North"),
                                  "StationNoConfig");
                        EXPECT_EQ(d.NodeImage("GFCPrincipal", tree, "All Stations\\South"), "StationConfig");
                        const std::string runs = "All Stations\\South\\Individual Parameters\\";
                        EXPECT_EQ(d.NodeImage("GFCPrincipal", tree, runs + "Run 1"), "Run");
                        EXPECT_EQ(d.NodeImage("GFCPrincipal", tree, runs + "Run 2"), "NoRun");
                        EXPECT_EQ(d.Rows("GFCPrincipal", "ListView1"), 3);
                        EXPECT_EQ(d.Cell("GFCPrincipal", "ListView1", 2, 1), "Yes");
                        EXPECT_EQ(d.Cell("GFCPrincipal", "ListView1", 3, 1), "No");
                    });
                moves::Exit(story);
            },
            [](FakeProgram& program) {
                ASSERT_EQ(program.Library.FilesToLoad.size(), 1U);
                const std::tuple expected{std::string("South"), InJobs("KDOrmAGA_plant_South.ini"),
                                          std::string("/etc/stacfg/kdormaga.ini")};
                EXPECT_EQ(program.Library.FilesToLoad.front(), expected);
                EXPECT_EQ(std::count(program.Library.Calls.begin(), program.Library.Calls.end(),
                                     "AddFileToLoad South"),
                          2)
                    << "a normal exit registers twice";
            }};
}

Scenario EmptyUserId() {
    return {"empty_user_id_keeps_the_prompt", moves::ThreeStations,
            [](Story& story) {
                story.Tick("formInicio", "timerInicio")
                    .Click("UserIDForm", "Command1")
                    .Box("Orm Gas Flow Computer", "Please enter your User ID", Icon::Exclamation)
                    .SeeShown("UserIDForm")
                    .Keys("UserIDForm", "Text1", "4a7x1 -1")
                    .SeeText("UserIDForm", "Text1", "4711")
                    .Keys("UserIDForm", "Text1", "9\b\r")
                    .SeeText("GFCPrincipal", "Label2", "User ID : 4711");
                moves::Exit(story);
            },
            [](FakeProgram& program) { EXPECT_EQ(program.Session.Station.UserId, "4711"); }};
}

Scenario CancelledUserId() {
    return {"cancel_at_the_user_id_ends_the_program", moves::ThreeStations,
            [](Story& story) { story.Tick("formInicio", "timerInicio").Click("UserIDForm", "Command2"); },
            [](FakeProgram& program) {
                EXPECT_TRUE(program.Program.Screen.Ended());
                EXPECT_EQ(
                    std::count(program.Library.Calls.begin(), program.Library.Calls.end(), "GetStations"), 0);
            }};
}

// A start that fails with one box and leaves no window behind.
Scenario FailedStart(const std::string& name, std::function<void(FakeProgram&)> prepare,
                     const std::string& title, const std::string& text) {
    return {name, std::move(prepare),
            [title, text](Story& story) {
                story.Tick("formInicio", "timerInicio")
                    .Type("UserIDForm", "Text1", "1")
                    .Click("UserIDForm", "Command1")
                    .Box(title, text, Icon::Exclamation);
            },
            [](FakeProgram& program) {
                EXPECT_TRUE(program.Program.Screen.Ended());
                NoRegistration(program);
            }};
}

// Not a word is said: the window comes up with an empty tree.
Scenario StationListCannotBeHad() {
    return {"station_list_that_cannot_be_had_leaves_an_empty_tree",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                program.Library.StationListWorks = false;
            },
            [](Story& story) {
                moves::StartUp(story);
                story.Check([](Driver& d) {
                    EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\North"), "no such node");
                    EXPECT_EQ(d.Rows("GFCPrincipal", "ListView1"), 0);
                });
                moves::Exit(story);
            },
            NoRegistration};
}

} // namespace

std::vector<Scenario> StartUpScenarios() {
    return {
        ConfiguredStationsAreRegisteredAtExit(),
        EmptyUserId(),
        CancelledUserId(),
        StationListCannotBeHad(),
        FailedStart(
            "second_instance_is_refused",
            [](FakeProgram& program) {
                moves::ThreeStations(program);
                program.SingleInstance.Free = false;
            },
            "Loading... Gas Flow Computer",
            "ERROR: The Orm Gas Flow Computer configuration program is running already."),
        FailedStart(
            "no_project_open_is_reported", [](FakeProgram& program) { program.Library.ProjectFile.clear(); },
            "Gas Flow Computer", "Error: please open the I/O Workshop"),
        FailedStart(
            "project_without_stations_is_reported", [](FakeProgram&) {}, "Gas Flow Computer",
            "Error: no stations in project"),
    };
}

} // namespace gfc::test
