#include "forms/editors/FrParMecWorld.h"

namespace gfc::forms {

using namespace parmec;

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

} // namespace gfc::forms
