#pragma once

#include "support/Story.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace gfc::test {

// How a station is configured to which a run is added; the numbers are those of the lists of the wizard.
struct AddedRun {
    int Standard = 0;
    int Source = 0;
    bool Outside = false; // the composition comes from outside
    int Run = 3;
    bool ExternalDiameters = false;
};

struct AddedRunDialog {
    std::string Announced;
    std::string Window;
    std::string Caption; // empty: not looked at
    std::function<void(Story&)> GoThrough;
};

// The dialogs of one more run as a person meets them, from behind the question whether to configure it.
class AddRunStory {
public:
    explicit AddRunStory(const AddedRun& added) : added_(added), name_("Run " + std::to_string(added.Run)) {
        if (added.Standard != 1)
            AddMechanical();
        const bool densimeter = added.Source == 0;
        dialogs_.push_back(
            {name_ + " flow calculation input tag assignments", "TagRuns", "", [densimeter](Story& story) {
                 if (densimeter)
                     story.Type("TagRuns", "phostd", "0.0458");
                 AutoBind(story);
             }});
        dialogs_.push_back({name_ + " flow calculation output tag assignments", "TagRuns", "", AutoBind});
        if (densimeter)
            return;
        AddGas();
        dialogs_.push_back(
            {name_ + " flow calculation output AGA8 tag assignments", "TagRuns", "", AutoBind});
    }

    [[nodiscard]] const std::vector<AddedRunDialog>& Dialogs() const { return dialogs_; }
    // Up to the window of a dialog, counted from 0, which then stands open.
    void Until(Story& story, std::size_t last) const {
        for (std::size_t i = 0; i <= last; ++i) {
            Announce(story, i);
            if (i < last)
                dialogs_.at(i).GoThrough(story);
        }
    }
    void Through(Story& story) const {
        Until(story, dialogs_.size() - 1);
        dialogs_.back().GoThrough(story);
    }
    static void Finish(Story& story, ui::Answer answer) {
        story.Box("Configuration finished.", "Do you want to save your changes ?", ui::Icon::None, answer);
    }
    static void AutoBind(Story& story) {
        story.Click("TagRuns", "Command6")
            .Box("Automatic Tags assignments", "", ui::Icon::Information)
            .Click("TagRuns", "Command5");
    }

private:
    void Announce(Story& story, std::size_t at) const {
        const auto& dialog = dialogs_.at(at);
        story.SeeText("Step", "Label1", dialog.Announced)
            .SeeText("Step", "Label2",
                     "Step " + std::to_string(at + 1) + " of " + std::to_string(dialogs_.size()))
            .SeeText("Step", "Command1", "Continue")
            .Click("Step", "Command1")
            .SeeShown(dialog.Window);
        if (!dialog.Caption.empty())
            story.SeeCaption(dialog.Window, dialog.Caption);
    }
    void AddMechanical() {
        if (added_.Standard == 2)
            return dialogs_.push_back(
                {name_ + " Accelabar Parameters", "FrAccelabar", "Accelabar Parameters Station: North",
                 [](Story& story) {
                     story.Select("FrAccelabar", "Combo1", 3).Click("FrAccelabar", "Command1");
                 }});
        dialogs_.push_back({name_ + " Mechanical Parameters", "FrParMec",
                            "Mechanical Parameters Station: North",
                            [external = added_.ExternalDiameters](Story& story) {
                                if (external)
                                    story.Click("FrParMec", "OptExt");
                                else
                                    story.Type("FrParMec", "txtDiaOrif", "1.3");
                                story.Click("FrParMec", "cmdAceptar");
                            }});
    }
    void AddGas() {
        const bool gross = added_.Source % 2 == 0;
        if (added_.Outside)
            return dialogs_.push_back({name_ + (gross ? " external SGERG88 Gas Parameters I/O configuration"
                                                      : " external AGA-8 Gas Composition I/O configuration."),
                                       "TagRuns", "", AutoBind});
        if (gross)
            return dialogs_.push_back(
                {"Please enter SGERG-88/ISO 12213-3 1997 parameters", "frSGERG88", "", [](Story& story) {
                     story.Type("frSGERG88", "Text1_1", "0.63").Click("frSGERG88", "Command1");
                 }});
        dialogs_.push_back(
            {"Please enter " + name_ + " gas composition", "MDetail", "Gas Composition",
             [](Story& story) { story.Type("MDetail", "Text10", "0.93").Click("MDetail", "Command1"); }});
    }

    AddedRun added_;
    std::string name_;
    std::vector<AddedRunDialog> dialogs_;
};

} // namespace gfc::test
