#pragma once

#include "forms/wizard/SelectRuns.h"
#include "forms/wizard/WizardFC.h"
#include "support/ProjectFiles.h"
#include "support/Room.h"
#include "support/World.h"

namespace gfc::test {

constexpr Room Plenty{300, 20, 40, 20};

// Station "North" of that room, open.
struct WizardWorld : World {
    explicit WizardWorld(const Room& room = Plenty) : WizardWorld(TagsOf(room)) {}
    explicit WizardWorld(project::TagList tags) {
        AddStation("North", std::move(tags));
        OpenProject();
        OpenStation("North");
    }

    // The wizard, loaded as the command presets it: before the runs are chosen.
    forms::WizardFC& Preset(int standard = 0, int source = 0, int runs = 0) {
        Program.Session.EditMode = forms::EditMode::Wizard;
        auto& form = Program.Forms.Touch<forms::WizardFC>();
        form.general.cbSourceGas.SetListIndex(source);
        form.general.CombStandard.SetListIndex(standard);
        if (runs > 0)
            ActivateFirst(runs);
        return form;
    }
    void ActivateFirst(int runs) {
        std::vector<int> numbers;
        for (int n = 1; n <= runs; ++n)
            numbers.push_back(n);
        ActivateRuns(numbers);
    }
    // The end of a story on the pages.
    void ThenQuit() {
        TheStory.Click("WizardFC", "cancelar")
            .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", ui::Icon::None,
                 ui::Answer::Yes);
    }
    // Plays the story that was told on the pages, and leaves them.
    void PlayPages() {
        ThenQuit();
        Program.Forms.Get<forms::WizardFC>().ShowModal();
    }
};

constexpr const char* ShortageOfAGA3 = "Error: Configuring AGA3";
constexpr const char* ShortageOfAGA7 = "Error: Configuring AGA7";

} // namespace gfc::test
