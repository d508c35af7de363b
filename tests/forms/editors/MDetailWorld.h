#pragma once

#include "forms/editors/MDetail.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// What the tests of MDetail stand on: station "North" in the wizard, runs 2 and 5 active, run 2 edited.
namespace gfc::forms::mdetail {

using Slot = config::GasSlot;

inline const std::string form = "MDetail";
inline const std::string shapeText =
    "Error: Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";
inline const std::string rangeText = "Error: The range should be: [0-100]%";
inline const std::string cancelText = "Are you sure  you to want to cancel?. All changes will be lost";

struct Component {
    std::string Field, Label, Caption, Default;
    Slot Value;
};

// clang-format off
inline const std::vector<Component> components{
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
        World.Hand.WriteKey(section, key, value, World.ConfigFile("North"));
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

} // namespace gfc::forms::mdetail
