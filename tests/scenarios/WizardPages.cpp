#include "scenarios/Moves.h"
#include "scenarios/Scenario.h"
#include "support/ProjectFiles.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string wizard = "WizardFC";

void Page(Story& story, int tab, const std::string& step, const std::string& info) {
    story.Check([tab](Driver& d) { EXPECT_EQ(d.Tab(wizard, "wizard"), tab); })
        .SeeText(wizard, "lbStep", step)
        .SeeText(wizard, "lbInfo", info);
}

void QuitWizard(Story& story) {
    story.Click(wizard, "cancelar")
        .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", Icon::None, Answer::Yes)
        .SeeShown(wizard, false);
    moves::Exit(story);
}

// The wizard on station North with run 1, left by its own cancel; nothing may have been written.
Scenario OnThePages(const std::string& name, std::function<void(Story&)> pages) {
    return {name, moves::ThreeStations,
            [pages = std::move(pages)](Story& story) {
                moves::StartUp(story);
                moves::OpenWizard(story, "North");
                moves::SelectRuns(story, {1});
                pages(story);
                QuitWizard(story);
            },
            [](FakeProgram& program) { EXPECT_TRUE(ProjectFiles(program.Files).empty()); }};
}

void FourPagesForwardAndBack(Story& story) {
    Page(story, 0, "Step 1 of 4", "Common parameters to all runs");
    story.SeeEnabled(wizard, "atras", false)
        .SeeVisible(wizard, "finalizar", false)
        .Click(wizard, "siguiente");
    Page(story, 1, "Step 2 of 4", "Select the virtual modules required for API21.1 datalogging");
    story.SeeEnabled(wizard, "atras").SelectTab(wizard, "wizard", 3);
    Page(story, 1, "Step 2 of 4", "Select the virtual modules required for API21.1 datalogging");
    story.Click(wizard, "siguiente");
    Page(story, 2, "Step 3 of 4", "Pressure measurement and Atmospheric Pressure configuration");
    story.Click(wizard, "siguiente");
    Page(story, 3, "Step 4 of 4", "Gas properties configuration");
    story.SeeVisible(wizard, "siguiente", false)
        .SeeVisible(wizard, "finalizar")
        .SeeEnabled(wizard, "finalizar");
    story.SeeVisible(wizard, "FrCompGas", false)
        .Click(wizard, "atras")
        .Click(wizard, "atras")
        .Click(wizard, "atras");
    Page(story, 0, "Step 1 of 4", "Common Parameters to all runs");
    story.SeeVisible(wizard, "siguiente")
        .SeeVisible(wizard, "finalizar", false)
        .SeeEnabled(wizard, "atras", false);
}

void DensimeterUnderAga7SkipsThePressurePage(Story& story) {
    story.Select(wizard, "CombStandard", 1).Click(wizard, "siguiente").Click(wizard, "siguiente");
    Page(story, 3, "Step 4 of 4", "Gas properties configuration");
    story.Click(wizard, "atras");
    Page(story, 1, "Step 2 of 4", "Select the virtual modules required for API21.1 datalogging");
}

void GasModelUnderAga7HasThePressurePage(Story& story) {
    story.Select(wizard, "CombStandard", 1).Select(wizard, "cbSourceGas", 1);
    story.Click(wizard, "siguiente").Click(wizard, "siguiente");
    Page(story, 2, "Step 3 of 4", "Pressure measurement and Atmospheric Pressure configuration");
    story.Click(wizard, "siguiente").SeeVisible(wizard, "FrCompGas").SeeVisible(wizard, "FrMetAGA8");
}

void StandardBringsUnitsAndValues(Story& story) {
    story.Select(wizard, "CombStandard", 3)
        .SeeText(wizard, "CombUnits", "Practical-SI")
        .Click(wizard, "siguiente")
        .Click(wizard, "siguiente")
        .SeeText(wizard, "txtAtmPress", "0.101325")
        .SeeText(wizard, "unitAtmPress", "MPa")
        .Click(wizard, "siguiente")
        .SeeText(wizard, "TextDensityStandardTemp", "20.00")
        .SeeText(wizard, "TextDensityStandardP", "0.101325")
        .SeeText(wizard, "Text1", "0.01096")
        .SeeText(wizard, "Text2", "1.36")
        .Click(wizard, "atras")
        .Click(wizard, "atras")
        .Click(wizard, "atras")
        .Select(wizard, "CombStandard", 0)
        .SeeText(wizard, "CombUnits", "US")
        .SeeText(wizard, "TextDensityStandardTemp", "60.00")
        .SeeText(wizard, "Text1", "0.010268")
        .SeeText(wizard, "Text2", "1.36"); // deliberately left behind
}

void UnitsOverwriteWhatWasTyped(Story& story) {
    story.Click(wizard, "siguiente").Click(wizard, "siguiente").Click(wizard, "siguiente");
    story.Type(wizard, "TextDensityStandardTemp", "70").Click(wizard, "atras").Click(wizard, "atras");
    story.Click(wizard, "atras")
        .Select(wizard, "CombUnits", 2)
        .SeeText(wizard, "TextDensityStandardTemp", "15.00");
}

void PressureControlsFollowTheOptions(Story& story) {
    story.Click(wizard, "siguiente").Click(wizard, "siguiente");
    for (const char* name :
         {"LbAtmPress", "txtAtmPress", "unitAtmPress", "OptAtmPressFixed", "OptAtmPressExt"})
        story.SeeEnabled(wizard, name, false);
    story.Click(wizard, "OptGagePress")
        .SeeEnabled(wizard, "txtAtmPress")
        .SeeEnabled(wizard, "OptAtmPressExt");
    story.Click(wizard, "OptAtmPressExt").SeeEnabled(wizard, "txtAtmPress", false);
    story.Click(wizard, "OptAtmPressFixed").SeeEnabled(wizard, "txtAtmPress");
    story.Click(wizard, "OptAbsPress").SeeEnabled(wizard, "OptAtmPressFixed", false);
}

void TracesFollowTheirBox(Story& story) {
    story.SeeEnabled(wizard, "TextDevice", false)
        .SeeText(wizard, "TextDevice", "/nvram/kdormaga.txt")
        .SeeText(wizard, "TextNumTraces", "1000")
        .Click(wizard, "Check1")
        .SeeEnabled(wizard, "TextDevice")
        .SeeEnabled(wizard, "TextNumTraces")
        .Click(wizard, "Check1")
        .SeeEnabled(wizard, "TextNumTraces", false);
}

void GrossFamilyHasNoChromatographOption(Story& story) {
    story.Select(wizard, "cbSourceGas", 2).SeeEnabled(wizard, "OptCromatografo", false);
    story.SeeEnabled(wizard, "OptDetail", false).Select(wizard, "cbSourceGas", 3);
    story.SeeEnabled(wizard, "OptCromatografo").SeeEnabled(wizard, "OptDetail");
}

void SecondPointIsStoppedWhenTheFieldIsLeft(Story& story) {
    const std::string text = "Error: Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";
    story.Click(wizard, "siguiente").Click(wizard, "siguiente").Click(wizard, "siguiente");
    story.Type(wizard, "Text1", "1.2.3")
        .Focus(wizard, "Text2")
        .Box("Incorrect value", text, Icon::Exclamation);
    story.Check([](Driver& d) { EXPECT_EQ(d.Focused(wizard), "Text1"); });
    story.Type(wizard, "Text1", "0.02").Focus(wizard, "Text2");
    story.Check([](Driver& d) { EXPECT_EQ(d.Focused(wizard), "Text2"); });
}

// Each of the four in turn, under one message.
void EachMissingValueKeepsThePage(Story& story) {
    story.Click(wizard, "siguiente").Click(wizard, "siguiente").Click(wizard, "siguiente");
    for (const char* field : {"TextDensityStandardTemp", "TextDensityStandardP", "Text2", "Text1"})
        story.Type(wizard, field, "")
            .Click(wizard, "finalizar")
            .Box("Gas Flow Computer", "Error: Missing gas flowing viscosity or gas isentropic coefficient",
                 Icon::Exclamation)
            .SeeShown(wizard)
            .SeeVisible(wizard, "siguiente")
            .Type(wizard, field, "1");
    story.Click(wizard, "atras");
    Page(story, 2, "Step 3 of 4", "Pressure measurement and Atmospheric Pressure configuration");
}

void StandardDecidesWhichGasValuesAreEntered(Story& story) {
    for (const int standard : {1, 2, 0}) {
        story.Select(wizard, "CombStandard", standard).Select(wizard, "cbSourceGas", 1);
        for (int page = 1; page < 4; ++page)
            story.Click(wizard, "siguiente");
        story.SeeEnabled(wizard, "Text1", standard == 0).SeeEnabled(wizard, "Text2", standard != 1);
        for (int page = 3; page > 0; --page)
            story.Click(wizard, "atras");
    }
}

void ModulesAreOffered(Story& story) {
    story.Click(wizard, "siguiente")
        .SeeText(wizard, "Combo1", "VA0")
        .SeeText(wizard, "Combo2", "VL0")
        .SeeText(wizard, "Combo3", "VF0")
        .Select(wizard, "Combo3", 1)
        .SeeText(wizard, "Combo3", "VF1");
}

void NeitherEscapeNorTheWindowLeaves(Story& story) {
    story.PressKey(wizard, "Escape").CloseWindow(wizard).SeeShown(wizard);
}

} // namespace

std::vector<Scenario> WizardPageScenarios() {
    return {
        OnThePages("wizard_walks_four_pages_forward_and_back", FourPagesForwardAndBack),
        OnThePages("wizard_skips_the_pressure_page_for_aga7_with_densimeter",
                   DensimeterUnderAga7SkipsThePressurePage),
        OnThePages("wizard_has_the_pressure_page_for_aga7_with_a_gas_model",
                   GasModelUnderAga7HasThePressurePage),
        OnThePages("wizard_standard_brings_units_and_values", StandardBringsUnitsAndValues),
        OnThePages("wizard_units_overwrite_what_was_typed", UnitsOverwriteWhatWasTyped),
        OnThePages("wizard_pressure_controls_follow_the_options", PressureControlsFollowTheOptions),
        OnThePages("wizard_trace_fields_follow_their_box", TracesFollowTheirBox),
        OnThePages("wizard_gross_family_has_no_chromatograph_option", GrossFamilyHasNoChromatographOption),
        OnThePages("wizard_each_missing_value_keeps_the_page", EachMissingValueKeepsThePage),
        OnThePages("wizard_standard_decides_which_gas_values_are_entered",
                   StandardDecidesWhichGasValuesAreEntered),
        OnThePages("wizard_offers_the_working_modules", ModulesAreOffered),
        OnThePages("wizard_second_point_is_stopped_when_the_field_is_left",
                   SecondPointIsStoppedWhenTheFieldIsLeft),
        OnThePages("wizard_is_left_by_its_own_buttons_only", NeitherEscapeNorTheWindowLeaves),
    };
}

} // namespace gfc::test
