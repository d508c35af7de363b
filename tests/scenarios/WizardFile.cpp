#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"

#include <gtest/gtest.h>

#include <tuple>

namespace gfc::test {

namespace {

const std::string wizard = "WizardFC";

void FillThePages(Story& story) {
    story.Select(wizard, "CombStandard", 1)
        .Select(wizard, "cbSourceGas", 2)
        .Select(wizard, "CombUnits", 2)
        .Click(wizard, "Check1")
        .Type(wizard, "TextDevice", "/nvram/other.txt")
        .Type(wizard, "TextNumTraces", "50")
        .Click(wizard, "siguiente")
        .Select(wizard, "Combo3", 1)
        .Click(wizard, "siguiente")
        .Click(wizard, "OptGagePress")
        .Type(wizard, "txtAtmPress", "1.02")
        .Click(wizard, "siguiente")
        .Type(wizard, "TextDensityStandardTemp", "16")
        .Type(wizard, "TextDensityStandardP", "1.01")
        .Click(wizard, "OptNoComprensible")
        .Click(wizard, "finalizar")
        .Click("Step", "Command1");
}

// The module that was chosen is not offered for binding.
void SeeTheModuleSetAside(Story& story) {
    story.Check([](Driver& d) {
        EXPECT_EQ(d.Rows("TagRuns", "ListViewRuns"), 128);
        EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 1, 1), "FLOG-1");
    });
}

void GoThroughThePass(Story& story) {
    story.Click("Step", "Command1");
    SeeTheModuleSetAside(story);
    moves::AutoBind(story);
    story.Click("Step", "Command1");
    moves::AutoBind(story);
    story.Click("Step", "Command1");
    moves::AcceptEditor(story, "frSGERG88");
    story.Click("Step", "Command1");
    moves::AutoBind(story);
}

void SeeTheFile(FakeProgram& program) {
    const std::tuple<const char*, const char*, const char*> expected[] = {
        {"Station", "EnableDataTraces", "Yes"},
        {"Station", "DeviceDataTraces", "/nvram/other.txt"},
        {"Station", "NumberTraces", "50"},
        {"FlowRuns", "SystemUnits", "Metric"},
        {"FlowRuns", "WrkFloatModName", "VF1"},
        {"FlowRuns", "WrkFloatRegAddr", "1001"},
        {"FlowRuns", "Run5", "Yes"},
        {"AGA7", "StandardT", "16"},
        {"AGA7", "StandardP", "1.01"},
        {"AGA7", "Compressible", "Yes"}, // deliberately, whatever was chosen
        {"Run5", "Compressible", "No"},
        {"AGA7", "PressType", "Gage"},
        {"AGA7", "ExtAtmPress", "No"},
        {"AGA7", "AtmPress", "1.02"},
        {"SGERG88", "AGA8CalInput", "FIXED"},
        {"Run5", "AtmPress", "1.02"},
        {"Run5", "VolCalorificValue", "11.29444"},
    };
    for (const auto& [section, key, value] : expected) {
        EXPECT_EQ(program.Program.Ini.ReadKey(section, key, program.ConfigFile("North")), value)
            << section << " " << key;
    }
}

} // namespace

std::vector<Scenario> WizardFileScenarios() {
    return {{"wizard_pages_stand_in_the_file", moves::ThreeStations,
             [](Story& story) {
                 moves::StartUp(story);
                 moves::OpenWizard(story, "North");
                 moves::SelectRuns(story, {5});
                 FillThePages(story);
                 GoThroughThePass(story);
                 moves::SaveAndClose(story);
                 moves::Exit(story);
             },
             SeeTheFile}};
}

} // namespace gfc::test
