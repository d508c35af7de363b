#include "forms/editors/FrParMecWorld.h"
#include "forms/station/Step.h"

namespace gfc::forms {

using namespace parmec;

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
