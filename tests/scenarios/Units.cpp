#include "scenarios/TwoRuns.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

// What a run's dialogs say in one unit system.
struct System {
    std::string Name;
    int Entry;
    std::string Length, Temperature, Expansion;
    std::string RefTemp;
    std::string PipeAtLoad, OrificeAtLoad;
    std::string PipeByButton, OrificeByButton;
    std::string HeatingUnit, HeatingValue;
    std::string Density, Pulses;
};

// clang-format off
const std::vector<System> systems = {
    {"us",           0, "in", "ºF", "in/in ºF", "68.00", "2.90039", "0.57811", "2.90039",  "0.57811",
     "Btu / ft^3", "1091.28",  "lbm/ft^3", "pulses/ft^3"},
    {"us_degc",      1, "in", "ºC", "in/in ºF", "20.00", "2.90039", "0.57811", "2.90039",  "0.57811",
     "Btu / ft^3", "1091.28",  "lbm/ft^3", "pulses/ft^3"},
    {"metric",       2, "mm", "ºC", "mm/mm ºC", "20.00", "363.513", "193.675", "363.513",  "193.675",
     "KWh / m^3",  "11.29444", "kg/m^3",   "pulses/m^3"},
    {"metric_degf",  3, "mm", "ºF", "mm/mm ºC", "68.00", "363.513", "193.675", "363.513",  "193.675",
     "KWh / m^3",  "11.29444", "kg/m^3",   "pulses/m^3"},
    // The button and the load deliberately differ.
    {"practical_si", 4, "mm", "ºC", "mm/mm ºC", "20.00", "363.513", "193.675", "0.363513", "0.193675",
     "MJ/m^3",     "40.66",    "kg/m^3",   "pulses/m^3"},
};
// clang-format on

void SeeMechanics(Story& story, const System& system) {
    const std::string form = "FrParMec";
    for (const char* label : {"Label14", "Label13"})
        story.SeeText(form, label, system.Length);
    for (const char* label : {"Label17", "Label20"})
        story.SeeText(form, label, system.Temperature);
    for (const char* label : {"Label2", "Label3"})
        story.SeeText(form, label, system.Expansion);
    for (const char* field : {"txtTempRefPipe", "txtTempRefOrif"})
        story.SeeText(form, field, system.RefTemp);
    story.SeeText(form, "txtDiaPipe", system.PipeAtLoad)
        .SeeText(form, "txtDiaOrif", system.OrificeAtLoad)
        .Type(form, "txtTempRefPipe", "1")
        .Select(form, "cbMatPipe", 2)
        .Click(form, "OptPipe")
        .Click(form, "OptExt")
        .SeeEnabled(form, "txtDiaPipe", false)
        .Click(form, "cmdDefaultValue")
        .SeeEnabled(form, "txtDiaPipe")
        .SeeText(form, "txtDiaPipe", system.PipeByButton)
        .SeeText(form, "txtDiaOrif", system.OrificeByButton)
        .SeeText(form, "txtTempRefPipe", system.RefTemp)
        .SeeText(form, "cbMatPipe", "CS - Carbon Steel")
        .SeeChecked(form, "OptFlange")
        .SeeChecked(form, "OptFixed")
        .Click(form, "cmdAceptar");
}

void SeeGasProperties(Story& story, const System& system) {
    const std::string form = "frSGERG88";
    story.SeeText(form, "Label5", system.HeatingUnit)
        .SeeText(form, "Text1_0", system.HeatingValue)
        .SeeText(form, "Text1_1", "0.581")
        .SeeText(form, "Text1_2", "0.006")
        .SeeText(form, "Text1_3", "0.000")
        .Click(form, "Command1");
}

void SeeFactors(Story& story, const System& system) {
    const std::string form = "TagRuns";
    story.SeeText(form, "Frame1", "Inputs")
        .SeeText(form, "uphostd", system.Density)
        .SeeText(form, "ukfactor", system.Pulses)
        .SeeText(form, "Text1", "1.0")
        .SeeText(form, "kfactor", "1.0")
        .SeeText(form, "phostd", "");
}

// A whole configuration of run 2 with that choice; acts stand in the place of its editor.
Scenario OfOneRun(const std::string& name, const moves::Choices& choices, const moves::EditorActs& acts,
                  std::function<void(FakeProgram&)> after) {
    return {name, moves::ThreeStations,
            [=](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {2});
                moves::WalkPages(story, choices);
                moves::PassAllRuns(story, choices, {2}, acts);
                moves::SaveAndClose(story);
                moves::Exit(story);
            },
            std::move(after)};
}

Scenario MechanicsIn(const System& system) {
    return OfOneRun(
        "mechanical_parameters_in_" + system.Name, {.Units = system.Entry},
        [system](Story& story, int) { SeeMechanics(story, system); },
        Holds("Run2", {{"InternalPipeDia", system.PipeByButton},
                       {"OrificeDia", system.OrificeByButton},
                       {"OrificeDiaRefTemp", system.RefTemp},
                       {"PipeMaterial", "CS"},
                       {"OrificeMaterial", "SS"},
                       {"PipeThermalExpCoeff", ""},
                       {"PressureTap", "Flange"},
                       {"PressureTapPos", "Up"},
                       {"ExtMechParam", "No"}}));
}

Scenario GasPropertiesIn(const System& system) {
    return OfOneRun(
        "gas_properties_in_" + system.Name, {.Standard = 1, .Source = 4, .Units = system.Entry},
        [system](Story& story, int) { SeeGasProperties(story, system); },
        Holds("Run2", {{"VolCalorificValue", system.HeatingValue},
                       {"RelativeDensity", "0.581"},
                       {"XCO2", "0.006"},
                       {"XH2", "0.000"},
                       {"GasDensitySource", "ISO-12213-3-1997"}}));
}

// The factors of a turbine with a densimeter, looked at and left as they are.
Scenario FactorsIn(const System& system) {
    return {
        "run_factors_in_" + system.Name, moves::ThreeStations,
        [system](Story& story) {
            moves::StartUp(story);
            moves::OpenWizard(story, "North");
            moves::SelectRuns(story, {2});
            moves::WalkPages(story, {.Standard = 1, .Units = system.Entry});
            story.Click("Step", "Command1");
            SeeFactors(story, system);
            story.Type("TagRuns", "phostd", "0.75")
                .Type("TagRuns", "kfactor", "") // may stay empty
                .Keys("TagRuns", "Text1", "x5-");
            moves::AutoBind(story);
            story.Click("Step", "Command1");
            moves::AutoBind(story);
            moves::SaveAndClose(story);
            moves::Exit(story);
        },
        Holds("Run2", {{"GasDensityStandard", "0.75"}, {"meterKFactor", ""}, {"CalibrationFactor", "1.05"}})};
}

} // namespace

std::vector<Scenario> UnitScenarios() {
    std::vector<Scenario> scenarios;
    for (const auto& system : systems) {
        scenarios.push_back(MechanicsIn(system));
        scenarios.push_back(GasPropertiesIn(system));
        scenarios.push_back(FactorsIn(system));
    }
    return scenarios;
}

} // namespace gfc::test
