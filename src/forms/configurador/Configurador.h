#pragma once

#include "audit/Plausible.h"
#include "forms/editors/QuietNotes.h"
#include "forms/program/Program.h"
#include "forms/station/CommonGroups.h"
#include "ui/Buttons.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/Menu.h"
#include "ui/TabbedPane.h"
#include "ui/TextBox.h"

#include <array>

namespace gfc::forms {

// What the command that opens the configurator is after, besides what the selected node says.
enum class ConfiguradorOption { None, EditTags, AllStation };

// The common parameters of a station under four tabs, for a new configuration and, more often, for one that
// stands in a file: there the values are changed key by key, and the runs stay as they are.
class Configurador : public ProgramForm {
public:
    explicit Configurador(Program& program);

    // Set by the caller before the form is loaded.
    ConfiguradorOption Option = ConfiguradorOption::None;
    // 3: there is no file yet, all branches are open and the run boxes live. 1: the station or its common
    // parameters were chosen. 2: the individual parameters or one run. Settled by the load.
    int caso = 3;

    ui::MenuEntry Config{*this, "Config", "&Configuration"};
    ui::MenuEntry ConfigAll{Config, "ConfigAll", "All Station"};
    ui::MenuEntry PG{Config, "PG", "Common Parameters"};
    ui::MenuEntry tg{Config, "tg", "I/O  Tag Assignments"};
    // One of the two shows at a time.
    ui::MenuEntry SalvarSalir{*this, "SalvarSalir", "Save and Exit"};
    ui::MenuEntry SalvarSalir2{*this, "SalvarSalir2", "Save and Exit"};
    ui::MenuEntry Salir2{*this, "Salir2", "Cancel"};
    // These two do nothing.
    ui::MenuEntry util{*this, "util", "&Utilities"};
    ui::MenuEntry conver{util, "conver", "Conversion Unidades"};
    ui::MenuEntry HelpConfigPar{*this, "HelpConfigPar", "Help"};

    ui::TabbedPane SSTab2{
        *this, "SSTab2", {"Runs and General Selection", "Common Parameters", "Working Modules", "I/O"}};

    ui::Frame FrameRuns{SSTab2.OnPage(0), "FrameRuns", "RUNS"};
    ui::CheckBox Run11{FrameRuns, "Run11", "Run 1"};
    ui::CheckBox Run22{FrameRuns, "Run22", "Run 2"};
    ui::CheckBox Run33{FrameRuns, "Run33", "Run 3"};
    ui::CheckBox Run44{FrameRuns, "Run44", "Run 4"};
    ui::CheckBox Run55{FrameRuns, "Run55", "Run 5"};
    GeneralGroup general{SSTab2.OnPage(0)};
    ui::Label Label1{SSTab2.OnPage(0), "Label1", "Common and Individual Parameters"};
    ui::CommandButton Command1{SSTab2.OnPage(0), "Command1", "", "MenuWizard"};

    // Items 1 of arrays that have no other item.
    ui::Frame Frame4{SSTab2.OnPage(1), "Frame4", "GAS PROPERTIES"};
    ui::Label LbStandardTemp{Frame4, "LbStandardTemp", "Standard Temperature"};
    ui::TextBox Text1{Frame4, "Text1_1"};
    ui::Label unitStandardTemp{Frame4, "unitStandardTemp"};
    ui::Label LbStandardP{Frame4, "LbStandardP", "Standard Pressure"};
    ui::TextBox Text2{Frame4, "Text2_1"};
    ui::Label unitStandardP{Frame4, "unitStandardP"};
    ui::Label LbIsentropic{Frame4, "LbIsentropic", "Isentropic Coefficient"};
    ui::TextBox Text3{Frame4, "Text3_1"};
    ui::Label LbViscosity{Frame4, "LbViscosity", "Flowing Viscosity"};
    ui::TextBox Text4{Frame4, "Text4_1"};
    ui::Label Label25{Frame4, "Label25", "cP"};
    ui::OptionButton OptComprensible{Frame4, "OptComprensible", "Compressible fluid"};
    ui::OptionButton OptNoComprensible{Frame4, "OptNoComprensible", "Incompressible fluid"};
    PressureGroup pressure{SSTab2.OnPage(1), "FrameAtmPressSource_1"};
    TracesGroup traces{SSTab2.OnPage(1), "Text8", "Text9"};

    ModulesGroup modules{SSTab2.OnPage(2)};

    ui::Frame FrCompGas{SSTab2.OnPage(3), "FrCompGas", "GAS COMPOSITION SOURCE"};
    ui::OptionButton Option6{FrCompGas, "Option6", "Manual", true};
    ui::OptionButton Option5{FrCompGas, "Option5", "External I/O"};
    ui::Frame FrMetAGA8{SSTab2.OnPage(3), "FrMetAGA8", "DENSITY COMPUTATION METHOD"};
    ui::OptionButton Option16{FrMetAGA8, "Option16", "Detail", true};
    ui::OptionButton Option17{FrMetAGA8, "Option17", "Gross 1"};
    ui::OptionButton Option18{FrMetAGA8, "Option18", "Gross 2"};
    ui::Frame FrameExtAtmPress{SSTab2.OnPage(3), "FrameExtAtmPress", "EXTERNAL ATMOSPHERIC PRESSURE"};
    ui::Label AtmExtName{FrameExtAtmPress, "AtmExtName", "Name: "};
    ui::Label AtmExtType{FrameExtAtmPress, "AtmExtType", " Type: "};
    ui::Label AtmExtAddr{FrameExtAtmPress, "AtmExtAddr", " Addr: "};
    ui::CommandButton btExtAtmChange{FrameExtAtmPress, "btExtAtmChange", "Change"};
    // What is implausible in the common gas data and the atmospheric pressure.
    ui::Label Notes{*this, "Notes"};

protected:
    void Load() override;
    void Unloading() override;
    bool KeyDown(ui::Key key) override;
    // The close box asks what Cancel asks.
    void CloseAsked() override { Quit(); }

private:
    // The ways in and out (Configurador.cpp)
    void ConfigureAll();
    void ConfigureCommon();
    void ConfigureTags();
    void OpenTabs();
    void OfferInPlaceSave(bool inPlace);
    void TabEntered();
    void Quit();
    void OpenHelp();

    // Load (ConfiguradorLoad.cpp)
    void StartEmpty();
    void FillLists();
    void LoadNew();
    void LoadStored();
    void ShowStored();
    void ShowStoredModules();
    void ShowStoredTraces();
    void ShowStoredChoices();
    void ShowStoredPressure();
    void ShowBoundPressure();
    void OpenAsChosen();
    void OpenForTags();

    // Which branch and which runs (ConfiguradorMode.cpp)
    void ChooseMode();
    [[nodiscard]] int CasoOfNode() const;
    [[nodiscard]] int FirstEnabledRun() const;
    void NameStation(const std::string& blanks, const std::string& run = {});
    [[nodiscard]] std::array<ui::CheckBox*, config::MaxRuns> RunBoxes();
    [[nodiscard]] bool NoRunBoxSet();
    void RunBoxClicked(int run);

    // What the controls do to each other (ConfiguradorRules.cpp)
    void BindRules();
    void AbsoluteChosen();
    void GageChosen();
    void AtmPressFixedChosen();
    void AtmPressExtChosen();
    void EnableExternalPressure(bool enabled);
    void MeasureAbsolute();
    void DisablePressureGroup();
    void EnableGasEntries(bool enabled);
    void UnitsChosen();
    void StandardChosen();
    void SourceChosen();
    void GasModelChosen();
    void CompositionFromOutsideChosen();
    void FallBack(int standard);

    // The pass over the runs and the common pressure (ConfiguradorPass.cpp)
    void RunPass();
    [[nodiscard]] bool MayPass();
    void PassEnded(bool through);
    void ChangeExternalPressure();
    [[nodiscard]] bool BindExternalPressure();

    // The end (ConfiguradorSave.cpp)
    void SaveAndExit(bool inPlace);
    [[nodiscard]] bool MaySave();
    [[nodiscard]] bool KeepsShapes();
    [[nodiscard]] bool OwesTags();
    [[nodiscard]] bool LacksGasValue() const;
    [[nodiscard]] bool LacksParameter();
    [[nodiscard]] bool Write(bool inPlace);
    void StoreValues();
    void StoreChoices(config::StationConfig& station) const;
    // The common gas data and the pressure as the tabs have them now.
    [[nodiscard]] config::StationConfig Entered() const;

    // What decides which tags and data the runs of a new configuration need. The numbers are those of the
    // lists.
    struct PassedChoices {
        std::array<std::string, config::MaxRuns> Runs; // their flags
        int Standard = 0;
        int Source = 0;
        bool FromOutside = false; // the composition; without a gas model there is none
        int Units = 0;
        bool operator==(const PassedChoices&) const = default;
    };
    [[nodiscard]] PassedChoices Choices() const;

    QuietNotes notes_{Notes, [this](audit::Sink& sink) { audit::CheckTypedCommonValues(Entered(), sink); }};
    bool finished_ = false; // the pass went through all runs
    PassedChoices passed_;  // with these
    bool fallingBack_ = false;
};

} // namespace gfc::forms
