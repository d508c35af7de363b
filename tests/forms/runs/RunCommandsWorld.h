#pragma once

#include "forms/main_window/GFCPrincipal.h"
#include "support/InJobs.h"
#include "support/TestFolders.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::test {

inline std::string GoldenText(const std::string& name) {
    return Golden(name + ".ini");
}

// The main window over station North as the wizard has configured it on large tags, runs 2 and 5.
struct RunCommandsWorld : World {
    explicit RunCommandsWorld(const std::string& golden = "aga3_densimeter",
                              project::TagList tags = LargeStationTags()) {
        AddStation("North", std::move(tags));
        AddStation("South", LargeStationTags());
        File() = GoldenText("wizard/" + golden);
        EXPECT_FALSE(File().empty()) << golden;
    }

    std::string& File() { return Files.Content[Path]; }
    void Put(const std::string& section, const std::string& key, const std::string& value) {
        Hand.WriteKey(section, key, value, Path);
    }
    std::string Read(const std::string& section, const std::string& key) {
        return Program.Ini.ReadKey(section, key, Path);
    }
    forms::GFCPrincipal& Window() { return Program.Forms.Get<forms::GFCPrincipal>(); }
    static std::string RunNode(int run) { return Runs + "\\Run " + std::to_string(run); }
    // On the run's node.
    void Choose(int run, const std::string& command) { ChooseAt(RunNode(run), command); }
    void ChooseAt(const std::string& node, const std::string& command) {
        TheStory.ClickNode("GFCPrincipal", "TreeGFC", node).Menu("GFCPrincipal", command);
    }
    void SeeImage(int run, const std::string& image) {
        TheStory.Check([run, image](Driver& d) {
            EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", RunNode(run)), image);
        });
    }
    void OfferToConfigure(ui::Answer answer) {
        TheStory.Box("Configure Run", "The selected run is not configured. Do you want to configure it?",
                     ui::Icon::Information, answer);
    }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
        EXPECT_TRUE(TheStory.Done());
    }

    inline static const std::string Path = InJobs("KDOrmAGA_plant_North.ini");
    inline static const std::string Log = InJobs("KDOrmAGA_plant_North_Errors.log");
    inline static const std::string North = "All Stations\\North";
    inline static const std::string Runs = North + "\\Individual Parameters";
};

} // namespace gfc::test
