#include "ModifyWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Form = ModifyWorld::Form;
const std::string Title = "Change I/O Tags and Gas Composition";

struct Captions {
    ModifyChoices Choices;
    std::vector<std::string> Texts; // of Check1 to Check6
};

std::string Box(int number) {
    return "Check" + std::to_string(number);
}

std::vector<int> VisibleBoxes(ModifyWorld& world) {
    std::vector<int> visible;
    world.TheStory.Check([&visible](Driver& eyes) {
        for (int box = 1; box <= 6; ++box)
            if (eyes.Visible(Form, Box(box)))
                visible.push_back(box);
    });
    world.LookAndCancel();
    return visible;
}

} // namespace

TEST(FrModificarTags, names_the_boxes_by_the_configuration) {
    const std::string gas4 = "AGA-8 / ISO-12213-3-1997 Outputs ";
    const std::string gas5 = "Gas Composition Inputs";
    const std::string gas6 = "Change Fixed Gas Composition";
    const std::string gross4 = "SGERG-88 / ISO-12213-3-1997 Outputs";
    const std::string gross5 = "SGERG-88 / ISO-12213-3-1997 inputs";
    const std::string gross6 = "Change fixed SGERG-88 / ISO-12213-3-1997 parameters";
    const std::string mechanical = "Mechanical Parameters";
    const std::vector<Captions> all = {
        {{"AGA3", "AGA8"}, {"AGA-3 Inputs", "AGA-3 Outputs", mechanical, gas4, gas5, gas6}},
        {{"AGA7", "ISO-12213-2-1997"}, {"AGA-7 Inputs", "AGA-7 Outputs", mechanical, gas4, gas5, gas6}},
        {{"SYT6143-2004", "SGERG88"},
         {"SYT6143-2004 Inputs", "SYT6143-2004 Outputs", mechanical, gross4, gross5, gross6}},
        {{"Accelabar-AGA-3-1992", "ISO-12213-3-1997"},
         {"AGA-3 Inputs", "AGA-3-Outputs", "Accelabar parameters", gross4, gross5, gross6}},
    };
    for (const auto& row : all) {
        ModifyWorld world(row.Choices);
        for (int box = 1; box <= 6; ++box)
            world.TheStory.SeeText(Form, Box(box), row.Texts.at(static_cast<std::size_t>(box - 1)));
        world.TheStory.SeeText(Form, "Frame1", "          Edit Run Parameters")
            .SeeText(Form, "Command1", "Accept")
            .SeeText(Form, "Command2", "Cancel");
        world.LookAndCancel();
    }
}

TEST(FrModificarTags, shows_what_can_be_edited_under_the_choices) {
    struct Row {
        ModifyChoices Choices;
        std::vector<int> Boxes;
    };
    const std::vector<Row> rows = {
        {{"AGA3", "AGA8", "FIXED"}, {1, 2, 3, 4, 6}},
        {{"AGA3", "AGA8", "MEASURED"}, {1, 2, 3, 4, 5}},
        {{"SYT6143-2004", "SGERG88", "FIXED"}, {1, 2, 3, 4, 6}},
        {{"Accelabar-AGA-3-1992", "ISO-12213-3-1997", "MEASURED"}, {1, 2, 3, 4, 5}},
        {{"AGA7", "ISO-12213-2-1997", "FIXED"}, {1, 2, 4, 6}},
        {{"AGA7", "SGERG88", "MEASURED"}, {1, 2, 4, 5}},
        {{"AGA3", "MEASURED"}, {1, 2, 3}},
        {{"AGA7", "MEASURED"}, {1, 2}},
    };
    for (const auto& row : rows) {
        ModifyWorld world(row.Choices);
        EXPECT_EQ(VisibleBoxes(world), row.Boxes) << row.Choices.Algorithm << " " << row.Choices.Source;
    }
}

TEST(FrModificarTags, names_the_run_that_is_selected_in_the_tree) {
    ModifyWorld world({.Runs = {1, 4}});
    world.SelectRun(4);
    world.TheStory.SeeCaption(Form, Title + "   Station : North (Run 4)").Check([&world](Driver&) {
        EXPECT_THAT(world.Station.Run, ElementsAre("No", "No", "No", "Yes", "No"));
        EXPECT_EQ(world.Station.RunList[3].Flag, "Yes");
        EXPECT_EQ(world.Station.RunList[0].Flag, "No");
        EXPECT_EQ(world.Station.ActiveRunCount, 1);
        EXPECT_EQ(world.Session.EditMode, forms::EditMode::ModifyTags);
    });
    world.LookAndCancel();
}

TEST(FrModificarTags, takes_the_first_enabled_run_for_the_node_of_all_runs) {
    ModifyWorld world({.Runs = {3, 5}});
    world.SelectNode("Individual Parameters");
    world.TheStory.SeeCaption(Form, Title + "   Station : North (Run 3)").Check([&world](Driver&) {
        EXPECT_THAT(world.Station.Run, ElementsAre("No", "No", "Yes", "No", "No"));
    });
    world.LookAndCancel();
}

TEST(FrModificarTags, keeps_title_and_flags_where_no_run_is_enabled) {
    ModifyWorld world;
    world.Put("FlowRuns", "Run2", "No");
    world.Put("FlowRuns", "Run4", "yes"); // not the text that counts
    world.SelectNode("Individual Parameters");
    world.TheStory.SeeCaption(Form, Title).Check([&world](Driver&) {
        EXPECT_THAT(world.Station.Run, ElementsAre("No", "No", "No", "yes", "No"));
    });
    world.LookAndCancel();
}

TEST(FrModificarTags, edits_the_selected_run_even_if_it_is_off) {
    ModifyWorld world;
    world.Put("FlowRuns", "Run3", "No");
    world.SelectRun(3);
    world.TheStory.SeeCaption(Form, Title + "   Station : North (Run 3)").Check([&world](Driver&) {
        EXPECT_THAT(world.Station.Run, ElementsAre("No", "No", "Yes", "No", "No"));
    });
    const std::string before = world.Content();
    world.LookAndCancel();
    EXPECT_EQ(world.Content(), before);
}

TEST(FrModificarTags, leaves_the_flags_alone_on_any_other_path) {
    ModifyWorld world;
    world.SelectNode("Common Parameters");
    world.TheStory.SeeCaption(Form, Title).Check([&world](Driver&) {
        EXPECT_THAT(world.Station.Run, ElementsAre("No", "Yes", "No", "Yes", "No"));
    });
    world.LookAndCancel();
}

TEST(FrModificarTags, holds_the_working_modules_out_of_sight) {
    ModifyWorld world;
    auto& tags = world.Library.TagsOf.at("North");
    tags += TagsInModule("VA9", "Virtual AI", "AX", "ALOG9-", 32, 801);
    world.OpenStation("North");
    world.Put("FlowRuns", "WrkAnalogModName", "va9"); // modules are named without regard to case
    world.TheStory.Check([&world](Driver& eyes) {
        auto& form = world.TheForm();
        EXPECT_THAT(form.Combo1.Entries(), ElementsAre("VA0", "VA9"));
        EXPECT_THAT(form.Combo2.Entries(), ElementsAre("VL0", "VL1"));
        EXPECT_THAT(form.Combo3.Entries(), ElementsAre("VF0", "VF1"));
        EXPECT_EQ(form.Combo1.Text(), "VA9");
        EXPECT_EQ(form.Combo2.Text(), "VL0");
        EXPECT_EQ(form.Combo3.Text(), "VF0");
        for (const char* combo : {"Combo1", "Combo2", "Combo3"})
            EXPECT_FALSE(eyes.Visible(Form, combo)) << combo;
    });
    world.LookAndCancel();
}

TEST(FrModificarTags, shows_no_module_that_the_station_has_lost) {
    ModifyWorld world;
    world.Put("FlowRuns", "WrkIntLongModName", "VL7");
    world.TheStory.Check([&world](Driver&) { EXPECT_EQ(world.TheForm().Combo2.Text(), ""); });
    world.LookAndCancel();
}

TEST(FrModificarTags, asks_for_a_choice_and_stays) {
    ModifyWorld world;
    const std::string question = "Please Select the option that you want to edit";
    world.TheStory.Click(Form, "Command1")
        .Box("AGA", question, ui::Icon::Information)
        .SeeShown(Form)
        .Click(Form, "Check2")
        .SeeChecked(Form, "Check2")
        // Taken back again: nothing is chosen.
        .Click(Form, "Check2")
        .Click(Form, "Command1")
        .Box("AGA", question, ui::Icon::Information)
        .SeeShown(Form);
    world.LookAndCancel();
}

TEST(FrModificarTags, writes_nothing_when_it_is_cancelled) {
    ModifyWorld world;
    const auto before = world.Files.Content;
    world.TheStory.Click(Form, "Check1").Click(Form, "Check3");
    world.LookAndCancel();
    EXPECT_EQ(world.Files.Content, before);
}

TEST(FrModificarTags, writes_nothing_when_its_window_is_closed) {
    ModifyWorld world;
    const auto before = world.Files.Content;
    world.TheStory.Click(Form, "Check1").CloseWindow(Form).SeeShown(Form, false);
    world.Play();
    world.Screen.PlayOut();
    EXPECT_EQ(world.Files.Content, before);
    EXPECT_EQ(world.Session.EditMode, forms::EditMode::None);
}

TEST(FrModificarTags, empties_the_station_when_it_closes) {
    ModifyWorld world;
    world.LookAndCancel();
    const auto& station = world.Station;
    EXPECT_THAT(station.Run, testing::Each(std::string()));
    EXPECT_EQ(station.FlowAlgorithm + station.GasDensitySource + station.StandardT + station.AGA8CalInput,
              "");
    EXPECT_EQ(station.ActiveRunCount, 0);
    EXPECT_THAT(station.Runs.IO, IsEmpty());
    EXPECT_THAT(world.Session.Inventory.VirtFX, IsEmpty());
    EXPECT_THAT(world.Session.Expected.ExpectedFloat, IsEmpty());
    EXPECT_EQ(world.Session.Modules.NFX + world.Session.Modules.NAX + world.Session.Modules.NLX, 0);
    EXPECT_EQ(world.Session.EditMode, forms::EditMode::None);
    // What is not the station's stays.
    EXPECT_EQ(station.UserId, "4711");
    EXPECT_EQ(station.ProjectName, "plant");
    EXPECT_EQ(station.ProjectFile, "/jobs/plant.KPJ");
}

TEST(FrModificarTags, starts_afresh_each_time) {
    ModifyWorld world;
    world.TheStory.Click(Form, "Check1");
    world.LookAndCancel();
    world.OpenStation("North");
    world.SelectRun(4);
    world.TheStory.SeeChecked(Form, "Check1", false)
        .SeeCaption(Form, Title + "   Station : North (Run 4)")
        .Click(Form, "Command1")
        .Box("AGA", "", ui::Icon::Information);
    world.LookAndCancel();
}

} // namespace gfc::test
