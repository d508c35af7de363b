#pragma once

#include "forms/SelectRuns.h"
#include "forms/WizardFC.h"
#include "support/World.h"

namespace gfc::test {

// Registers that are free once the working modules are set aside.
struct Room {
    int Floats = 0;
    int Analogs = 0;
    int Digitals = 0;
    int Longs = 0;
};

// A station with one working module of each kind, so that every count is looked at.
[[nodiscard]] inline project::TagList TagsOf(const Room& room) {
    project::TagList tags = TagsInModule("VL0", "Virtual LI", "LX", "LLOG-", 8, 1);
    // Modules too small to be candidates themselves.
    for (int left = room.Longs, at = 0; left > 0; left -= 7, ++at)
        tags += TagsInModule("VL-" + std::to_string(at), "Virtual LI", "LX", "L" + std::to_string(at) + "-",
                             std::min(left, 7), 101 + 7 * at);
    tags += TagsInModule("VA0", "Virtual AI", "AX", "ALOG-", 32, 1);
    tags += TagsInModule("AI-8", "Physical AI", "AX", "AI-", room.Analogs, 201);
    tags += TagsInModule("VF0", "Virtual FI", "FX", "FLOG-", 128, 1);
    for (int left = room.Floats, at = 0; left > 0; left -= 127, ++at)
        tags += TagsInModule("VF-" + std::to_string(at), "Virtual FI", "FX", "F" + std::to_string(at) + "-",
                             std::min(left, 127), 1001 + 127 * at);
    tags += TagsInModule("DI-16", "Physical DI", "X", "XS-", room.Digitals, 401);
    return tags;
}

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
        form.cbSourceGas.SetListIndex(source);
        form.CombStandard.SetListIndex(standard);
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
