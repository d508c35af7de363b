#include "forms/configurador/Configurador.h"

#include "forms/program/HelpFile.h"
#include "forms/program/Loss.h"
#include "forms/program/MainWindow.h"

namespace gfc::forms {

namespace {
constexpr int firstHelpContext = 1000;
} // namespace

Configurador::Configurador(Program& program)
    : ProgramForm(program, "Configurador", "Parameter Configurator") {
    ConfigAll.OnClick = [this] { ConfigureAll(); };
    PG.OnClick = [this] { ConfigureCommon(); };
    tg.OnClick = [this] { ConfigureTags(); };
    SalvarSalir.OnClick = [this] { SaveAndExit(false); };
    SalvarSalir2.OnClick = [this] { SaveAndExit(true); };
    Salir2.OnClick = [this] { Quit(); };
    HelpConfigPar.OnClick = [this] { OpenHelp(); };
    SSTab2.OnClick = [this] { TabEntered(); };
    Command1.OnClick = [this] { RunPass(); };
    btExtAtmChange.OnClick = [this] { ChangeExternalPressure(); };
    // The three entries of the menu open it.
    SSTab2.SetEnabled(false);
    SalvarSalir2.SetVisible(false);
    SalvarSalir2.SetEnabled(false);
    util.SetEnabled(false);
    BindRules();
}

void Configurador::Unloading() {
    session_.Modules.ClearCounts();
    session_.EditMode = EditMode::None;
    // A pass has hidden it, and the window's own close command leads here too.
    if (!program_.Screen.Ended())
        ShowMainWindow(program_);
}

void Configurador::ConfigureAll() {
    Command1.SetEnabled(true);
    SalvarSalir.SetVisible(true);
    SalvarSalir2.SetVisible(false);
    OpenTabs();
    session_.Station.ActiveRunCount = 0;
}

void Configurador::ConfigureCommon() {
    OfferInPlaceSave(true);
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&Option16, &Option5, &Option6, &Command1, &general.cbSourceGas,
                                             &general.CombStandard, &Run11, &Run22, &Run33, &Run44, &Run55})
        control->SetEnabled(false);
    OpenTabs();
    modules.SetListsEnabled(!finished_);
}

void Configurador::ConfigureTags() {
    // The letters of "assingnments" are those of the warning.
    program_.Screen.Ask({.Title = "Orm Gas Flow Computer",
                         .Text = "Warning: I/O assingnments already configured. Any changes will overwrite "
                                 "the current configuration...",
                         .TheIcon = ui::Icon::Information});
    session_.Cancelled = true;
    OfferInPlaceSave(false);
    OpenTabs();
}

void Configurador::OpenTabs() {
    Config.SetEnabled(false);
    SSTab2.SetEnabled(true);
}

void Configurador::OfferInPlaceSave(bool inPlace) {
    SalvarSalir.SetVisible(!inPlace);
    SalvarSalir2.SetVisible(inPlace);
    SalvarSalir2.SetEnabled(inPlace);
    if (!inPlace)
        SalvarSalir.SetEnabled(true);
}

// The tab, and not the click on the standard, deliberately has the last word on these two entries.
void Configurador::TabEntered() {
    if (SSTab2.Tab() != 1)
        return;
    Text3.SetEnabled(!general.ShowsAGA7());
    Text4.SetEnabled(!general.ShowsAGA7() && !general.ShowsAccelabar());
}

void Configurador::Quit() {
    if (!MayLose(program_, "Orm Gas Flow Computer",
                 "Do you want to cancel and discard any changes made to the current configuration?"))
        return;
    ShowMainWindow(program_);
    Unload();
}

bool Configurador::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    OpenHelp();
    return true;
}

void Configurador::OpenHelp() {
    program_.Screen.OpenHelp(HelpFile, firstHelpContext + 100 * SSTab2.Tab());
}

} // namespace gfc::forms
