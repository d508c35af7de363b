#pragma once

#include "audit/Plausible.h"
#include "forms/editors/QuietNotes.h"
#include "forms/program/Program.h"
#include "forms/station/CommonGroups.h"
#include "forms/wizard/PassDraft.h"
#include "ui/Buttons.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TabbedPane.h"
#include "ui/TextBox.h"

#include <optional>

namespace gfc::forms {

// A configuration from nothing: four pages common to the station, the pass over all runs, and the closing
// page from which the file is written.
class WizardFC : public ProgramForm {
public:
    explicit WizardFC(Program& program);

    ui::Label lbStep{*this, "lbStep", "Step 1 of 3"};
    ui::Label lbInfo{*this, "lbInfo", "Common parameters to all runs"};
    ui::TabbedPane wizard{*this, "wizard", {"Common", "Modules", "Pressure", "Gas", "Finished"}};

    GeneralGroup general{wizard.OnPage(0)};
    TracesGroup traces{wizard.OnPage(0), "TextDevice", "TextNumTraces"};
    ModulesGroup modules{wizard.OnPage(1)};
    PressureGroup pressure{wizard.OnPage(2), "FrameAtmPressSource"};

    ui::Frame Frame4{wizard.OnPage(3), "Frame4", "GAS PROPERTIES"};
    ui::Label LbStandardTemp{Frame4, "LbStandardTemp", "Standard Temperature"};
    ui::TextBox TextDensityStandardTemp{Frame4, "TextDensityStandardTemp"};
    ui::Label unitStandardTemp{Frame4, "unitStandardTemp"};
    ui::Label LbStandardP{Frame4, "LbStandardP", "Standard Pressure"};
    ui::TextBox TextDensityStandardP{Frame4, "TextDensityStandardP"};
    ui::Label unitStandardP{Frame4, "unitStandardP"};
    ui::Label LbViscosity{Frame4, "LbViscosity", "Flowing Viscosity"};
    ui::TextBox Text1{Frame4, "Text1"};
    ui::Label Label6{Frame4, "Label6", "cP"};
    ui::Label LbIsentropic{Frame4, "LbIsentropic", "Isentropic Coefficient"};
    ui::TextBox Text2{Frame4, "Text2"};
    ui::OptionButton OptComprensible{Frame4, "OptComprensible", "Compressible fluid"};
    ui::OptionButton OptNoComprensible{Frame4, "OptNoComprensible", "Incompressible fluid"};
    ui::Frame FrCompGas{wizard.OnPage(3), "FrCompGas", "GAS COMPOSITION SOURCE"};
    ui::OptionButton OptComp{FrCompGas, "OptComp", "Manual"};
    ui::OptionButton OptCromatografo{FrCompGas, "OptCromatografo", "External I/O"};
    ui::Frame FrMetAGA8{wizard.OnPage(3), "FrMetAGA8", "DENSITY COMPUTATION METHOD"};
    ui::OptionButton OptDetail{FrMetAGA8, "OptDetail", "Detail"};
    ui::OptionButton OptGross1{FrMetAGA8, "OptGross1", "Gross 1"};
    ui::OptionButton OptGross2{FrMetAGA8, "OptGross2", "Gross 2"};

    ui::Label Label19{wizard.OnPage(4), "Label19", "Configuration Finished !"};
    ui::CommandButton Command1{wizard.OnPage(4), "Command1", "Finished"};

    ui::CommandButton Command2{*this, "Command2", "Help"};
    ui::CommandButton atras{*this, "atras", "Back"};
    ui::CommandButton siguiente{*this, "siguiente", "Next"};
    ui::CommandButton finalizar{*this, "finalizar", "Finish"};
    ui::CommandButton cancelar{*this, "cancelar", "Cancel"};
    // What is implausible in the common gas data and the atmospheric pressure.
    ui::Label Notes{*this, "Notes"};

    // Copies the pages into the station's configuration, as the texts that are stored.
    void StoreWizardValues();
    // Takes up the pass of a draft, whose configuration is that of the session: the pages are behind it. The
    // form must be loaded.
    void GoOn(drafts::Draft draft);
    // Whether the station can carry the standard with the density source: 0, or the failed row, 1 to 4, after
    // the message of the minimum I/O.
    [[nodiscard]] int SourceCapacityCheck();
    // The same for a gas composition from outside: 0 to 2.
    [[nodiscard]] int CompositionCapacityCheck();

protected:
    void Load() override;
    void Unloading() override;
    bool KeyDown(ui::Key key) override;

private:
    // Pages (WizardFC.cpp)
    void SetDefaults();
    void FillChoices();
    void ShowPage(int page);
    void ShowGasFrames();
    void RefreshStep();
    void Next();
    void Back();
    void OfferFinish();
    void TabClicked();
    void ShowClosingPage();
    void OpenHelp();

    // What the controls do to each other (WizardRules.cpp)
    void BindRules();
    void AbsoluteChosen();
    void GageChosen();
    void UnitsChosen();
    void StandardChosen();
    void EnableGasEntries();
    void PresetValues();
    void SourceChosen();
    void CompositionFromOutsideChosen();

    // Gates (WizardGates.cpp)
    void FallBack(ui::DropDownList& list, int entry);
    void TakeFittingSource();

    // The commit of the pages (WizardStore.cpp)
    [[nodiscard]] bool LacksValue() const;
    void StoreChoices(config::StationConfig& station) const;
    // The common gas data and the pressure as the pages have them now.
    [[nodiscard]] config::StationConfig Entered() const;

    // The end (WizardSave.cpp)
    void Finish();
    void HidePageButtons();
    void SetModulesAside();
    void PassRuns();
    void Abandon();
    void SayWhatIsKept();
    void Save();
    void CloseForms();
    void Quit();

    QuietNotes notes_{Notes, [this](audit::Sink& sink) { audit::CheckTypedCommonValues(Entered(), sink); }};
    std::optional<PassDraft> draft_; // from the pass on
    int nStep_ = 0;
    int lastPage_ = 3;
    bool finished_ = false;
    bool fallingBack_ = false;
};

} // namespace gfc::forms
