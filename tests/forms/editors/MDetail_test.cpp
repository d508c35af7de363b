#include "forms/editors/MDetailWorld.h"
#include "forms/station/Step.h"

namespace gfc::forms {

using namespace mdetail;

TEST_F(MDetailForm, names_its_controls) {
    for (const auto& component : components)
        Story.SeeText(form, component.Label, component.Caption);
    const std::vector<std::pair<std::string, std::string>> captions{
        {"lbPrompt", "Enter/Edit the gas composition for Run 2"},
        {"Frame1", "GAS COMPOSITION (Mole Fraction)"},
        {"Frame2", "Copy gas composition from:"},
        {"Option1_0", "Run 1"},
        {"Option1_4", "Run 5"},
        {"CopyGasCompButton", "Copy"},
        {"Command1", "&Accept"},
        {"Command2", "&Undo All"},
        {"Command3", "&Cancel"},
        {"HelpCompGas", "&Help"},
    };
    for (const auto& [control, caption] : captions)
        Story.SeeText(form, control, caption);
    Story.SeeCaption(form, "Gas Composition").CloseWindow(form).SeeShown(form);
    ShowAndAccept();
}

TEST_F(MDetailForm, shows_defaults_and_stores_them_where_nothing_was_entered) {
    Gas(Slot::GC_C1) = "0.5"; // without nitrogen the other values do not count
    SeeDefaults();
    ShowAndAccept();
    for (const auto& component : components)
        EXPECT_EQ(Gas(component.Value), component.Default) << component.Caption;
    EXPECT_TRUE(World.Session.GasAccepted);
    EXPECT_FALSE(World.Session.Cancelled);
    EXPECT_FALSE(World.Program.Forms.IsLoaded<MDetail>());
}

TEST_F(MDetailForm, has_defaults_that_add_up_to_one) {
    long sum = 0;
    for (const auto& component : components)
        sum += std::stol(component.Default.substr(2)) + std::stol(component.Default.substr(0, 1)) * 1000000;
    EXPECT_EQ(sum, 1000000);
}

TEST_F(MDetailForm, shows_what_was_entered) {
    Fill(World.Station.GasComposition);
    SeeNumbers();
    ShowAndAccept();
    for (std::size_t i = 0; i < components.size(); ++i)
        EXPECT_EQ(Gas(components[i].Value), Number(i));
}

TEST_F(MDetailForm, accepts_any_total) {
    for (const auto& component : components)
        Story.Type(form, component.Field, "0");
    Story.Type(form, "Text1", "50").Type(form, "Text10", "50");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_N2), "50");
    EXPECT_EQ(Gas(Slot::GC_C1), "50");
    Story.Type(form, "Text1", "0.5").Type(form, "Text10", "0.4");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_C1), "0.4");
}

TEST_F(MDetailForm, empties_the_fields_alone_by_undo_all) {
    Fill(World.Station.GasComposition);
    Story.Click(form, "Command2");
    for (const auto& component : components)
        Story.SeeText(form, component.Field, "");
    Story.Check([this](test::Driver&) { EXPECT_EQ(Gas(Slot::GC_N2), "0.01"); });
    Story.Click(form, "Command1");
    Story.Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered", ui::Icon::Exclamation);
    Story.Click(form, "Command3");
    Story.Box("Orm Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_EQ(Gas(Slot::GC_N2), "0.01");
    EXPECT_FALSE(World.Session.GasAccepted);
}

TEST_F(MDetailForm, cancels_for_a_yes_alone) {
    World.Session.EditMode = EditMode::ModifyTags;
    World.Session.GasAccepted = true; // of an earlier showing
    (void)World.Program.Forms.Touch<Step>();
    Story.Click(form, "Command3");
    Story.Box("Orm Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::No);
    Story.SeeShown(form).Check([this](test::Driver&) { EXPECT_FALSE(World.Session.Cancelled); });
    Story.Click(form, "Command3");
    Story.Box("Orm Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_TRUE(World.Session.Cancelled);
    EXPECT_FALSE(World.Session.GasAccepted);
    EXPECT_FALSE(World.Program.Forms.IsLoaded<MDetail>());
    EXPECT_FALSE(World.Program.Forms.IsLoaded<Step>());
}

TEST_F(MDetailForm, opens_its_help_by_button_and_key) {
    Story.Click(form, "HelpCompGas").PressKey(form, "F1");
    Story.Do("take the button away",
             [this](test::Driver&) { World.Program.Forms.Get<MDetail>().HelpCompGas.SetVisible(false); });
    Story.PressKey(form, "F1");
    ShowAndAccept();
    const std::vector<std::pair<std::string, int>> pages{
        {"AGA.chm", 4000}, {"AGA.chm", 4000}, {"AGA.chm", 0}};
    EXPECT_EQ(World.Screen.HelpOpened, pages);
}

} // namespace gfc::forms
