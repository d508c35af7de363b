#include "forms/MDetail.h"
#include "forms/Step.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::forms {

namespace {

using Slot = config::GasSlot;

const std::string form = "MDetail";
const std::string shapeText = "Error: Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";
const std::string rangeText = "Error: The range should be: [0-100]%";
const std::string cancelText = "Are you sure  you to want to cancel?. All changes will be lost";

struct Component {
    std::string Field, Label, Caption, Default;
    Slot Value;
};

// clang-format off
const std::vector<Component> components{
    {"Text1",  "Label1",  "Nitrogen",        "0.002595", Slot::GC_N2},
    {"Text8",  "Label8",  "Water",           "0.000000", Slot::GC_H2O},
    {"Text9",  "Label9",  "Helium",          "0.000000", Slot::GC_He},
    {"Text10", "Label10", "Methane",         "0.965222", Slot::GC_C1},
    {"Text11", "Label11", "Ethane",          "0.018186", Slot::GC_C2},
    {"Text12", "Label12", "Propane",         "0.004596", Slot::GC_C3},
    {"Text13", "Label13", "iButane",         "0.000977", Slot::GC_iC4},
    {"Text14", "Label14", "nButane",         "0.001007", Slot::GC_nC4},
    {"Text15", "Label15", "iPentane",        "0.000473", Slot::GC_iC5},
    {"Text16", "Label16", "nPentane",        "0.000324", Slot::GC_nC5},
    {"Text17", "Label17", "nHexane",         "0.000664", Slot::GC_nC6},
    {"Text18", "Label18", "nHeptane",        "0.000000", Slot::GC_nC7},
    {"Text19", "Label19", "nOctane ",        "0.000000", Slot::GC_nC8},
    {"Text20", "Label20", "nNonane",         "0.000000", Slot::GC_nC9},
    {"Text21", "Label21", "nDecane",         "0.000000", Slot::GC_nC10},
    {"Text22", "Label22", "Oxygen",          "0.000000", Slot::GC_O2},
    {"Text23", "Label23", "Carbon Monoxide", "0.000000", Slot::GC_CO},
    {"Text24", "Label24", "Hydrogen",        "0.000000", Slot::GC_H},
    {"Text25", "Label25", "Carbon Dioxide",  "0.005956", Slot::GC_CO2},
    {"Text26", "Label26", "H2S",             "0.000000", Slot::GC_H2S},
    {"Text27", "Label27", "Argon",           "0.000000", Slot::GC_Ar},
};
// clang-format on

struct MDetailForm : testing::Test {
    MDetailForm() {
        World.OpenProject();
        World.Station.CurrentStation = "North";
        World.Station.GasDensitySource = "AGA8";
        World.Session.EditMode = EditMode::Wizard;
        World.ActivateRuns({2, 5});
        World.Session.GasRun = 1;
    }

    void Show() { World.Program.Forms.Get<MDetail>().ShowModal(); }
    void ShowAndAccept() {
        Story.Click(form, "Command1");
        Show();
    }
    std::string& Gas(Slot slot) { return World.Station.GasComposition[slot].Tag; }
    // "0.01", "0.02", ... in the order of the form.
    void Fill(config::RunGas& gas) {
        for (std::size_t i = 0; i < components.size(); ++i)
            gas[components[i].Value].Tag = Number(i);
    }
    static std::string Number(std::size_t i) { return (i < 9 ? "0.0" : "0.") + std::to_string(i + 1); }
    void SeeNumbers() {
        for (std::size_t i = 0; i < components.size(); ++i)
            Story.SeeText(form, components[i].Field, Number(i));
    }
    void SeeDefaults() {
        for (const auto& component : components)
            Story.SeeText(form, component.Field, component.Default);
    }
    void WriteKey(const std::string& section, const std::string& key, const std::string& value) {
        World.Program.Ini.WriteKey(section, key, value, World.ConfigFile("North"));
    }
    // Leaves a field and sees what is selected then.
    void LeaveAndSee(const std::string& left, const std::string& text, const std::string& selected,
                     int length) {
        StandIn(left);
        Story.Focus(form, "HelpCompGas");
        Story.Box("Incorrect value", text, ui::Icon::Exclamation);
        Story.Check([this, selected, length](test::Driver& d) {
            EXPECT_EQ(d.Focused(form), selected);
            const auto& field = Field(selected);
            EXPECT_EQ(field.SelStart(), 0);
            EXPECT_EQ(field.SelLength(), length) << selected;
        });
    }
    void LeaveFreely(const std::string& left) {
        StandIn(left);
        Story.Focus(form, "HelpCompGas").Check([](test::Driver& d) {
            EXPECT_EQ(d.Focused(form), "HelpCompGas");
        });
    }
    // By program, as no field is checked then.
    void StandIn(const std::string& field) {
        Story.Do("stand in " + field, [this, field](test::Driver&) { Field(field).SetFocus(); });
    }
    void Put(const std::string& field, const std::string& text) {
        Story.Do("put " + text, [this, field, text](test::Driver&) { Field(field).SetText(text); });
    }
    ui::TextBox& Field(const std::string& name) {
        auto& shown = World.Program.Forms.Get<MDetail>();
        return static_cast<ui::TextBox&>(*shown.Find(name));
    }

    test::World World;
    test::Story& Story = World.TheStory;
};

} // namespace

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

TEST_F(MDetailForm, refuses_each_empty_field_and_stores_nothing) {
    for (const auto& component : components) {
        Put(component.Field, "");
        Story.Click(form, "Command1");
        Story.Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered", ui::Icon::Exclamation);
        Story.SeeShown(form).Check([this](test::Driver&) {
            EXPECT_FALSE(World.Session.GasAccepted);
            EXPECT_EQ(Gas(Slot::GC_C2), "");
        });
        Put(component.Field, "1");
    }
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_Ar), "1");
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

TEST_F(MDetailForm, filters_keys_in_all_fields) {
    for (const auto& component : components)
        Story.Type(form, component.Field, "a-1,.\r25").SeeText(form, component.Field, "1.25");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_Ar), "1.25");
}

struct MDetailOrdinary : MDetailForm, testing::WithParamInterface<int> {};

// Fields that look at themselves alone.
TEST_P(MDetailOrdinary, field_is_held_by_its_own_shape_and_range) {
    const std::string field = "Text" + std::to_string(GetParam());
    Put(field, "1.2.3");
    LeaveAndSee(field, shapeText, field, 5);
    Put(field, "1000");
    LeaveAndSee(field, rangeText, field, 4);
    for (const auto* good : {"100", "100.0", "99.5", ".5", "", "0"}) {
        Put(field, good);
        LeaveFreely(field);
    }
    for (const auto* bad : {"101", "100.5", "150.0", "1000.5"}) {
        Put(field, bad);
        LeaveAndSee(field, rangeText, field, static_cast<int>(std::string(bad).size()));
    }
    Put(field, "1");
    ShowAndAccept();
}

INSTANTIATE_TEST_SUITE_P(Fields, MDetailOrdinary,
                         testing::Values(8, 9, 10, 11, 12, 13, 14, 15, 18, 19, 20, 23, 24, 25, 26));

TEST_F(MDetailForm, field_one_selects_by_the_length_of_field_ten_at_a_range_failure) {
    Put("Text10", "0.96522200");
    Put("Text1", "1.2.3");
    LeaveAndSee("Text1", shapeText, "Text1", 5);
    Put("Text1", "1000");
    LeaveAndSee("Text1", rangeText, "Text1", 10);
    Put("Text1", "1");
    ShowAndAccept();
}

TEST_F(MDetailForm, fields_sixteen_and_22_select_by_the_length_of_field_thirteen_at_a_shape_failure) {
    Put("Text13", "0.0009770");
    for (const auto* field : {"Text16", "Text22"}) {
        Put(field, "1.2.3");
        LeaveAndSee(field, shapeText, field, 9);
        Put(field, "101");
        LeaveAndSee(field, rangeText, field, 3);
        Put(field, "1");
    }
    ShowAndAccept();
}

TEST_F(MDetailForm, field_seventeen_tests_field_sixteen_and_never_itself) {
    Put("Text17", "1.2.3");
    LeaveFreely("Text17");
    Put("Text17", "1000");
    LeaveFreely("Text17");
    Put("Text16", "1.2.34");
    LeaveAndSee("Text17", shapeText, "Text16", 6);
    Put("Text16", "1001");
    LeaveAndSee("Text17", rangeText, "Text16", 4);
    Put("Text16", "1");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_nC6), "1000");
}

TEST_F(MDetailForm, field_21_tests_the_shape_of_thirteen_and_the_range_of_twenty) {
    Put("Text21", "1.2.3");
    LeaveFreely("Text21");
    Put("Text21", "1000");
    LeaveFreely("Text21");
    Put("Text13", "1..3");
    LeaveAndSee("Text21", shapeText, "Text13", 4);
    Put("Text13", "1000"); // its range is not looked at from here
    LeaveFreely("Text21");
    Put("Text20", "1.2.3"); // nor the shape of this one
    LeaveFreely("Text21");
    Put("Text20", "10000");
    LeaveAndSee("Text21", rangeText, "Text20", 5);
    Put("Text20", "1");
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_nC10), "1000");
}

TEST_F(MDetailForm, field_27_tests_itself_and_selects_field_thirteen) {
    Put("Text13", "0.0009770");
    Put("Text27", "1.2.3");
    LeaveAndSee("Text27", shapeText, "Text13", 9);
    Put("Text27", "1000");
    LeaveAndSee("Text27", rangeText, "Text13", 4);
    Put("Text27", "1");
    LeaveFreely("Text27");
    ShowAndAccept();
}

TEST_F(MDetailForm, shows_one_box_for_a_text_that_fails_both_checks) {
    Put("Text9", "1000.1.1");
    LeaveAndSee("Text9", shapeText, "Text9", 8);
    Put("Text9", "1");
    ShowAndAccept();
}

TEST_F(MDetailForm, offers_active_runs_entered_before_in_the_wizard) {
    World.ActivateRuns({1, 2, 4, 5});
    World.Station.RunList.at(3).Flag = "yEs";
    World.Station.Runs.Gas.at(0)[Slot::GC_C1].Tag = "0.9"; // run 1
    World.Station.Runs.Gas.at(1)[Slot::GC_C1].Tag = "0.9"; // run 2, the edited one
    World.Station.Runs.Gas.at(2)[Slot::GC_N2].Tag = "0.9"; // run 4 without methane
    World.Station.Runs.Gas.at(3)[Slot::GC_C1].Tag = "0.9"; // run 5
    Story.SeeEnabled(form, "Option1_0")
        .SeeEnabled(form, "Option1_1", false)
        .SeeEnabled(form, "Option1_2", false)
        .SeeEnabled(form, "Option1_3", false)
        .SeeEnabled(form, "Option1_4")
        .SeeEnabled(form, "CopyGasCompButton");
    ShowAndAccept();
}

TEST_F(MDetailForm, counts_a_flag_in_any_case_as_active) {
    World.ActivateRuns({2, 5});
    World.Station.RunList.at(4).Flag = "YES";
    World.Station.Runs.Gas.at(1)[Slot::GC_C1].Tag = "0.9";
    Story.SeeEnabled(form, "Option1_4");
    ShowAndAccept();
}

TEST_F(MDetailForm, offers_nothing_for_the_only_active_run) {
    World.ActivateRuns({2});
    World.Station.Runs.Gas.at(0)[Slot::GC_C1].Tag = "0.9";
    for (const auto* off :
         {"Option1_0", "Option1_1", "Option1_2", "Option1_3", "Option1_4", "CopyGasCompButton"})
        Story.SeeEnabled(form, off, false);
    ShowAndAccept();
}

TEST_F(MDetailForm, copies_in_memory_by_the_place_among_the_active_runs) {
    World.Session.EditMode = EditMode::Configurator;
    Fill(World.Station.Runs.Gas.at(1)); // run 5 is the second active one
    Story.Click(form, "Option1_4").Click(form, "CopyGasCompButton");
    SeeNumbers();
    Story.Check([this](test::Driver&) { EXPECT_EQ(Gas(Slot::GC_N2), ""); });
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::GC_Ar), Number(20));
}

TEST_F(MDetailForm, wants_a_source_chosen_before_it_copies) {
    Fill(World.Station.Runs.Gas.at(1));
    Story.Click(form, "CopyGasCompButton");
    Story.Box("Copy Gas Composition",
              "Error: Can't copy gas composition, no source Run selected. Please select a Run to copy from.",
              ui::Icon::Exclamation);
    SeeDefaults();
    ShowAndAccept();
}

struct MDetailFromFile : MDetailForm, testing::WithParamInterface<EditMode> {};

TEST_P(MDetailFromFile, offers_the_active_runs_of_the_file_and_replaces_the_composition_at_once) {
    World.Session.EditMode = GetParam();
    WriteKey("FlowRuns", "Run1", "YES");
    WriteKey("FlowRuns", "Run2", "Yes");
    WriteKey("FlowRuns", "Run3", "No");
    WriteKey("FlowRuns", "Run5", "Yes");
    WriteKey("Run5", "GC_N2", "0.125");
    WriteKey("Run5", "GC_Ar", "0.25");
    Story.SeeEnabled(form, "Option1_0")
        .SeeEnabled(form, "Option1_1", false) // the run itself
        .SeeEnabled(form, "Option1_2", false)
        .SeeEnabled(form, "Option1_3", false)
        .SeeEnabled(form, "Option1_4")
        .Click(form, "Option1_4")
        .Click(form, "CopyGasCompButton")
        .SeeText(form, "Text1", "0.125")
        .SeeText(form, "Text27", "0.25")
        .SeeText(form, "Text10", "")
        .Check([this](test::Driver&) { EXPECT_EQ(Gas(Slot::GC_Ar), "0.25"); })
        .Click(form, "Command3");
    Story.Box("Orm Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_EQ(Gas(Slot::GC_N2), "0.125");
}

TEST_P(MDetailFromFile, shows_defaults_for_a_source_without_nitrogen) {
    World.Session.EditMode = GetParam();
    Fill(World.Station.GasComposition);
    WriteKey("FlowRuns", "Run1", "Yes");
    WriteKey("Run1", "GC_C1", "0.5");
    Story.Click(form, "Option1_0").Click(form, "CopyGasCompButton");
    SeeDefaults();
    ShowAndAccept();
}

TEST_P(MDetailFromFile, offers_nothing_without_a_file) {
    World.Session.EditMode = GetParam();
    Fill(World.Station.Runs.Gas.at(1)); // memory does not count here
    Story.SeeEnabled(form, "Option1_4", false).SeeEnabled(form, "CopyGasCompButton", false);
    ShowAndAccept();
}

INSTANTIATE_TEST_SUITE_P(Modes, MDetailFromFile, testing::Values(EditMode::None, EditMode::ModifyTags));

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
