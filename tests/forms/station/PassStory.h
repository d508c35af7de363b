#pragma once

#include "forms/wizard/WizardWorld.h"
#include "support/Named.h"

#include <gtest/gtest.h>

namespace gfc::test {

// What is chosen on the wizard's pages; the numbers are those of the lists' entries.
struct PassChoices {
    int Standard = 0;
    int Source = 0;
    bool Outside = false;  // the composition comes from outside
    bool External = false; // so does the atmospheric pressure
    std::vector<int> Runs = {2, 5};

    // "AGA7, MEASURED, outside, external, runs 2 5"
    [[nodiscard]] std::string Text() const {
        std::string text(StoredOf(config::FlowAlgorithms, Standard));
        text += ", " + std::string(StoredOf(config::GasDensitySources, Source));
        text += Outside ? ", outside" : "";
        text += External ? ", external, runs" : ", runs";
        for (const int run : Runs)
            text += " " + std::to_string(run);
        return text;
    }
    friend void PrintTo(const PassChoices& the, std::ostream* out) { *out << the.Text(); }
};

// The words of the pass that differ by who drives it; the wizard's, unless others are given.
struct PassWords {
    std::string Accelabar = " Mechanical parameters";
    std::string ExternalGross = " external SGERG88 Gas Parameters I/O configuration";
    bool StationFirst = false; // in the captions of the editors
    std::string LastStepOf = " of ";
};

// One dialog of the pass: what Step announces before it, the window, and how it is gone through.
struct PassDialog {
    std::string Announced;
    std::string Window;
    std::string Caption; // empty: not looked at
    std::function<void(Story&)> GoThrough;
    std::string StepOf = " of ";
};

// The pass as a person meets it, told independently of the code that runs it.
class PassStory {
public:
    explicit PassStory(PassChoices choices, PassWords words = {})
        : choices_(std::move(choices)), words_(std::move(words)) {
        if (choices_.External)
            AddCommon();
        for (const int run : choices_.Runs)
            AddRun(run);
    }
    [[nodiscard]] const std::vector<PassDialog>& Dialogs() const { return dialogs_; }

    // From the wizard's first page to a press on Finish.
    void WalkPages(Story& story) const {
        const bool pressurePage = choices_.Standard != 1 || choices_.Source != 0;
        story.Click("WizardFC", "siguiente").Click("WizardFC", "siguiente");
        if (choices_.External)
            story.Click("WizardFC", "OptGagePress").Click("WizardFC", "OptAtmPressExt");
        if (pressurePage)
            story.Click("WizardFC", "siguiente");
        if (choices_.Outside)
            story.Click("WizardFC", "OptCromatografo");
        story.Click("WizardFC", "finalizar");
    }
    // The window that opens the pass, before the first announcement.
    static void Open(Story& story) {
        story.SeeShown("WizardFC", false)
            .SeeText("Step", "Label1", "Press  'Continue' to configure the individual parameters")
            .SeeText("Step", "Label2", "")
            .Click("Step", "Command1");
    }
    // Up to the window of a dialog, counted from 0, which then stands open.
    void Until(Story& story, std::size_t last, std::size_t first = 0) const {
        for (std::size_t i = first; i <= last; ++i) {
            const auto& dialog = dialogs_.at(i);
            story.SeeText("Step", "Label1", dialog.Announced)
                .SeeText("Step", "Label2",
                         "Step " + std::to_string(i + 1) + dialog.StepOf + std::to_string(dialogs_.size()))
                .Click("Step", "Command1")
                .SeeShown(dialog.Window);
            if (!dialog.Caption.empty())
                story.SeeCaption(dialog.Window, dialog.Caption);
            if (i < last)
                dialog.GoThrough(story);
        }
    }
    void Through(Story& story, std::size_t first = 0) const {
        Until(story, dialogs_.size() - 1, first);
        dialogs_.back().GoThrough(story);
    }

private:
    static void AutoBind(Story& story) {
        story.Click("TagRuns", "Command6")
            .Box("Automatic Tags assignments", "", ui::Icon::Information)
            .Click("TagRuns", "Command5");
    }
    void AddCommon() {
        dialogs_.push_back({"Configuring I/O Tag assignemnts common to all Runs...", "TagRuns",
                            "Configuring input I/O assignments common to all Runs...", [](Story& story) {
                                story.ClickNode("TagRuns", "TreeAGA", "Common Inputs\\Atmospheric Pressure")
                                    .Click("TagRuns", "Command1")
                                    .Click("TagRuns", "Command5");
                            }});
    }
    void AddRun(int run) {
        const std::string name = "Run " + std::to_string(run);
        if (choices_.Standard != 1)
            AddMechanical(run, name);
        const bool densimeter = choices_.Source == 0;
        dialogs_.push_back({name + " flow calculation input tag assignments", "TagRuns", InputCaption(name),
                            [densimeter](Story& story) {
                                if (densimeter)
                                    story.Type("TagRuns", "phostd", "0.0458");
                                AutoBind(story);
                            }});
        dialogs_.push_back({name + " flow calculation output tag assignments", "TagRuns", "", AutoBind});
        if (densimeter)
            return;
        AddGas(run, name);
        dialogs_.push_back({name + " gas properties calculation output tag assignments", "TagRuns", "",
                            AutoBind, words_.LastStepOf});
    }
    [[nodiscard]] std::string InputCaption(const std::string& name) const {
        const char* system = choices_.Standard == 1   ? "AGA-7"
                             : choices_.Standard == 3 ? "SYT6143-2004"
                                                      : "AGA-3";
        return std::string("Configuring the ") + system + " Input Tags for " + name;
    }
    [[nodiscard]] std::string EditorCaption(const std::string& what, int run) const {
        const std::string where = "Station: North, Run: " + std::to_string(run);
        return words_.StationFirst ? where + " " + what : what + " " + where;
    }
    // Each run gets values of its own, so that none is found under another.
    void AddMechanical(int run, const std::string& name) {
        const bool accelabar = choices_.Standard == 2;
        const std::string window = accelabar ? "FrAccelabar" : "FrParMec";
        dialogs_.push_back(
            {name + (accelabar ? words_.Accelabar : " Mechanical parameters"), window,
             EditorCaption(accelabar ? "Accelabar Parameters" : "Mechanical Parameters", run),
             [run, accelabar](Story& story) {
                 if (accelabar)
                     story.Select("FrAccelabar", "Combo1", run).Click("FrAccelabar", "Command1");
                 else
                     story.SeeText("FrParMec", "txtPipeThermal", "")
                         .Type("FrParMec", "txtDiaOrif", "1." + std::to_string(run))
                         .Click("FrParMec", "cmdAceptar");
             }});
    }
    void AddGas(int run, const std::string& name) {
        const bool gross = choices_.Source % 2 == 0;
        if (choices_.Outside) {
            dialogs_.push_back(
                {name + (gross ? words_.ExternalGross : " external AGA-8 Gas Composition I/O configuration."),
                 "TagRuns", "", AutoBind});
            return;
        }
        if (gross)
            dialogs_.push_back(
                {"Please enter SGERG-88/ISO 12213-3 1997 parameters", "frSGERG88", "", [run](Story& story) {
                     story
                         .SeeText("frSGERG88", "lbPrompt",
                                  "Enter/Edit the gas properties for Run " + std::to_string(run))
                         .SeeText("frSGERG88", "Text1_1", "0.581")
                         .Type("frSGERG88", "Text1_1", "0.6" + std::to_string(run))
                         .Click("frSGERG88", "Command1");
                 }});
        else
            dialogs_.push_back({"Please enter " + name + " gas composition", "MDetail", "Gas Composition",
                                [run](Story& story) {
                                    story
                                        .SeeText("MDetail", "lbPrompt",
                                                 "Enter/Edit the gas composition for Run " +
                                                     std::to_string(run))
                                        // Not what the run before it was given.
                                        .SeeText("MDetail", "Text10", "0.965222")
                                        .Type("MDetail", "Text10", "0.9" + std::to_string(run))
                                        .Click("MDetail", "Command1");
                                }});
    }

    PassChoices choices_;
    PassWords words_;
    std::vector<PassDialog> dialogs_;
};

// Station "North" with room for all, in the hands of the wizard.
struct PassWorld : WizardWorld {
    explicit PassWorld(const PassChoices& choices)
        : WizardWorld(LargeStationTags()), TheChoices(choices), ThePass(choices) {
        (void)Preset(choices.Standard, choices.Source);
        ActivateRuns(choices.Runs);
        ThePass.WalkPages(TheStory);
    }
    void Play() { Program.Forms.Get<forms::WizardFC>().ShowModal(); }
    [[nodiscard]] std::string File() { return Files.Content[ConfigFile("North")]; }

    PassChoices TheChoices;
    PassStory ThePass;
};

} // namespace gfc::test
