// What the configurator opens with: the start values, or those of the station's file.
#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "config/Units.h"
#include "config/Vocabulary.h"
#include "forms/configurador/Configurador.h"
#include "forms/station/ModuleLists.h"
#include "services/Text.h"

namespace gfc::forms {

namespace {

constexpr int US = 0;

template <class Choices>
void Fill(ui::DropDownList& list, const Choices& choices) {
    list.Clear();
    for (const auto& choice : choices)
        list.AddEntry(std::string(choice.InConfigurador));
}

bool IsYes(const std::string& text) {
    return services::EqualNoCase(text, config::Yes);
}

} // namespace

void Configurador::Load() {
    session_.EditMode = EditMode::Configurator;
    StartEmpty();
    FillLists();
    if (program_.Ini.FileExists(session_.ConfigFile()))
        LoadStored();
    else
        LoadNew();
    OpenAsChosen();
    notes_.Refresh();
}

// Neither another station's values nor its runs may shine through.
void Configurador::StartEmpty() {
    auto& station = session_.Station;
    const std::string name = station.CurrentStation;
    config::ResetStationConfig(station);
    station.CurrentStation = name;
    station.Runs = {};
    for (int run = 1; run <= config::MaxRuns; ++run)
        station.RunList.at(static_cast<std::size_t>(run - 1)) = {config::RunSection(run),
                                                                 std::string(config::No)};
}

void Configurador::FillLists() {
    Fill(general.CombStandard, config::FlowAlgorithms);
    Fill(general.CombUnits, config::UnitSystems);
    Fill(general.cbSourceGas, config::GasDensitySources);
    modules.Fill(session_.Modules);
}

void Configurador::LoadNew() {
    general.cbSourceGas.SetEnabled(true);
    general.CombStandard.SetEnabled(true);
    caso = 3;
    session_.Station.ActiveRunCount = 1;
    general.CombUnits.SetListIndex(US);
    modules.SelectFirst();
    const auto& defaults = config::DefaultsOf(config::units::US);
    Text1.SetText(std::string(defaults.StandardT));
    Text2.SetText(std::string(defaults.StandardP));
    Text3.SetText(std::string(config::start::IsentropicCoeff));
    Text4.SetText(std::string(config::start::FlowingViscosity));
    pressure.txtAtmPress.SetText(std::string(defaults.AtmPress));
    pressure.unitAtmPress.SetCaption(std::string(defaults.AtmCaptionInWizard));
    OptComprensible.SetValue(true);
    ShowStoredTraces();
    pressure.OptAbsPress.SetValue(true);
}

void Configurador::LoadStored() {
    auto& station = session_.Station;
    caso = CasoOfNode();
    for (ui::CheckBox* box : RunBoxes())
        box->SetEnabled(false);
    config::LoadStationConfig(program_.Ini, station, session_.ConfigFile());
    // No run is counted while the lists are set: the gates are for what a person chooses.
    station.ActiveRunCount = 0;
    ShowStored();
}

void Configurador::ShowStored() {
    const auto& station = session_.Station;
    ShowStoredModules();
    ShowStoredTraces();
    Text1.SetText(station.StandardT);
    Text2.SetText(station.StandardP);
    ShowStoredChoices();
    ShowStoredPressure();
    (services::EqualNoCase(station.Compressible, config::No) ? OptNoComprensible : OptComprensible)
        .SetValue(true);
}

void Configurador::ShowStoredModules() {
    const auto& working = session_.Station.WorkingModules;
    ShowModule(modules.Combo2, working.WrkIntLongModName);
    ShowModule(modules.Combo1, working.WrkAnalogModName);
    ShowModule(modules.Combo3, working.WrkFloatModName);
}

void Configurador::ShowStoredTraces() {
    const auto& station = session_.Station;
    const bool enabled = IsYes(station.EnableDataTraces);
    traces.Device.SetText(enabled ? station.DeviceDataTraces : std::string(config::start::DeviceDataTraces));
    traces.Number.SetText(enabled ? station.NumberTraces : std::string(config::start::NumberTraces));
    traces.Check1.SetValue(enabled);
    traces.Refresh();
}

void Configurador::ShowStoredChoices() {
    auto& station = session_.Station;
    general.CombStandard.SetListIndex(config::AlgorithmIndex(station.FlowAlgorithm));
    EnableGasEntries(!general.ShowsAGA7());
    general.CombUnits.SetListIndex(config::UnitsIndex(station.SystemUnits));
    // Once more, since without stored units the list puts in what goes with those it shows.
    Text1.SetText(station.StandardT);
    Text2.SetText(station.StandardP);
    general.cbSourceGas.SetListIndex(config::SourceIndex(station.GasDensitySource));
    if (config::IsGasModel(station.GasDensitySource)) {
        Option16.SetValue(true);
        (station.AGA8CalInput == config::CompositionFixed ? Option6 : Option5).SetValue(true);
    }
    if (general.ShowsAGA7())
        return;
    Text3.SetText(station.IsentropicCoeff);
    Text4.SetText(station.FlowingViscosity);
}

void Configurador::ShowStoredPressure() {
    const auto& station = session_.Station;
    const auto& defaults = config::DefaultsOf(general.CombUnits.Text());
    pressure.unitAtmPress.SetCaption(std::string(defaults.AtmCaptionInWizard));
    pressure.txtAtmPress.SetText(station.AtmPress.empty() ? std::string(defaults.AtmPress)
                                                          : station.AtmPress);
    if (!services::EqualNoCase(station.PressType, config::Gage)) {
        pressure.OptAbsPress.SetValue(true);
        pressure.OptAtmPressFixed.SetValue(true);
        return;
    }
    pressure.OptGagePress.SetValue(true);
    if (!IsYes(station.ExtAtmPress))
        return pressure.OptAtmPressFixed.SetValue(true);
    pressure.OptAtmPressExt.SetValue(true);
    ShowBoundPressure();
}

void Configurador::ShowBoundPressure() {
    const auto& bound = session_.Station.CommonPa;
    AtmExtName.SetCaption("Name: " + bound.Tag);
    AtmExtType.SetCaption(" Type: " + bound.Type);
    AtmExtAddr.SetCaption(" Addr: " + bound.RegAddr);
}

void Configurador::OpenAsChosen() {
    if (Option == ConfiguradorOption::AllStation) {
        NameStation("    ");
        session_.Cancelled = true;
        return ConfigureAll();
    }
    if (caso == 1) {
        Label1.SetCaption("Individual Parameters");
        general.CombStandard.SetEnabled(false);
        return ChooseMode();
    }
    if (caso == 2)
        Option == ConfiguradorOption::EditTags ? OpenForTags() : ChooseMode();
}

void Configurador::OpenForTags() {
    // The letters of "ans" are those of the label.
    Label1.SetCaption("Edit I/O tags ans Gas Composition");
    Command1.SetEnabled(false);
    ChooseMode();
    general.Frame1.SetVisible(false);
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&Option5, &Option6, &general.CombStandard, &general.cbSourceGas})
        control->SetEnabled(false);
    if (!session_.Cancelled)
        return SaveAndExit(false);
    // It stays out of sight, and a window that nobody sees nobody could leave.
    Unload();
}

} // namespace gfc::forms
