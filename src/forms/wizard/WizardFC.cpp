#include "forms/wizard/WizardFC.h"

#include "config/Units.h"
#include "config/Vocabulary.h"
#include "forms/program/HelpFile.h"

#include <array>

namespace gfc::forms {

namespace {

enum Page { Common, Modules, Pressure, Gas, Closing };

// What each page says of itself; the closing page says nothing.
constexpr std::array<const char*, 5> PageInfo = {
    // Deliberately with a capital, unlike the caption that the form starts with.
    "Common Parameters to all runs", "Select the virtual modules required for API21.1 datalogging",
    "Pressure measurement and Atmospheric Pressure configuration", "Gas properties configuration", ""};

constexpr int FirstHelpContext = 3000;
constexpr int IndexOfAGA8 = 1;

template <class Choices>
void Fill(ui::DropDownList& list, const Choices& choices) {
    list.Clear();
    for (const auto& choice : choices)
        list.AddEntry(std::string(choice.InWizard));
}

} // namespace

WizardFC::WizardFC(Program& program) : ProgramForm(program, "WizardFC", "Gas Flow Computer Wizard") {
    wizard.SetHeadersNavigate(false);
    wizard.OnClick = [this] { TabClicked(); };
    siguiente.OnClick = [this] { Next(); };
    atras.OnClick = [this] { Back(); };
    finalizar.OnClick = [this] { Finish(); };
    cancelar.OnClick = [this] { Quit(); };
    Command1.OnClick = [this] { Save(); };
    Command2.OnClick = [this] { OpenHelp(); };
    BindRules();
}

void WizardFC::Load() {
    RemoveCloseCommand();
    SetCaption("Gas Flow Computer Wizard     Station Name : " + session_.Station.CurrentStation);
    SetDefaults();
    modules.Fill(session_.Modules);
    modules.SelectFirst();
    FillChoices();
    Command1.SetEnabled(false);
    finalizar.SetEnabled(false);
    finalizar.SetVisible(false);
    atras.SetEnabled(false);
    for (ui::Frame* frame : {&modules.Frame9, &Frame4, &FrCompGas, &FrMetAGA8})
        frame->SetVisible(false);
}

void WizardFC::Unloading() {
    session_.Modules.ClearCounts();
}

void WizardFC::SetDefaults() {
    OptComprensible.SetValue(true);
    pressure.OptAbsPress.SetValue(true);
    pressure.OptAtmPressFixed.SetValue(true);
    OptComp.SetValue(true);
    OptDetail.SetValue(true);
    // The gross methods stand there for show: no other method than the detailed one is ever stored.
    OptGross1.SetEnabled(false);
    OptGross2.SetEnabled(false);
    Text2.SetText(std::string(config::start::IsentropicCoeff));
    traces.Number.SetText(std::string(config::start::NumberTraces));
    traces.Device.SetText(std::string(config::start::DeviceDataTraces));
    traces.Refresh();
}

void WizardFC::FillChoices() {
    // The standard and the source stay without a selection: a person has to pick.
    Fill(general.CombStandard, config::FlowAlgorithms);
    Fill(general.CombUnits, config::UnitSystems);
    Fill(general.cbSourceGas, config::GasDensitySources);
    general.CombUnits.SetListIndex(0);
    // Deliberately another degree sign (U+00B0) than that of the unit table, until the units are chosen.
    unitStandardTemp.SetCaption("°F");
}

void WizardFC::ShowPage(int page) {
    wizard.SetTab(page);
    lbInfo.SetCaption(PageInfo.at(static_cast<std::size_t>(page)));
    modules.Frame9.SetVisible(page == Modules);
    Frame4.SetVisible(page == Gas);
    if (page == Gas)
        ShowGasFrames();
    RefreshStep();
}

void WizardFC::ShowGasFrames() {
    FrCompGas.SetVisible(!general.ShowsDensimeter());
    FrMetAGA8.SetVisible(!general.ShowsDensimeter());
    // Alone on the page, the frame stands in its middle.
    Frame4.SetCentred(general.ShowsDensimeter());
}

void WizardFC::RefreshStep() {
    lbStep.SetCaption("Step " + std::to_string(nStep_ + 1) + " of " + std::to_string(lastPage_ + 1));
}

void WizardFC::Next() {
    if (general.cbSourceGas.ListIndex() != IndexOfAGA8) {
        FrCompGas.SetVisible(false);
        FrMetAGA8.SetVisible(false);
    }
    if (nStep_ < 0 || nStep_ >= lastPage_)
        return;
    // A turbine meter with a densimeter reads no pressure.
    const bool skips = general.ShowsDensimeter() && nStep_ == Modules && session_.Station.FlagAGA7;
    nStep_ += skips ? 2 : 1;
    ShowPage(nStep_);
    finalizar.SetEnabled(false);
    atras.SetEnabled(true);
    if (nStep_ == lastPage_)
        OfferFinish();
}

void WizardFC::OfferFinish() {
    finalizar.SetVisible(true);
    finalizar.SetEnabled(true);
    // Before the other button goes: the focus would fall to the one that throws all away.
    finalizar.SetFocus();
    siguiente.SetVisible(false);
    siguiente.SetEnabled(false);
    atras.SetEnabled(true);
}

void WizardFC::Back() {
    siguiente.SetVisible(true);
    siguiente.SetEnabled(true);
    finalizar.SetVisible(false);
    if (nStep_ >= 1 && nStep_ <= lastPage_) {
        const bool skips = general.ShowsDensimeter() && nStep_ == Gas && session_.Station.FlagAGA7;
        nStep_ -= skips ? 2 : 1;
    }
    ShowPage(nStep_);
    finalizar.SetEnabled(false);
    if (nStep_ != 0)
        return;
    siguiente.SetFocus();
    atras.SetEnabled(false);
}

void WizardFC::TabClicked() {
    if (!finished_)
        return;
    wizard.SetTab(Closing);
    Command1.SetEnabled(true);
}

void WizardFC::ShowClosingPage() {
    finished_ = true;
    lbInfo.SetCaption(PageInfo[Closing]);
    lbStep.SetVisible(false);
    wizard.SetTab(Closing);
    // The other button of the page leaves without a file.
    Command1.SetFocus();
}

bool WizardFC::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    OpenHelp();
    return true;
}

void WizardFC::OpenHelp() {
    program_.Screen.OpenHelp(HelpFile, FirstHelpContext + 100 * wizard.Tab());
}

} // namespace gfc::forms
