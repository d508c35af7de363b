#pragma once

#include "forms/configurador/Configurador.h"
#include "forms/wizard/WizardWorld.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

namespace gfc::test {

constexpr const char* Configurator = "Configurador";

// A file that the wizard has written.
[[nodiscard]] inline std::string WizardFile(const std::string& name) {
    return Golden("wizard/" + name + ".ini");
}

// With the line ends of the files.
[[nodiscard]] inline std::string Lines(const std::string& text) {
    std::string lines;
    for (const char c : text)
        lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return lines;
}

[[nodiscard]] inline bool Holds(const std::string& file, const std::string& lines) {
    return file.find(Lines(lines)) != std::string::npos;
}

// The first place alone.
[[nodiscard]] inline std::string With(std::string file, const std::string& from, const std::string& to) {
    const auto at = file.find(Lines(from));
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? file : file.replace(at, Lines(from).size(), Lines(to));
}

// Station "North", open and selected in the tree; without a file it is a new configuration.
struct ConfiguradorWorld : World {
    explicit ConfiguradorWorld(const std::string& file = {}) : ConfiguradorWorld(LargeStationTags(), file) {}
    explicit ConfiguradorWorld(project::TagList tags, const std::string& file = {}) {
        AddStation("North", std::move(tags));
        OpenProject();
        OpenStation("North");
        Select("");
        if (!file.empty())
            File() = file;
    }

    std::string& File() { return Files.Content[ConfigFile("North")]; }
    [[nodiscard]] bool HasFile() { return Files.Exists(ConfigFile("North")); }
    // The node below the station, with its leading backslash.
    void Select(const std::string& node) {
        Session.SelectedPath = "All Stations\\North" + node;
        Session.SelectedNodeText = node.empty() ? "North" : node.substr(node.rfind('\\') + 1);
    }
    // Loads it.
    forms::Configurador& Form() { return Program.Forms.Touch<forms::Configurador>(); }
    // As the command presets a new configuration.
    forms::Configurador& Preset(int standard = 0, int source = 0) {
        Form().general.cbSourceGas.SetListIndex(source);
        Form().general.CombStandard.SetListIndex(standard);
        return Form();
    }
    void Show() {
        Program.Forms.Get<forms::Configurador>().ShowModal();
        Screen.PlayOut();
    }
    // The end of a story on the tabs: left without a save.
    void ThenCancel() {
        TheStory.Menu(Configurator, "Salir2")
            .Box("Orm Gas Flow Computer",
                 "Do you want to cancel and discard any changes made to the current configuration?",
                 ui::Icon::None, ui::Answer::Yes)
            .SeeShown(Configurator, false);
    }
    void PlayAndCancel() {
        ThenCancel();
        Show();
    }
    void SeeAll(const std::vector<std::string>& controls, bool enabled) {
        for (const auto& control : controls)
            TheStory.SeeEnabled(Configurator, control, enabled);
    }
    void ThenSave(const std::string& entry, ui::Answer answer = ui::Answer::Yes) {
        TheStory.Menu(Configurator, entry)
            .Box("Configuration Completed.", "Do you want to save your changes?", ui::Icon::None, answer)
            .SeeShown(Configurator, false);
    }
};

} // namespace gfc::test
