#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

// A whole pass over runs 1 and 2, saved; editor acts stand in the place of the first run's editor and of the
// second's.
Scenario TwoRuns(const std::string& name, const moves::Choices& choices, std::function<void(Story&)> first,
                 std::function<void(Story&)> second, std::function<void(FakeProgram&)> after) {
    return {name, moves::ThreeStations,
            [=](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1, 2});
                moves::WalkPages(story, choices);
                moves::PassAllRuns(story, choices, {1, 2},
                                   [=](Story& s, int run) { run == 1 ? first(s) : second(s); });
                moves::SaveAndClose(story);
                moves::Exit(story);
            },
            std::move(after)};
}

std::function<void(FakeProgram&)> Holds(const std::string& section,
                                        std::vector<std::pair<std::string, std::string>> keys) {
    return [section, keys = std::move(keys)](FakeProgram& program) {
        for (const auto& [key, value] : keys) {
            EXPECT_EQ(program.Program.Ini.ReadKey(section, key, program.ConfigFile("North")), value) << key;
        }
    };
}

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

// MDetail

void CompositionByHand(Story& story) {
    const std::string form = "MDetail";
    story.SeeText(form, "Text10", "0.965222")
        .SeeEnabled(form, "CopyGasCompButton", false)
        .Click(form, "Command2")
        .SeeText(form, "Text10", "")
        .Click(form, "Command1")
        .Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered", Icon::Exclamation);
    for (const int field : {1, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27})
        story.Type(form, "Text" + std::to_string(field), field == 10 ? "50" : field == 1 ? "50" : "0");
    story.Type(form, "Text10", "101")
        .Focus(form, "Text11")
        .Box("Incorrect value", "Error: The range should be: [0-100]%", Icon::Exclamation)
        .Check([form](Driver& d) { EXPECT_EQ(d.Focused(form), "Text10"); })
        .Type(form, "Text10", "50")
        .Type(form, "Text21", "1.2.3") // deliberately without a check of its own
        .Focus(form, "Text22")
        .Check([form](Driver& d) { EXPECT_EQ(d.Focused(form), "Text22"); })
        .Type(form, "Text21", "0")
        .Click(form, "Command1")
        .SeeShown(form, false);
}

void CompositionByCopy(Story& story) {
    const std::string form = "MDetail";
    story.SeeText(form, "Text10", "0.965222")
        .Click(form, "CopyGasCompButton")
        .Box("Copy Gas Composition",
             "Error: Can't copy gas composition, no source Run selected. Please select a Run to copy from.",
             Icon::Exclamation)
        .Click(form, "Option1_0")
        .Click(form, "CopyGasCompButton")
        .SeeText(form, "Text10", "50")
        .Click(form, "Command1");
}

// frSGERG88

void GasPropertiesByHand(Story& story) {
    const std::string form = "frSGERG88";
    story.SeeText(form, "Text1_0", "1091.28")
        .SeeText(form, "Label5", "Btu / ft^3")
        .SeeText(form, "Text1_3", "0.000")
        .Click(form, "Command3")
        .SeeText(form, "Text1_0", "1091.28") // Undo All deliberately does nothing here
        .Type(form, "Text1_1", "1.01")
        .Focus(form, "Text1_2")
        .Box("Incorrect value", "Error: The range should be: [0-1]%", Icon::Exclamation)
        .Type(form, "Text1_1", "1")
        .Type(form, "Text1_3", "5")
        .Focus(form, "Text1_0")
        .Click(form, "Command1");
}

void GasPropertiesByCopy(Story& story) {
    const std::string form = "frSGERG88";
    story.SeeText(form, "Text1_1", "0.581")
        .Click(form, "Option1_0")
        .Click(form, "CopyGasCompButton")
        .SeeText(form, "Text1_1", "1")
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
        TwoRuns("gas_composition_by_hand_and_by_copy", {.Standard = 1, .Source = 1}, CompositionByHand,
                CompositionByCopy, Holds("Run2", {{"GC_C1", "50"}, {"GC_N2", "50"}, {"GC_Ar", "0"}})),
        TwoRuns("gas_properties_by_hand_and_by_copy", {.Standard = 1, .Source = 2}, GasPropertiesByHand,
                GasPropertiesByCopy,
                Holds("Run2", {{"VolCalorificValue", "1091.28"}, {"RelativeDensity", "1"}, {"XH2", "5"}})),
    };
}

} // namespace gfc::test
