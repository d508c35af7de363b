#include "scenarios/Moves.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test::moves {

namespace {

constexpr int densimeter = 0;
constexpr int aga7 = 1;
constexpr int accelabar = 2;

struct CancelOf {
    std::string Form;
    std::string Button;
    std::string Title;
    std::string Text;
    ui::Icon TheIcon = ui::Icon::None;
};

const std::string discardMechanical =
    "Are you sure want to discard the changes made to the current configuration ?";
const std::string loseChanges = "Are you sure  you to want to cancel?. All changes will be lost";

// clang-format off
const CancelOf cancels[] = {
    {"FrParMec",    "cmdCancel", "Close mechanical parameters", discardMechanical},
    {"FrAccelabar", "Command2",  "Close mechanical parameters", discardMechanical},
    {"TagRuns",     "Command2",  "Gas Flow Computer",
     "Are you sure you want to discard the changes made to the current configuration?", ui::Icon::Question},
    {"MDetail",     "Command3",  "Orm Gas Flow Computer",       loseChanges},
    {"frSGERG88",   "Command2",  "Gas Flow Computer",           loseChanges},
};
// clang-format on

bool IsGross(const Choices& choices) {
    return choices.Source == 2 || choices.Source == 4;
}

// One dialog of the pass: what announces it, and what is done in it.
struct Dialog {
    std::string Announced;
    std::function<void(Story&)> Acts;
};

Dialog Mechanics(const Choices& choices, const std::string& name, int run, const EditorActs& acts) {
    const std::string form = choices.Standard == accelabar ? "FrAccelabar" : "FrParMec";
    return {name + " Mechanical parameters",
            [=](Story& story) { acts ? acts(story, run) : AcceptEditor(story, form); }};
}

Dialog GasInputs(const Choices& choices, const std::string& name, int run, const EditorActs& acts) {
    if (choices.Chromatograph)
        return {IsGross(choices) ? name + " external SGERG88 Gas Parameters I/O configuration"
                                 : name + " external AGA-8 Gas Composition I/O configuration.",
                AutoBind};
    const std::string form = IsGross(choices) ? "frSGERG88" : "MDetail";
    return {IsGross(choices) ? "Please enter SGERG-88/ISO 12213-3 1997 parameters"
                             : "Please enter " + name + " gas composition",
            [=](Story& story) { acts ? acts(story, run) : AcceptEditor(story, form); }};
}

Dialog RunInputs(const Choices& choices, const std::string& name) {
    return {name + " flow calculation input tag assignments",
            [density = choices.Source == densimeter](Story& story) {
                if (density)
                    story.Type("TagRuns", "phostd", "0.7");
                AutoBind(story);
            }};
}

Dialog CommonInputs() {
    return {"Configuring I/O Tag assignemnts common to all Runs...", [](Story& story) {
                story.ClickNode("TagRuns", "TreeAGA", "Common Inputs\\Atmospheric Pressure")
                    .Click("TagRuns", "Command1")
                    .Click("TagRuns", "Command5");
            }};
}

std::vector<Dialog> DialogsOfRun(const Choices& choices, int run, const EditorActs& acts) {
    const std::string name = "Run " + std::to_string(run);
    std::vector<Dialog> dialogs;
    if (choices.Standard != aga7)
        dialogs.push_back(Mechanics(choices, name, run, acts));
    dialogs.push_back(RunInputs(choices, name));
    dialogs.push_back({name + " flow calculation output tag assignments", AutoBind});
    if (choices.Source == densimeter)
        return dialogs;
    dialogs.push_back(GasInputs(choices, name, run, choices.Standard == aga7 ? acts : EditorActs()));
    dialogs.push_back({name + " gas properties calculation output tag assignments", AutoBind});
    return dialogs;
}

std::vector<Dialog> DialogsOf(const Choices& choices, const std::vector<int>& runs, const EditorActs& acts) {
    std::vector<Dialog> all;
    if (choices.GageExternal)
        all.push_back(CommonInputs());
    for (const int run : runs)
        for (auto& dialog : DialogsOfRun(choices, run, acts))
            all.push_back(std::move(dialog));
    return all;
}

} // namespace

void ThreeStations(FakeProgram& program) {
    program.AddStation("North", LargeStationTags());
    program.AddStation("South", LargeStationTags());
    program.AddStation("Empty", {});
}

void StartUp(Story& story, const std::string& user) {
    story.SeeShown("formInicio")
        .Tick("formInicio", "timerInicio")
        .SeeShown("UserIDForm")
        .Type("UserIDForm", "Text1", user)
        .Click("UserIDForm", "Command1")
        .SeeShown("GFCPrincipal");
}

void Exit(Story& story) {
    story.Menu("GFCPrincipal", "exit");
}

void OpenWizard(Story& story, const std::string& station) {
    story.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\" + station)
        .Menu("GFCPrincipal", "ConfigWiard")
        .Box("Flow Gas Computer", "", ui::Icon::None, ui::Answer::Yes);
}

void ShortageBox(Story& story, project::ShortageKind kind, int runs) {
    story.Box(project::IOShortageTitle(kind), project::IOShortageText(kind, runs), ui::Icon::Exclamation);
}

void SelectRuns(Story& story, const std::vector<int>& runs) {
    story.SeeShown("SelectRuns");
    for (const int run : runs)
        story.Click("SelectRuns", "CheckRun_" + std::to_string(run - 1));
    story.Click("SelectRuns", "Command1").SeeShown("WizardFC");
}

void WalkPages(Story& story, const Choices& choices) {
    story.Select("WizardFC", "CombStandard", choices.Standard)
        .Select("WizardFC", "cbSourceGas", choices.Source);
    if (choices.Units != 0)
        story.Select("WizardFC", "CombUnits", choices.Units);
    story.Click("WizardFC", "siguiente").Click("WizardFC", "siguiente");
    if (choices.GageExternal)
        story.Click("WizardFC", "OptGagePress").Click("WizardFC", "OptAtmPressExt");
    if (choices.Standard != aga7 || choices.Source != densimeter)
        story.Click("WizardFC", "siguiente");
    if (choices.Chromatograph)
        story.Click("WizardFC", "OptCromatografo");
    story.Click("WizardFC", "finalizar");
    // The pass opens with a window of its own, before the first announcement.
    story.SeeText("Step", "Label1", "Press  'Continue' to configure the individual parameters")
        .Click("Step", "Command1");
}

void Continue(Story& story, const std::string& announced, const std::string& step) {
    story.SeeText("Step", "Label1", announced).SeeText("Step", "Label2", step).Click("Step", "Command1");
}

void AutoBind(Story& story) {
    story.Click("TagRuns", "Command6")
        .Box("Automatic Tags assignments", "All variables will be assigned to tags automatically",
             ui::Icon::Information)
        .Click("TagRuns", "Command5");
}

void AcceptEditor(Story& story, const std::string& form) {
    const bool firstButton = form != "FrParMec";
    story.SeeShown(form).Click(form, firstButton ? "Command1" : "cmdAceptar");
}

void CancelWindow(Story& story, const std::string& form) {
    const auto* const cancel = std::ranges::find(cancels, form, &CancelOf::Form);
    ASSERT_NE(cancel, std::end(cancels)) << form;
    story.Click(form, cancel->Button)
        .Box(cancel->Title, cancel->Text, cancel->TheIcon, ui::Answer::No)
        .SeeShown(form)
        .Click(form, cancel->Button)
        .Box(cancel->Title, cancel->Text, cancel->TheIcon, ui::Answer::Yes);
}

void PassAllRuns(Story& story, const Choices& choices, const std::vector<int>& runs, const EditorActs& acts) {
    const auto dialogs = DialogsOf(choices, runs, acts);
    for (std::size_t i = 0; i < dialogs.size(); ++i) {
        Continue(story, dialogs[i].Announced,
                 "Step " + std::to_string(i + 1) + " of " + std::to_string(dialogs.size()));
        dialogs[i].Acts(story);
    }
}

void PassUntil(Story& story, const Choices& choices, int run, int window) {
    const auto dialogs = DialogsOf(choices, {run}, {});
    for (int i = 0; i < window; ++i) {
        story.Click("Step", "Command1");
        if (i + 1 < window)
            dialogs.at(static_cast<std::size_t>(i)).Acts(story);
    }
}

void SaveAndClose(Story& story) {
    story.SeeText("WizardFC", "Label19", "Configuration Finished !")
        .Click("WizardFC", "Command1")
        .SeeShown("WizardFC", false);
}

} // namespace gfc::test::moves
