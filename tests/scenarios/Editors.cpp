#include "scenarios/TwoRuns.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

// FrParMec

void MechanicsByHand(Story& story) {
    const std::string form = "FrParMec";
    story.SeeCaption(form, "Mechanical Parameters Station: North, Run: 1")
        .SeeText(form, "txtDiaPipe", "2.90039")
        .SeeText(form, "txtDiaOrif", "0.57811")
        .SeeText(form, "txtTempRefPipe", "68.00")
        .SeeText(form, "cbMatOrif", "SS - Stainless Steel")
        .SeeText(form, "cbMatPipe", "CS - Carbon Steel")
        .SeeEnabled(form, "txtPipeThermal", false)
        .SeeEnabled(form, "OptDown", false)
        .Select(form, "cbMatPipe", 3)
        .SeeEnabled(form, "txtPipeThermal")
        .Click(form, "cmdAceptar")
        .Box("Mechanical Parameters", "Missing Mechanical Parameters", Icon::Exclamation)
        .Type(form, "txtPipeThermal", "0.0000062")
        .Type(form, "txtDiaPipe", "1.2.3")
        .Click(form, "cmdAceptar")
        .Box("Incorrect value", "", Icon::Exclamation)
        .Type(form, "txtDiaPipe", "8.071")
        .Click(form, "OptPipe")
        .Click(form, "OptDown")
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_0", false)
        .SeeEnabled(form, "Option1_1", false)
        .Click(form, "cmdAceptar")
        .SeeShown(form, false);
}

void MechanicsByCopy(Story& story) {
    const std::string form = "FrParMec";
    story.SeeText(form, "txtDiaPipe", "2.90039")
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_0")
        .Click(form, "Option1_0")
        .SeeText(form, "txtDiaPipe", "8.071")
        .SeeText(form, "txtPipeThermal", "0.0000062")
        .SeeChecked(form, "OptDown")
        .Type(form, "txtDiaOrif", "4.0")
        .Click(form, "cmdAceptar");
}

void MechanicsByDefault(Story& story) {
    const std::string form = "FrParMec";
    story.SeeText(form, "OptPipe", "Corner")
        .SeeText(form, "txtDiaPipe", "363.513")
        .Click(form, "cmdDefaultValue")
        .SeeText(form, "txtDiaPipe", "0.363513") // the button and the load deliberately differ
        .Click(form, "OptPipe")
        .SeeEnabled(form, "OptDown", false)
        .Click(form, "OptExt")
        .SeeEnabled(form, "txtDiaPipe", false)
        .Click(form, "cmdAceptar");
}

void MechanicsFixed(Story& story) {
    story.Click("FrParMec", "OptFixed").Click("FrParMec", "cmdAceptar");
}

// FrAccelabar

void AccelabarByHand(Story& story) {
    const std::string form = "FrAccelabar";
    story.SeeCaption(form, "Accelabar Parameters Station: North, Run: 1")
        .SeeText(form, "lbAccelabarY", "0.7432")
        .SeeVisible(form, "Text1", false)
        .Select(form, "Combo1", 5)
        .SeeText(form, "lbDiameter", "5.056")
        .Select(form, "Combo1", 6)
        .SeeVisible(form, "Text2")
        .Type(form, "Text1", "0.61")
        .Click(form, "Command1")
        .Box("Accelabar Parameters", "Error : Missing Parameters", Icon::Exclamation)
        .Type(form, "Text2", "0.72")
        .Type(form, "Text3", "4.4")
        .Click(form, "Command1");
}

void AccelabarChecks(Story& story) {
    const std::string form = "FrAccelabar";
    story.Select(form, "Combo1", 6)
        .Keys(form, "Text3", "4a,-2")
        .SeeText(form, "Text3", "4.2")
        .Type(form, "Text1", "0.6.1")
        .Focus(form, "Text2")
        .Box("Incorrect value", "", Icon::Exclamation)
        .Check([form](Driver& d) { EXPECT_EQ(d.Focused(form), "Text1"); })
        .Type(form, "Text1", "0.61")
        .Type(form, "Text2", "0.72")
        // A size of the list has its own constants, whatever stands in the hidden fields.
        .Select(form, "Combo1", 5)
        .SeeVisible(form, "Text1", false)
        .SeeText(form, "lbAccelabarK", "0.7455")
        .Click(form, "Command1");
}

// A copied size fills the constants in; its run is kept whole.
void AccelabarByCopy(Story& story) {
    const std::string form = "FrAccelabar";
    story.SeeText(form, "Combo1", "3")
        .SeeEnabled(form, "Option1_0", false)
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_1", false)
        .Click(form, "Option1_0")
        .SeeText(form, "Combo1", "12")
        .SeeText(form, "lbDiameter", "5.056")
        .Click(form, "Check1")
        .SeeEnabled(form, "Option1_0", false)
        .Click(form, "Command1");
}

void AccelabarByDefault(Story& story) {
    const std::string form = "FrAccelabar";
    story.Click(form, "Check1")
        .SeeEnabled(form, "Option1_0")
        .Click(form, "Option1_0")
        .SeeText(form, "Combo1", "Other")
        .SeeText(form, "Text1", "") // the coefficients come with the record only
        .Click(form, "Command3")
        .SeeEnabled(form, "Option1_0", false)
        .SeeText(form, "Combo1", "3")
        .Click(form, "Command1");
}

} // namespace

std::vector<Scenario> EditorScenarios() {
    return {
        TwoRuns("mechanical_parameters_by_hand_and_by_copy", {}, MechanicsByHand, MechanicsByCopy,
                Holds("Run2", {{"InternalPipeDia", "8.071"},
                               {"OrificeDia", "4.0"},
                               {"PipeMaterial", "Other"},
                               {"PipeThermalExpCoeff", "0.0000062"},
                               {"PressureTap", "Pipe"},
                               {"PressureTapPos", "Down"},
                               {"ExtMechParam", "No"}})),
        TwoRuns("mechanical_parameters_under_gbt", {.Standard = 3}, MechanicsByDefault, MechanicsFixed,
                Holds("Run1", {{"InternalPipeDia", "0.363513"},
                               {"PressureTap", "Pipe"},
                               {"PressureTapPos", "Up"},
                               {"ExtMechParam", "Yes"},
                               {"FlowAlgorithm", "SYT6143-2004"}})),
        TwoRuns("accelabar_parameters_by_hand_and_by_default", {.Standard = 2}, AccelabarByHand,
                AccelabarByDefault,
                Holds("Run1", {{"AccelabarSize", "Other"},
                               {"AccelabarY", "0.61"},
                               {"AccelabarK", "0.72"},
                               {"AccelabarThroatDia", "4.4"}})),
        TwoRuns("accelabar_parameters_are_checked_and_copied", {.Standard = 2}, AccelabarChecks,
                AccelabarByCopy,
                Holds("Run2", {{"AccelabarSize", "12"},
                               {"AccelabarY", "0.5891"},
                               {"AccelabarK", "0.7455"},
                               {"AccelabarThroatDia", "5.056"}})),
    };
}

} // namespace gfc::test
