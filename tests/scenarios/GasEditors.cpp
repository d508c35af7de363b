#include "scenarios/TwoRuns.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using ui::Icon;

// MDetail

void CompositionByHand(Story& story) {
    const std::string form = "MDetail";
    story.SeeText(form, "Text10", "0.965222")
        .SeeEnabled(form, "CopyGasCompButton", false)
        .Click(form, "Command2")
        .SeeText(form, "Text10", "")
        .Click(form, "Command1")
        .Box("Gas Flow Computer, V1.6.1", "Error: Gas composition not entered", Icon::Exclamation);
    for (const int field : {1, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27})
        story.Type(form, "Text" + std::to_string(field), field == 10 ? "50" : field == 1 ? "50" : "0");
    story.Type(form, "Text10", "101")
        .Focus(form, "Text11")
        .Box("Incorrect value", "Error: The range should be: [0-100]%", Icon::Exclamation)
        .Check([form](Driver& d) { EXPECT_EQ(d.Focused(form), "Text10"); })
        .Type(form, "Text10", "50")
        .Type(form, "Text21", "1.2.3") // deliberately without a check of its own
        .Focus(form, "Text22")
        .Check([form](Driver& d) { EXPECT_EQ(d.Focused(form), "Text22"); })
        .Type(form, "Text21", "0")
        .Click(form, "Command1")
        .SeeShown(form, false);
}

void LeaveUnchecked(Story& story, const std::string& field, const std::string& next) {
    story.Focus("MDetail", field).Focus("MDetail", next).Check([=](Driver& d) {
        EXPECT_EQ(d.Focused("MDetail"), next) << "after leaving " << field;
    });
}

// Six fields deliberately look at others, or take the focus to them.
void FieldsThatCheckOthers(Story& story) {
    const std::string form = "MDetail";
    story.Focus(form, "Text1").Type(form, "Text17", "1.2.3");
    LeaveUnchecked(story, "Text17", "Text18");
    story.Type(form, "Text17", "0").Type(form, "Text21", "200");
    LeaveUnchecked(story, "Text21", "Text22");
    story.Type(form, "Text21", "0").Type(form, "Text27", "101");
    story.Focus(form, "Text1")
        .Box("Incorrect value", "Error: The range should be: [0-100]%", Icon::Exclamation);
    story.Check([form](Driver& d) { EXPECT_EQ(d.Focused(form), "Text13"); })
        .SeeText(form, "Text27", "101") // accepted as it stands
        .Click(form, "Command1")
        .SeeShown(form, false);
}

void CompositionByCopy(Story& story) {
    const std::string form = "MDetail";
    story.SeeText(form, "Text10", "0.965222")
        .Click(form, "CopyGasCompButton")
        .Box("Copy Gas Composition",
             "Error: Can't copy gas composition, no source Run selected. Please select a Run to copy from.",
             Icon::Exclamation)
        .Click(form, "Option1_0")
        .Click(form, "CopyGasCompButton")
        .SeeText(form, "Text10", "50")
        .Click(form, "Command1");
}

void CompositionAsItOpens(Story& story) {
    story.SeeText("MDetail", "Text27", "0.000000").Click("MDetail", "Command1");
}

// frSGERG88

void GasPropertiesByHand(Story& story) {
    const std::string form = "frSGERG88";
    story.SeeText(form, "Text1_0", "1091.28")
        .SeeText(form, "Label5", "Btu / ft^3")
        .SeeText(form, "Text1_3", "0.000")
        .Click(form, "Command3")
        .SeeText(form, "Text1_0", "1091.28") // Undo All deliberately does nothing here
        .Type(form, "Text1_1", "1.01")
        .Focus(form, "Text1_2")
        .Box("Incorrect value", "Error: The range should be: [0-1]%", Icon::Exclamation)
        .Type(form, "Text1_1", "1")
        .Type(form, "Text1_3", "5")
        .Focus(form, "Text1_0")
        .Click(form, "Command1");
}

void GasPropertiesByCopy(Story& story) {
    const std::string form = "frSGERG88";
    story.SeeText(form, "Text1_1", "0.581")
        .Click(form, "Option1_0")
        .Click(form, "CopyGasCompButton")
        .SeeText(form, "Text1_1", "1")
        .Click(form, "Command1");
}

} // namespace

std::vector<Scenario> GasEditorScenarios() {
    return {
        TwoRuns("gas_composition_fields_check_each_other", {.Standard = 1, .Source = 3},
                FieldsThatCheckOthers, CompositionAsItOpens,
                Holds("Run1", {{"GC_Ar", "101"}, {"GC_nC6", "0"}})),
        TwoRuns("gas_composition_by_hand_and_by_copy", {.Standard = 1, .Source = 1}, CompositionByHand,
                CompositionByCopy, Holds("Run2", {{"GC_C1", "50"}, {"GC_N2", "50"}, {"GC_Ar", "0"}})),
        TwoRuns("gas_properties_by_hand_and_by_copy", {.Standard = 1, .Source = 2}, GasPropertiesByHand,
                GasPropertiesByCopy,
                Holds("Run2", {{"VolCalorificValue", "1091.28"}, {"RelativeDensity", "1"}, {"XH2", "5"}})),
    };
}

} // namespace gfc::test
