#pragma once

#include "forms/editors/FrParMec.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

// What the tests of FrParMec stand on: run 2 edited, with an empty record.
namespace gfc::forms::parmec {

inline const std::string form = "FrParMec";
inline const std::string missing = "Missing Mechanical Parameters";
inline const std::string discard =
    "Are you sure want to discard the changes made to the current configuration ?";

struct FrParMecForm : testing::Test {
    FrParMecForm() {
        World.Station.SystemUnits = "US";
        World.Station.FlowAlgorithm = "AGA3";
        World.Session.EditRun = 2;
        World.Session.EditMode = EditMode::ModifyTags;
        World.Station.Runs.PrepareWholeStation(2);
    }

    // Shows the form and lets the story run in it.
    void Show() { World.Program.Forms.Get<FrParMec>().ShowModal(); }
    void ShowAndAccept() {
        Story.Click(form, "cmdAceptar");
        Show();
    }
    config::RunMechanical& Element(std::size_t run) { return World.Station.Runs.Mechanical.at(run); }
    void SeeTexts(const std::vector<std::pair<std::string, std::string>>& texts) {
        for (const auto& [control, text] : texts)
            Story.SeeText(form, control, text);
    }

    test::World World;
    test::Story& Story = World.TheStory;
    config::RunMechanical& Record = World.Session.EditedMechanical;
};

inline config::RunMechanical FullRecord() {
    config::RunMechanical record;
    record.InternalPipeDia = "4.026";
    record.PipeMaterial = "SS";
    record.InternalPipeDiaRefTemp = "70";
    record.OrificeDia = "1.5";
    record.OrificeMaterial = "MONEL";
    record.OrificeDiaRefTemp = "71";
    record.PressureTap = "Pipe";
    record.PressureTapPos = "Down";
    record.OrificeThermalExpCoeff = "0.00001";
    record.PipeThermalExpCoeff = "0.00002";
    record.ExtMechParam = "Yes";
    return record;
}

} // namespace gfc::forms::parmec
