#pragma once

#include "binding/Assignment.h"
#include "forms/program/Program.h"
#include "forms/runs/FrModificarTags.h"
#include "support/FileText.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace gfc::test {

struct ModifyChoices {
    std::string Algorithm = "AGA3";
    std::string Source = "AGA8";
    std::string CalInput = "FIXED"; // "MEASURED" or "FIXED"
    std::vector<int> Runs = {2, 4};
};

// Station "North", large, with a stored configuration whose every variable is bound to a tag that the station
// holds. Run 2 is selected in the tree.
struct ModifyWorld : World {
    static constexpr const char* Form = "FrModificarTags";
    inline static const std::string Trial = InJobs("tmpTags_plant_North.ini");
    inline static const std::string Log = InJobs("KDOrmAGA_plant_North_Errors.log");

    explicit ModifyWorld(const ModifyChoices& choices = {});

    // "Run 2", "Individual Parameters"
    void SelectNode(const std::string& text);
    void SelectRun(int run) { SelectNode("Individual Parameters\\Run " + std::to_string(run)); }

    // Puts another value into the file.
    void Put(const std::string& section, const std::string& key, const std::string& value);
    [[nodiscard]] std::string Key(const std::string& section, const std::string& key);
    // The station's tag of that name takes another, as the tool would do it between two commands.
    void RenameTag(const std::string& name, const std::string& newName);
    [[nodiscard]] std::string File() const { return ConfigFile("North"); }
    std::string& Content() { return Files.Content.at(File()); }

    // Shows the form and plays the story.
    void Play() { Program.Forms.Get<forms::FrModificarTags>().ShowModal(); }
    // Ticks these boxes, "Check<n>", and accepts.
    void TickAndAccept(const std::vector<int>& boxes);
    // Plays what is told inside the open form, then leaves it by Cancel.
    void LookAndCancel();
    [[nodiscard]] forms::FrModificarTags& TheForm() { return Program.Forms.Get<forms::FrModificarTags>(); }

    // Steps inside the windows of the flow.
    void Continue() { TheStory.Click("TagRuns", "Command5"); }
    void CancelTags();
    // Takes the tag of the variable at this place of the tree back and gives it the first one on offer;
    // Assigned then holds what the list said of that one.
    void Rebind(int position, const std::string& list);
    void AcceptMechanical() { TheStory.Click("FrParMec", "cmdAceptar"); }
    void AskedToSave(ui::Icon icon, ui::Answer answer);
    void SaveAfterTrial(ui::Answer answer = ui::Answer::Yes) { AskedToSave(ui::Icon::Information, answer); }
    // The windows shown since the form, in order.
    [[nodiscard]] std::vector<std::string> Windows() const;

    config::TagBinding Assigned;

private:
    void Choose(const ModifyChoices& choices);
    void BindEverything();
    void FillFixedValues();
};

} // namespace gfc::test
