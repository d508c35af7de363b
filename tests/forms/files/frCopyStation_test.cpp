#include "forms/files/frCopyStation.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;

struct CopyStationForm : testing::Test, World {
    CopyStationForm() {
        for (const char* name : {"West", "North", "South", "East"})
            AddStation(name, {});
        OpenProject();
        Files.Content["/jobs/KDOrmAGA_plant_North.ini"] = "[General]\r\n";
    }
    void Show() { Program.Forms.Get<forms::frCopyStation>().ShowModal(); }
};

TEST_F(CopyStationForm, offers_the_stations_without_a_configuration_in_the_projects_order) {
    TheStory.SeeCaption("frCopyStation", "Name of the destination station to configure")
        .SeeText("frCopyStation", "Label1",
                 "Please select the destination station to copy the configuration to:")
        .SeeText("frCopyStation", "Command1", "Accept")
        .SeeText("frCopyStation", "Command2", "Cancel")
        .SeeText("frCopyStation", "Combo1", "West")
        .Check([this](Driver&) {
            EXPECT_EQ(Program.Forms.Get<forms::frCopyStation>().Combo1.Entries(),
                      (Names{"West", "South", "East"}));
        })
        .Click("frCopyStation", "Command1");
    Show();
    EXPECT_EQ(Session.CopyDestination, "West");
    EXPECT_FALSE(Program.Forms.IsLoaded<forms::frCopyStation>());
}

TEST_F(CopyStationForm, offers_no_station_whose_name_no_file_can_bear) {
    for (const char* name : {"Skid/4", "Skid\\4", ".."})
        AddStation(name, {});
    OpenProject();
    TheStory
        .Check([this](Driver&) {
            EXPECT_EQ(Program.Forms.Get<forms::frCopyStation>().Combo1.Entries(),
                      (Names{"West", "South", "East", ".."}));
        })
        .Click("frCopyStation", "Command2");
    Show();
}

TEST_F(CopyStationForm, hands_back_the_selected_station) {
    TheStory.Select("frCopyStation", "Combo1", 2).Click("frCopyStation", "Command1");
    Show();
    EXPECT_EQ(Session.CopyDestination, "East");
}

TEST_F(CopyStationForm, hands_back_none_on_cancel) {
    Session.CopyDestination = "South";
    TheStory.Click("frCopyStation", "Command2");
    Show();
    EXPECT_EQ(Session.CopyDestination, "");
}

TEST_F(CopyStationForm, can_be_closed_without_an_answer) {
    TheStory.CloseWindow("frCopyStation");
    Show();
    EXPECT_EQ(Session.CopyDestination, "");
}

} // namespace

} // namespace gfc::test
