// How the configurator is left with a save.
#include "config/ConfigWriter.h"
#include "config/InPlaceUpdate.h"
#include "config/Vocabulary.h"
#include "forms/configurador/Configurador.h"
#include "forms/editors/NumericFields.h"
#include "forms/program/MainWindow.h"
#include "forms/station/CommonStore.h"
#include "services/Funciones_III.h"

namespace gfc::forms {

void Configurador::SaveAndExit(bool inPlace) {
    if (!MaySave())
        return;
    const auto answer = program_.Screen.Ask({.Title = "Configuration Completed.",
                                             .Text = "Do you want to save your changes?",
                                             .TheButtons = ui::Buttons::YesNo});
    // What could not be stored stays here, with all that was entered.
    if (answer == ui::Answer::Yes && !Write(inPlace))
        return;
    ForgetStation(session_);
    ShowMainWindow(program_);
    Unload();
    session_.TreeRefreshNeeded = true;
}

bool Configurador::MaySave() {
    if (!KeepsShapes())
        return false;
    if (OwesTags()) {
        // The letters of "assignmemts" are those of the message.
        program_.Screen.Ask({.Title = "I/O Tag assignments configuration...",
                             .Text = "There are some items that do not have tags assigned.\r\n"
                                     "Please configure I/O assignmemts before exiting the current "
                                     "configuration",
                             .TheIcon = ui::Icon::Exclamation});
        SSTab2.SetTab(3);
        return false;
    }
    if (!LacksParameter())
        return true;
    program_.Screen.Ask({.Title = "Missing Parameters...",
                         .Text = "Can`t continue, some parameters have not been configured",
                         .TheIcon = ui::Icon::Exclamation});
    return false;
}

// The menu can be reached without the focus leaving a field, which must not be a way around its check.
bool Configurador::KeepsShapes() {
    for (ui::TextBox* field : {&Text1, &Text2, &Text3, &Text4}) {
        if (services::SingleDecimalPoint(field->Text()))
            continue;
        SSTab2.SetTab(1);
        (void)CheckShape(program_.Screen, CheckedFields(*field));
        return false;
    }
    return true;
}

// A new configuration needs a pass over just the runs that are chosen: the records stand in their order, and
// another choice would give a run the tags of another one. What is bound depends on the other lists as well.
bool Configurador::OwesTags() {
    if (session_.Cancelled)
        return true;
    if (caso != 3 || NoRunBoxSet())
        return false;
    return !finished_ || passed_ != Choices();
}

// Under AGA-7 neither the viscosity nor the isentropic coefficient is needed.
bool Configurador::LacksGasValue() const {
    if (Text1.Text().empty() || Text2.Text().empty())
        return true;
    return !session_.Station.FlagAGA7 && (Text3.Text().empty() || Text4.Text().empty());
}

bool Configurador::LacksParameter() {
    return (caso == 3 && NoRunBoxSet()) || LacksGasValue() ||
           (pressure.IsExternal() && !session_.Station.CommonPa.IsMade());
}

// Deliberately nothing but these: of a stored configuration only the in-place save writes.
bool Configurador::Write(bool inPlace) {
    const std::string file = session_.ConfigFile();
    StoreValues();
    if (caso != 3 && !inPlace)
        return true;
    const auto save = caso == 3 ? config::SaveWholeConfiguration : config::SaveConfiguratorChanges;
    return program_.Storage.Change({"The changes were not saved."}, file,
                                   [&](config::FileIni& ini) { save(ini, session_.Station, file); });
}

config::StationConfig Configurador::Entered() const {
    config::StationConfig station;
    StoreChoices(station);
    pressure.Store(station);
    return station;
}

void Configurador::StoreValues() {
    StoreChoices(session_.Station);
    pressure.Store(session_.Station);
    traces.Store(session_.Station);
    modules.Store(session_.Station.WorkingModules, session_.Inventory);
}

void Configurador::StoreChoices(config::StationConfig& station) const {
    const int standard = general.CombStandard.ListIndex();
    const auto& algorithm = standard == ui::DropDownList::None
                                ? config::FlowAlgorithms.back()
                                : config::FlowAlgorithms.at(static_cast<std::size_t>(standard));
    station.FlowAlgorithm = algorithm.Stored;
    station.FlagAGA7 = general.ShowsAGA7();
    // A source that the list does not know stays what the file says.
    const int source = general.cbSourceGas.ListIndex();
    StoreSource(station,
                source == ui::DropDownList::None
                    ? std::string(station.GasDensitySource)
                    : std::string(config::GasDensitySources.at(static_cast<std::size_t>(source)).Stored),
                Option5.Value());
    station.SystemUnits = general.CombUnits.Text();
    station.StandardT = Text1.Text();
    station.StandardP = Text2.Text();
    // Under AGA-7 a stored file shows no values here; those that it holds stay.
    if (!station.FlagAGA7 || !Text4.Text().empty())
        station.FlowingViscosity = Text4.Text();
    if (!station.FlagAGA7 || !Text3.Text().empty())
        station.IsentropicCoeff = Text3.Text();
    station.Compressible = YesOrNo(OptComprensible.Value());
}

} // namespace gfc::forms
