#include "forms/editors/frSGERG88.h"
#include "forms/station/Step.h"
#include "support/Named.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::forms {

namespace {

using Slot = config::GasSlot;

const std::string form = "frSGERG88";
const std::string cancelText = "Are you sure  you to want to cancel?. All changes will be lost";
const std::vector<std::string> fields{"Text1_0", "Text1_1", "Text1_2", "Text1_3"};
const std::vector<Slot> slots{Slot::VolCalorificValue, Slot::RelativeDensity, Slot::XCO2, Slot::XH2};

struct frSGERG88Form : testing::Test {
    frSGERG88Form() {
        World.OpenProject();
        World.Station.CurrentStation = "North";
        World.Station.GasDensitySource = "SGERG88";
        World.Station.SystemUnits = "US";
        World.Session.EditMode = EditMode::Wizard;
        World.ActivateRuns({2, 5});
        World.Session.GasRun = 1;
    }

    void Show() { World.Program.Forms.Get<frSGERG88>().ShowModal(); }
    void ShowAndAccept() {
        Story.Click(form, "Command1");
        Show();
    }
    std::string& Gas(Slot slot) { return World.Station.GasComposition[slot].Tag; }
    static void Fill(config::RunGas& gas, const std::vector<std::string>& texts) {
        for (std::size_t i = 0; i < slots.size(); ++i)
            gas[slots[i]].Tag = texts[i];
    }
    void SeeTexts(const std::vector<std::string>& texts) {
        for (std::size_t i = 0; i < fields.size(); ++i)
            Story.SeeText(form, fields[i], texts[i]);
    }
    void ExpectStored(const std::vector<std::string>& texts) {
        for (std::size_t i = 0; i < slots.size(); ++i)
            EXPECT_EQ(Gas(slots[i]), texts[i]);
    }
    void WriteKey(const std::string& section, const std::string& key, const std::string& value) {
        World.Hand.WriteKey(section, key, value, World.ConfigFile("North"));
    }
    void Leave(const std::string& field, const std::string& text, bool held, const std::string& box = {}) {
        Story.Type(form, field, text).Focus(form, "ayuda");
        if (held)
            Story.Box("Incorrect value", box, ui::Icon::Exclamation);
        Story.Check([this, field, text, held](test::Driver& d) {
            EXPECT_EQ(d.Focused(form), held ? field : "ayuda") << field << " " << text;
            if (!held)
                return;
            auto& shown = World.Program.Forms.Get<frSGERG88>();
            const auto& left = static_cast<ui::TextBox&>(*shown.Find(field));
            EXPECT_EQ(left.SelStart(), 0);
            EXPECT_EQ(left.SelLength(), static_cast<int>(text.size()));
        });
    }

    test::World World;
    test::Story& Story = World.TheStory;
};

const std::string rangeText = "Error: The range should be: [0-1]%";
const std::string shapeText = "Error: Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";

} // namespace

TEST_F(frSGERG88Form, names_its_controls) {
    const std::vector<std::pair<std::string, std::string>> captions{
        {"lbPrompt", "Enter/Edit the gas properties for Run 2"},
        {"Frame1", "SGERG-88 PARAMETERS"},
        {"Label1", "Vol. Calorific Value"},
        {"Label2", "Relative Density"},
        {"Label3", "CO2 Content"},
        {"Label4", "H2 Content"},
        {"Label6", "Mole Fraction"},
        {"Label7", "Mole Fraction"},
        {"Frame2", "Copy gas properties from:"},
        {"Option1_0", "Run 1"},
        {"Option1_4", "Run 5"},
        {"CopyGasCompButton", "Copy"},
        {"Command1", "Accept"},
        {"Command2", "Cancel"},
        {"Command3", "Undo All"},
        {"ayuda", "Help"},
    };
    for (const auto& [control, caption] : captions)
        Story.SeeText(form, control, caption);
    Story.SeeCaption(form, "Gas Composition").CloseWindow(form).SeeShown(form);
    ShowAndAccept();
}

struct UnitRow {
    std::string System, Unit, Value;

    friend void PrintTo(const UnitRow& the, std::ostream* out) { *out << the.System; }
};

struct frSGERG88Units : frSGERG88Form, testing::WithParamInterface<UnitRow> {};

TEST_P(frSGERG88Units, give_the_design_values_and_the_unit) {
    World.Station.SystemUnits = GetParam().System;
    const std::vector<std::string> design{GetParam().Value, "0.581", "0.006", "0.000"};
    Story.SeeText(form, "Label5", GetParam().Unit);
    SeeTexts(design);
    ShowAndAccept();
    ExpectStored(design);
    EXPECT_TRUE(World.Session.GasAccepted);
}

TEST_P(frSGERG88Units, leave_a_stored_value_unconverted_under_their_caption) {
    World.Station.SystemUnits = GetParam().System;
    Fill(World.Station.GasComposition, {"1000", "0.6", "0.1", ""});
    Story.SeeText(form, "Label5", GetParam().Unit);
    SeeTexts({"1000", "0.6", "0.1", ""});
    Story.Type(form, "Text1_3", "0");
    ShowAndAccept();
    ExpectStored({"1000", "0.6", "0.1", "0"});
}

INSTANTIATE_TEST_SUITE_P(Systems, frSGERG88Units,
                         testing::Values(UnitRow{"US", "Btu / ft^3", "1091.28"},
                                         UnitRow{"US-degC", "Btu / ft^3", "1091.28"},
                                         UnitRow{"Metric", "KWh / m^3", "11.29444"},
                                         UnitRow{"Metric-degF", "KWh / m^3", "11.29444"},
                                         UnitRow{"Practical-SI", "MJ/m^3", "40.66"},
                                         UnitRow{"unknown", "MJ/m^3", "40.66"}),
                         test::By(&UnitRow::System));

TEST_F(frSGERG88Form, ignores_other_stored_values_without_a_calorific_value) {
    Fill(World.Station.GasComposition, {"", "0.9", "0.9", "0.9"});
    SeeTexts({"1091.28", "0.581", "0.006", "0.000"});
    ShowAndAccept();
}

TEST_F(frSGERG88Form, refuses_each_empty_field_and_stores_nothing) {
    for (const auto& field : fields) {
        Story.Type(form, field, "").Click(form, "Command1");
        Story.Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered", ui::Icon::Exclamation);
        Story.SeeShown(form).Check([this](test::Driver&) {
            ExpectStored({"", "", "", ""});
            EXPECT_FALSE(World.Session.GasAccepted);
        });
        Story.Type(form, field, "1");
    }
    ShowAndAccept();
    ExpectStored({"1", "1", "1", "1"});
}

TEST_F(frSGERG88Form, does_nothing_at_undo_all) {
    Story.Type(form, "Text1_1", "0.7").Click(form, "Command3");
    SeeTexts({"1091.28", "0.7", "0.006", "0.000"});
    ShowAndAccept();
    EXPECT_EQ(Gas(Slot::RelativeDensity), "0.7");
}

TEST_F(frSGERG88Form, holds_density_and_carbon_dioxide_up_to_one) {
    for (const auto* field : {"Text1_1", "Text1_2"}) {
        for (const auto* good : {"1", "1.0000", "0.0000", "0.00", "0.0", "0", "", ".5", "."})
            Leave(field, good, false);
        for (const auto* bad : {"1.0001", "2", "10", "100.5"})
            Leave(field, bad, true, rangeText);
        Leave(field, "0.5", false);
    }
    ShowAndAccept();
}

TEST_F(frSGERG88Form, knows_no_range_for_calorific_value_and_hydrogen) {
    Leave("Text1_0", "123456.5", false);
    Leave("Text1_3", "5", false);
    ShowAndAccept();
    ExpectStored({"123456.5", "0.581", "0.006", "5"});
}

TEST_F(frSGERG88Form, checks_the_shape_of_all_fields_with_one_box) {
    for (const auto& field : fields) {
        Leave(field, "1.2.3", true, shapeText);
        Leave(field, "1", false);
    }
    ShowAndAccept();
}

TEST_F(frSGERG88Form, filters_keys_in_all_fields) {
    for (const auto& field : fields)
        Story.Type(form, field, "a-.,\r5").SeeText(form, field, ".5");
    ShowAndAccept();
    ExpectStored({".5", ".5", ".5", ".5"});
}

TEST_F(frSGERG88Form, cancels_for_a_yes_alone) {
    World.Session.EditMode = EditMode::ModifyTags;
    (void)World.Program.Forms.Touch<Step>();
    Story.Click(form, "Command2");
    Story.Box("Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::No);
    Story.SeeShown(form).Click(form, "Command2");
    Story.Box("Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::Yes);
    Show();
    EXPECT_TRUE(World.Session.Cancelled);
    EXPECT_FALSE(World.Session.GasAccepted);
    ExpectStored({"", "", "", ""});
    EXPECT_FALSE(World.Program.Forms.IsLoaded<frSGERG88>());
    EXPECT_FALSE(World.Program.Forms.IsLoaded<Step>());
}

TEST_F(frSGERG88Form, offers_active_runs_with_a_calorific_value_in_memory) {
    World.ActivateRuns({1, 2, 5});
    World.Station.Runs.Gas.at(0)[Slot::GC_C1].Tag = "0.9"; // no gross property
    World.Station.Runs.Gas.at(1)[Slot::VolCalorificValue].Tag = "1000";
    World.Station.Runs.Gas.at(2)[Slot::VolCalorificValue].Tag = "1000";
    for (const auto* off : {"Option1_0", "Option1_1", "Option1_2", "Option1_3"})
        Story.SeeEnabled(form, off, false);
    Story.SeeEnabled(form, "Option1_4").SeeEnabled(form, "CopyGasCompButton");
    ShowAndAccept();
}

TEST_F(frSGERG88Form, copies_in_memory_by_the_place_among_the_active_runs) {
    Fill(World.Station.Runs.Gas.at(1), {"1000", "0.6", "0.1", "0.2"});
    Story.Click(form, "CopyGasCompButton");
    Story.Box("Copy Gas Properties",
              "Error: Can't copy gas properties, no source Run selected. Please select a Run to copy from.",
              ui::Icon::Exclamation);
    Story.Click(form, "Option1_4").Click(form, "CopyGasCompButton");
    SeeTexts({"1000", "0.6", "0.1", "0.2"});
    Story.Check([this](test::Driver&) { ExpectStored({"", "", "", ""}); });
    ShowAndAccept();
    ExpectStored({"1000", "0.6", "0.1", "0.2"});
}

struct frSGERG88FromFile : frSGERG88Form, testing::WithParamInterface<EditMode> {};

TEST_P(frSGERG88FromFile, copies_into_the_composition_at_once) {
    World.Session.EditMode = GetParam();
    WriteKey("FlowRuns", "Run2", "Yes");
    WriteKey("FlowRuns", "Run5", "yes");
    WriteKey("Run5", "VolCalorificValue", "950");
    WriteKey("Run5", "RelativeDensity", "0.55");
    WriteKey("Run5", "XCO2", "0.01");
    WriteKey("Run5", "XH2", "0.02");
    Story.SeeEnabled(form, "Option1_1", false).Click(form, "Option1_4").Click(form, "CopyGasCompButton");
    SeeTexts({"950", "0.55", "0.01", "0.02"});
    Story.Click(form, "Command2");
    Story.Box("Gas Flow Computer", cancelText, ui::Icon::None, ui::Answer::Yes);
    Show();
    ExpectStored({"950", "0.55", "0.01", "0.02"});
}

TEST_P(frSGERG88FromFile, leaves_the_fields_for_a_source_without_a_calorific_value) {
    World.Session.EditMode = GetParam();
    WriteKey("FlowRuns", "Run1", "Yes");
    WriteKey("Run1", "XCO2", "0.01");
    Story.Type(form, "Text1_1", "0.7").Click(form, "Option1_0").Click(form, "CopyGasCompButton");
    SeeTexts({"1091.28", "0.7", "0.006", "0.000"});
    ShowAndAccept();
}

INSTANTIATE_TEST_SUITE_P(Modes, frSGERG88FromFile, testing::Values(EditMode::None, EditMode::ModifyTags),
                         test::By([](EditMode mode) {
                             return mode == EditMode::None ? "main_window" : "modify_tags";
                         }));

TEST_F(frSGERG88Form, opens_its_help_by_button_and_key) {
    Story.Click(form, "ayuda").PressKey(form, "F1");
    Story.Do("switch the button off",
             [this](test::Driver&) { World.Program.Forms.Get<frSGERG88>().ayuda.SetEnabled(false); });
    Story.PressKey(form, "F1");
    ShowAndAccept();
    const std::vector<std::pair<std::string, int>> pages{
        {"AGA.chm", 7500}, {"AGA.chm", 7500}, {"AGA.chm", 0}};
    EXPECT_EQ(World.Screen.HelpOpened, pages);
}

} // namespace gfc::forms
