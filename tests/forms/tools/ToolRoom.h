#pragma once

#include "forms/main_window/GFCPrincipal.h"
#include "support/InJobs.h"
#include "support/MemoryRecorder.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <string>

namespace gfc::test {

struct HasRecorder {
    MemoryRecorder Recorder;
};

// Two stations: what North has was changed twice; South had a configuration and has none.
struct ToolRoom : testing::Test, HasRecorder, World {
    static std::string FileWith(const std::string& bore, const std::string& more = {}) {
        return "[General]\r\nPackage=kdormaga\r\nProject=/jobs/plant.KPJ\r\nOrmStation=North\r\n"
               "[FlowRuns]\r\nRun1=Yes\r\nRun11=Yes\r\nRun2=Yes\r\nRun22=Yes\r\nFlowAlgorithm=AGA3\r\n"
               "GasDensitySource=MEASURED\r\nSystemUnits=US\r\n"
               "[Run1]\r\nOrificeDia=" +
               bore + "\r\nInternalPipeDia=12.0\r\n" + more +
               "[Run2]\r\nOrificeDia=4.0\r\nInternalPipeDia=10.0\r\n";
    }

    ToolRoom() : World(Recorder) {
        AddStation("North", LargeStationTags());
        AddStation("South", {});
        const auto enter = [&](const std::string& time, const std::string& station, std::string_view command,
                               const std::string& user, config::FileState before, config::FileState after) {
            Recorder.Time = time;
            Recorder.Record({{"", station, std::string(command), user, std::move(before), std::move(after)}});
        };
        namespace command = config::command;
        enter("2023-03-01T08:00:00Z", "North", command::Wizard, "ana", {}, First);
        enter("2023-03-02T08:00:00Z", "South", command::Wizard, "bob", {}, Souths);
        enter("2023-03-10T08:00:00Z", "North", command::ModifyRun, "bob", First, Second);
        enter("2023-03-12T08:00:00Z", "South", command::Delete, "ana", Souths, {});
        enter("2023-03-14T08:00:00Z", "North", command::FoundChanged, "", Second, Present);
        Recorder.Time = "2023-03-15T12:00:00Z";
        Files.Content[North] = Present;
    }

    const std::string First = FileWith("5.0");
    const std::string Second = FileWith("6.0");
    const std::string Present = FileWith("6.5", "MeterKind=x\r\n");
    const std::string Souths = "[General]\r\nProject=/jobs/plant.KPJ\r\nOrmStation=South\r\n";
    const std::string North = InJobs("KDOrmAGA_plant_North.ini");
    const std::string South = InJobs("KDOrmAGA_plant_South.ini");
    const std::string Main = "GFCPrincipal";

    forms::GFCPrincipal& MainWindow() { return Program.Forms.Get<forms::GFCPrincipal>(); }
    void Play() {
        TheStory.Menu(Main, "exit");
        MainWindow().Show();
        Screen.RunToEnd();
    }
};

// The row of a list that holds the text in that column; 0 for none.
inline int RowOf(const ui::ListView& list, int column, const std::string& text) {
    for (int row = 1; row <= list.Count(); ++row)
        if (list.Cell(row, column) == text)
            return row;
    return 0;
}

} // namespace gfc::test
