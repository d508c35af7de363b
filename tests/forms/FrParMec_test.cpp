#include "forms/FrParMec.h"
#include "forms/Step.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::forms {

namespace {

const std::string form = "FrParMec";
const std::string missing = "Missing Mechanical Parameters";
const std::string discard = "Are you sure want to discard the changes made to the current configuration ?";

struct FrParMecTest : testing::Test {
    FrParMecTest() {
        World.Station.SystemUnits = "US";
        World.Station.FlowAlgorithm = "AGA3";
        World.Session.EditRun = 2;
        World.Session.EditMode = EditMode::ModifyTags;
        World.Station.Runs.PrepareWholeStation(2);
    }

    // Shows the form and lets the story run in it.
    void Show() { World.Program.Forms.Get<FrParMec>().ShowModal(); }
    void ShowAndAccept() {
        Story.Click(form, "cmdAceptar");
        Show();
    }
    config::RunMechanical& Element(std::size_t run) { return World.Station.Runs.Mechanical.at(run); }
    void SeeTexts(const std::vector<std::pair<std::string, std::string>>& texts) {
        for (const auto& [control, text] : texts)
            Story.SeeText(form, control, text);
    }

    test::World World;
    test::Story& Story = World.TheStory;
    config::RunMechanical& Record = World.Session.EditedMechanical;
};

using FrParMecForm = FrParMecTest;

config::RunMechanical FullRecord() {
    config::RunMechanical record;
    record.InternalPipeDia = "4.026";
    record.PipeMaterial = "SS";
    record.InternalPipeDiaRefTemp = "70";
    record.OrificeDia = "1.5";
    record.OrificeMaterial = "MONEL";
    record.OrificeDiaRefTemp = "71";
    record.PressureTap = "Pipe";
    record.PressureTapPos = "Down";
    record.OrificeThermalExpCoeff = "0.00001";
    record.PipeThermalExpCoeff = "0.00002";
    record.ExtMechParam = "Yes";
    return record;
}

} // namespace

TEST_F(FrParMecForm, names_its_controls) {
    SeeTexts({{"Label9", "Internal Diameter"},
              {"Label8", "Bore size"},
              {"LabelMatPipe", "Material"},
              {"LabelMatOrif", "Material"},
              {"LabelTempRefPipe", "Ref. Temperature "},
              {"LabelTempRefOrif", "Ref. Temperature "},
              {"LabelPipeThermal", "Thermal Exp. Coeff."},
              {"LabelOrificeThermal", "Thermal Exp. Coeff."},
              {"FrameType", "Type"},
              {"OptFlange", "Flange"},
              {"OptPipe", "Pipe"},
              {"FrameLocation", "Location"},
              {"OptUp", "Upstream"},
              {"OptDown", "Downstream"},
              {"FrameSource", "Pipe/Orifice diameter source"},
              {"OptFixed", "Fixed"},
              {"OptExt", "External I/O"},
              {"FrameCopy", "Copy mechanical parameters from"},
              {"Check1", "Enable Copy"},
              {"Option1_0", "Run 1"},
              {"Option1_4", "Run 5"},
              {"cmdAceptar", "Accept"},
              {"cmdCancel", "Cancel"},
              {"cmdDefaultValue", "Default Value"},
              {"cmdHelp", "Help"}});
    ShowAndAccept();
}

TEST_F(FrParMecForm, is_left_by_its_own_buttons_only) {
    Story.CloseWindow(form).SeeShown(form).PressKey(form, "Escape").SeeShown(form);
    ShowAndAccept();
}

TEST_F(FrParMecForm, keeps_the_caption_of_its_caller) {
    World.Program.Forms.Get<FrParMec>().SetCaption("Mechanical Parameters Station: North, Run: 2");
    Story.SeeCaption(form, "Mechanical Parameters Station: North, Run: 2");
    ShowAndAccept();
}

TEST_F(FrParMecForm, offers_the_materials_in_order) {
    auto& shown = World.Program.Forms.Touch<FrParMec>();
    const std::vector<std::string> orifice{"CS - Carbon Steel", "SS - Stainless Steel", "MONEL", "1Cr18Ni9Ti",
                                           "Other"};
    const std::vector<std::string> pipe{"CS - Carbon Steel", "SS - Stainless Steel", "MONEL", "Other"};
    EXPECT_EQ(shown.cbMatOrif.Entries(), orifice);
    EXPECT_EQ(shown.cbMatPipe.Entries(), pipe);
}

TEST_F(FrParMecForm, shows_defaults_for_an_empty_record) {
    SeeTexts({{"cbMatOrif", "SS - Stainless Steel"}, {"cbMatPipe", "CS - Carbon Steel"}});
    for (const auto* option : {"OptFlange", "OptUp", "OptFixed"})
        Story.SeeChecked(form, option);
    for (const auto* off : {"txtPipeThermal", "txtOrificeThermal", "OptDown", "Option1_0", "Option1_4"})
        Story.SeeEnabled(form, off, false);
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeMaterial, "SS");
    EXPECT_EQ(Record.PipeMaterial, "CS");
    EXPECT_EQ(Record.PressureTap, "Flange");
    EXPECT_EQ(Record.PressureTapPos, "Up");
    EXPECT_EQ(Record.ExtMechParam, "No");
    EXPECT_EQ(Record.PipeThermalExpCoeff, "");
    EXPECT_FALSE(World.Session.Cancelled);
}

struct SystemRow {
    std::string System, Length, Temperature, Expansion;
    std::string OrificeAtLoad, PipeAtLoad, Orifice, Pipe, RefTemp;
};

struct FrParMecUnits : FrParMecTest, testing::WithParamInterface<SystemRow> {};

TEST_P(FrParMecUnits, give_captions_defaults_at_load_and_defaults_by_the_button) {
    const auto& row = GetParam();
    World.Station.SystemUnits = row.System;
    SeeTexts({{"Label14", row.Length},
              {"Label13", row.Length},
              {"Label17", row.Temperature},
              {"Label20", row.Temperature},
              {"Label2", row.Expansion},
              {"Label3", row.Expansion},
              {"txtDiaOrif", row.OrificeAtLoad},
              {"txtDiaPipe", row.PipeAtLoad},
              {"txtTempRefOrif", row.RefTemp},
              {"txtTempRefPipe", row.RefTemp}});
    Story.Click(form, "cmdDefaultValue");
    SeeTexts({{"txtDiaOrif", row.Orifice},
              {"txtDiaPipe", row.Pipe},
              {"txtTempRefOrif", row.RefTemp},
              {"txtTempRefPipe", row.RefTemp}});
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeDia, row.Orifice);
    EXPECT_EQ(Record.InternalPipeDia, row.Pipe);
    EXPECT_EQ(Record.OrificeDiaRefTemp, row.RefTemp);
    EXPECT_EQ(Record.InternalPipeDiaRefTemp, row.RefTemp);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Systems, FrParMecUnits, testing::Values(
    SystemRow{"US", "in", "ºF", "in/in ºF", "0.57811", "2.90039", "0.57811", "2.90039", "68.00"},
    SystemRow{"US-degC", "in", "ºC", "in/in ºF", "0.57811", "2.90039", "0.57811", "2.90039", "20.00"},
    SystemRow{"Metric", "mm", "ºC", "mm/mm ºC", "193.675", "363.513", "193.675", "363.513", "20.00"},
    SystemRow{"Metric-degF", "mm", "ºF", "mm/mm ºC", "193.675", "363.513", "193.675", "363.513", "68.00"},
    SystemRow{"Practical-SI", "mm", "ºC", "mm/mm ºC", "193.675", "363.513", "0.193675", "0.363513", "20.00"}));
// clang-format on

TEST_F(FrParMecForm, shows_and_stores_a_full_record_unchanged) {
    Record = FullRecord();
    SeeTexts({{"txtDiaPipe", "4.026"},
              {"cbMatPipe", "SS - Stainless Steel"},
              {"txtTempRefPipe", "70"},
              {"txtDiaOrif", "1.5"},
              {"cbMatOrif", "MONEL"},
              {"txtTempRefOrif", "71"}});
    for (const auto* option : {"OptPipe", "OptDown", "OptExt"})
        Story.SeeChecked(form, option);
    ShowAndAccept();
    EXPECT_EQ(Record.InternalPipeDia, "4.026");
    EXPECT_EQ(Record.PipeMaterial, "SS");
    EXPECT_EQ(Record.InternalPipeDiaRefTemp, "70");
    EXPECT_EQ(Record.OrificeDia, "1.5");
    EXPECT_EQ(Record.OrificeMaterial, "MONEL");
    EXPECT_EQ(Record.OrificeDiaRefTemp, "71");
    EXPECT_EQ(Record.PressureTap, "Pipe");
    EXPECT_EQ(Record.PressureTapPos, "Down");
    EXPECT_EQ(Record.ExtMechParam, "Yes");
}

TEST_F(FrParMecForm, stores_each_orifice_material_as_its_word) {
    const std::vector<std::string> words{"CS", "SS", "MONEL", "1Cr18Ni9Ti"};
    for (std::size_t i = 0; i < words.size(); ++i) {
        Record = {};
        Record.OrificeMaterial = words[i];
        ShowAndAccept();
        EXPECT_EQ(Record.OrificeMaterial, words[i]);
        Story.Select(form, "cbMatOrif", static_cast<int>(i));
        Record = {};
        ShowAndAccept();
        EXPECT_EQ(Record.OrificeMaterial, words[i]);
    }
}

TEST_F(FrParMecForm, stores_each_pipe_material_as_its_word) {
    const std::vector<std::string> words{"CS", "SS", "MONEL"};
    for (std::size_t i = 0; i < words.size(); ++i) {
        Record = {};
        Story.Select(form, "cbMatPipe", static_cast<int>(i));
        ShowAndAccept();
        EXPECT_EQ(Record.PipeMaterial, words[i]);
        ShowAndAccept();
        EXPECT_EQ(Record.PipeMaterial, words[i]);
    }
}

TEST_F(FrParMecForm, asks_a_coefficient_for_other_materials_alone) {
    Story.Select(form, "cbMatPipe", 3)
        .SeeEnabled(form, "txtPipeThermal")
        .Type(form, "txtPipeThermal", "0.0005")
        .Select(form, "cbMatOrif", 4)
        .SeeEnabled(form, "txtOrificeThermal")
        .Type(form, "txtOrificeThermal", "0.0006");
    ShowAndAccept();
    EXPECT_EQ(Record.PipeMaterial, "Other");
    EXPECT_EQ(Record.PipeThermalExpCoeff, "0.0005");
    EXPECT_EQ(Record.OrificeMaterial, "Other");
    EXPECT_EQ(Record.OrificeThermalExpCoeff, "0.0006");
}

TEST_F(FrParMecForm, colours_a_coefficient_that_cannot_be_given_as_a_face) {
    auto& shown = World.Program.Forms.Touch<FrParMec>();
    EXPECT_TRUE(shown.txtPipeThermal.FaceColoured());
    EXPECT_TRUE(shown.txtOrificeThermal.FaceColoured());
    shown.cbMatPipe.SetListIndex(3);
    shown.cbMatOrif.SetListIndex(4);
    EXPECT_FALSE(shown.txtPipeThermal.FaceColoured());
    EXPECT_FALSE(shown.txtOrificeThermal.FaceColoured());
    shown.cbMatOrif.SetListIndex(3);
    EXPECT_TRUE(shown.txtOrificeThermal.FaceColoured());
}

TEST_F(FrParMecForm, refuses_other_pipe_material_without_coefficient) {
    Story.Select(form, "cbMatPipe", 3).Click(form, "cmdAceptar");
    Story.Box("Mechanical Parameters", missing, ui::Icon::Exclamation)
        .SeeShown(form)
        .Type(form, "txtPipeThermal", "0.1");
    ShowAndAccept();
    EXPECT_EQ(Record.PipeThermalExpCoeff, "0.1");
}

TEST_F(FrParMecForm, refuses_other_orifice_material_without_coefficient) {
    Story.Select(form, "cbMatOrif", 4).Click(form, "cmdAceptar");
    Story.Box("Mechanical Parameters", missing, ui::Icon::Exclamation)
        .SeeShown(form)
        .Select(form, "cbMatOrif", 0);
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeMaterial, "CS");
}

TEST_F(FrParMecForm, stores_the_text_behind_a_named_material_as_it_stands) {
    Story.Select(form, "cbMatPipe", 3).Type(form, "txtPipeThermal", "0.7").Select(form, "cbMatPipe", 0);
    ShowAndAccept();
    EXPECT_EQ(Record.PipeMaterial, "CS");
    EXPECT_EQ(Record.PipeThermalExpCoeff, "0.7");
}

TEST_F(FrParMecForm, refuses_each_empty_value) {
    for (const auto* field : {"txtTempRefPipe", "txtTempRefOrif", "txtDiaPipe", "txtDiaOrif"}) {
        Story.Type(form, field, "").Click(form, "cmdAceptar");
        Story.Box("Mechanical Parameters", missing, ui::Icon::Exclamation).Type(form, field, "1");
    }
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeDia, "1");
}

TEST_F(FrParMecForm, shows_a_pipe_of_an_orifice_material_as_other) {
    Record.PipeMaterial = "1Cr18Ni9Ti";
    Record.PipeThermalExpCoeff = "0.3";
    SeeTexts({{"cbMatPipe", "Other"}, {"txtPipeThermal", "0.3"}});
    ShowAndAccept();
    EXPECT_EQ(Record.PipeMaterial, "Other");
}

TEST_F(FrParMecForm, shows_an_unknown_orifice_material_as_other) {
    Record.OrificeMaterial = "Brass";
    Record.OrificeThermalExpCoeff = "0.4";
    SeeTexts({{"cbMatOrif", "Other"}, {"txtOrificeThermal", "0.4"}});
    Story.SeeEnabled(form, "txtOrificeThermal");
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeThermalExpCoeff, "0.4");
}

TEST_F(FrParMecForm, knows_a_flange_tap_upstream_only) {
    Story.Click(form, "OptPipe").SeeEnabled(form, "OptDown").Click(form, "OptDown");
    Story.Click(form, "OptFlange").SeeEnabled(form, "OptDown", false).SeeChecked(form, "OptUp");
    ShowAndAccept();
    EXPECT_EQ(Record.PressureTap, "Flange");
    EXPECT_EQ(Record.PressureTapPos, "Up");
}

TEST_F(FrParMecForm, ignores_a_stored_downstream_flange) {
    Record.PressureTap = "Flange";
    Record.PressureTapPos = "Down";
    Story.SeeChecked(form, "OptFlange").SeeChecked(form, "OptUp");
    ShowAndAccept();
    EXPECT_EQ(Record.PressureTapPos, "Up");
}

TEST_F(FrParMecForm, ignores_a_stored_tap_without_position) {
    Record.PressureTap = "Pipe";
    Story.SeeChecked(form, "OptFlange").SeeChecked(form, "OptUp");
    ShowAndAccept();
    EXPECT_EQ(Record.PressureTap, "Flange");
}

TEST_F(FrParMecForm, stores_a_pipe_tap_upstream) {
    Record.PressureTap = "Pipe";
    Record.PressureTapPos = "Up";
    Story.SeeChecked(form, "OptPipe").SeeChecked(form, "OptUp").SeeEnabled(form, "OptDown");
    ShowAndAccept();
    EXPECT_EQ(Record.PressureTap, "Pipe");
    EXPECT_EQ(Record.PressureTapPos, "Up");
}

TEST_F(FrParMecForm, calls_the_second_tap_corner_under_SYT6143_and_stores_pipe) {
    World.Station.FlowAlgorithm = "SYT6143-2004";
    Story.SeeText(form, "OptPipe", "Corner").SeeChecked(form, "OptFlange");
    Story.Click(form, "OptPipe").SeeEnabled(form, "OptUp").SeeEnabled(form, "OptDown", false);
    ShowAndAccept();
    EXPECT_EQ(Record.PressureTap, "Pipe");
    EXPECT_EQ(Record.PressureTapPos, "Up");
}

TEST_F(FrParMecForm, disables_the_diameters_that_come_from_tags_and_still_wants_texts) {
    Story.Click(form, "OptExt");
    for (const auto* off : {"txtDiaPipe", "txtDiaOrif", "Label9", "Label14", "Label8", "Label13"})
        Story.SeeEnabled(form, off, false);
    Story.Click(form, "OptFixed");
    for (const auto* on : {"txtDiaPipe", "txtDiaOrif", "Label9", "Label14", "Label8", "Label13"})
        Story.SeeEnabled(form, on);
    Story.Type(form, "txtDiaPipe", "").Click(form, "OptExt").Click(form, "cmdAceptar");
    Story.Box("Mechanical Parameters", missing, ui::Icon::Exclamation);
    Story.Click(form, "OptFixed").Type(form, "txtDiaPipe", "5").Click(form, "OptExt");
    ShowAndAccept();
    EXPECT_EQ(Record.ExtMechParam, "Yes");
    EXPECT_EQ(Record.InternalPipeDia, "5");
}

TEST_F(FrParMecForm, reads_the_diameter_source_without_regard_to_case) {
    Record.ExtMechParam = "YES";
    Story.SeeChecked(form, "OptExt");
    ShowAndAccept();
    EXPECT_EQ(Record.ExtMechParam, "Yes");
}

TEST_F(FrParMecForm, goes_back_to_defaults_by_the_button) {
    Record = FullRecord();
    Record.PipeMaterial = "Other";
    Story.SeeEnabled(form, "txtPipeThermal").SeeEnabled(form, "txtDiaPipe", false);
    Story.Click(form, "cmdDefaultValue");
    SeeTexts({{"txtDiaPipe", "2.90039"},
              {"txtDiaOrif", "0.57811"},
              {"txtTempRefPipe", "68.00"},
              {"txtTempRefOrif", "68.00"},
              {"cbMatPipe", "CS - Carbon Steel"},
              {"cbMatOrif", "SS - Stainless Steel"},
              {"txtPipeThermal", "0.00002"}});
    for (const auto* option : {"OptFlange", "OptUp", "OptFixed"})
        Story.SeeChecked(form, option);
    for (const auto* on : {"txtDiaPipe", "txtDiaOrif", "txtTempRefPipe", "txtTempRefOrif", "cbMatPipe",
                           "cbMatOrif", "Label9", "Label8", "Label14", "Label13"})
        Story.SeeEnabled(form, on);
    Story.SeeEnabled(form, "txtPipeThermal", false).SeeEnabled(form, "txtOrificeThermal", false);
    ShowAndAccept();
    EXPECT_EQ(Record.ExtMechParam, "No");
}

TEST_F(FrParMecForm, offers_a_copy_from_other_runs_that_have_an_orifice) {
    for (const std::size_t run : {0U, 1U, 4U})
        Element(run).OrificeDia = "1";
    Element(2).InternalPipeDia = "1";
    Story.Click(form, "Check1")
        .SeeEnabled(form, "Option1_0")
        .SeeEnabled(form, "Option1_1", false) // the run itself
        .SeeEnabled(form, "Option1_2", false)
        .SeeEnabled(form, "Option1_3", false)
        .SeeEnabled(form, "Option1_4")
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_0", false)
        .SeeEnabled(form, "Option1_4", false);
    ShowAndAccept();
}

TEST_F(FrParMecForm, copies_the_whole_element_and_shows_it) {
    Element(4) = FullRecord();
    Element(4).AccelabarSize = "8";
    Story.Click(form, "Check1").Click(form, "Option1_4").SeeChecked(form, "Option1_4");
    SeeTexts({{"txtDiaPipe", "4.026"}, {"cbMatOrif", "MONEL"}, {"cbMatPipe", "SS - Stainless Steel"}});
    Story.SeeChecked(form, "OptDown").SeeChecked(form, "OptExt");
    ShowAndAccept();
    EXPECT_EQ(Record.AccelabarSize, "8");
    EXPECT_EQ(Record.OrificeDia, "1.5");
}

TEST_F(FrParMecForm, copies_on_the_mouse_press_and_not_by_the_keyboard) {
    Element(0) = FullRecord();
    auto& shown = World.Program.Forms.Touch<FrParMec>();
    shown.Check1.SetValue(true);
    shown.Option1[0].SetValue(true);
    EXPECT_EQ(shown.txtDiaPipe.Text(), "2.90039");
    EXPECT_TRUE(shown.Option1[0].PersonPresses());
    EXPECT_EQ(shown.txtDiaPipe.Text(), "4.026");
}

TEST_F(FrParMecForm, indexes_the_array_directly_in_the_arrangement_of_one_run) {
    World.Station.Runs.PrepareSingleRun();
    Element(0) = FullRecord();
    Story.Click(form, "Check1").SeeEnabled(form, "Option1_0").SeeEnabled(form, "Option1_1", false);
    Story.Click(form, "Option1_0").SeeText(form, "txtDiaPipe", "4.026");
    ShowAndAccept();
}

TEST_F(FrParMecForm, filters_keys_and_checks_the_shape_in_all_six_fields) {
    Story.Select(form, "cbMatPipe", 3).Select(form, "cbMatOrif", 4);
    for (const auto* field : {"txtDiaPipe", "txtTempRefPipe", "txtPipeThermal", "txtDiaOrif",
                              "txtTempRefOrif", "txtOrificeThermal"}) {
        Story.Type(form, field, "x1.-2.3").SeeText(form, field, "1.2.3").Focus(form, "cmdHelp");
        Story.Box("Incorrect value", "", ui::Icon::Exclamation).Check([field](test::Driver& d) {
            EXPECT_EQ(d.Focused(form), field);
        });
        Story.Type(form, field, "7");
    }
    ShowAndAccept();
    EXPECT_EQ(Record.OrificeThermalExpCoeff, "7");
}

TEST_F(FrParMecForm, stays_when_the_cancel_is_not_meant) {
    Story.Click(form, "cmdCancel");
    Story.Box("Close mechanical parameters", discard, ui::Icon::None, ui::Answer::No).SeeShown(form);
    ShowAndAccept();
    EXPECT_FALSE(World.Session.Cancelled);
}

TEST_F(FrParMecForm, cancels_without_touching_the_record) {
    const auto before = Record = FullRecord();
    (void)World.Program.Forms.Touch<Step>();
    Story.Type(form, "txtTempRefPipe", "99").Click(form, "cmdCancel");
    Story.Box("Close mechanical parameters", discard, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_TRUE(World.Session.Cancelled);
    EXPECT_EQ(Record, before);
    EXPECT_FALSE(World.Program.Forms.IsLoaded<FrParMec>());
    EXPECT_FALSE(World.Program.Forms.IsLoaded<Step>());
}

TEST_F(FrParMecForm, opens_its_help) {
    Story.Click(form, "cmdHelp").PressKey(form, "F1");
    ShowAndAccept();
    const std::pair<std::string, int> page{"AGA.chm", 5100};
    EXPECT_EQ(World.Screen.HelpOpened, (std::vector{page, page}));
}

TEST_F(FrParMecForm, opens_the_contents_while_its_help_button_is_off) {
    World.Program.Forms.Touch<FrParMec>().cmdHelp.SetEnabled(false);
    Story.PressKey(form, "F1");
    ShowAndAccept();
    EXPECT_EQ(World.Screen.HelpOpened.front().second, 0);
}

} // namespace gfc::forms
