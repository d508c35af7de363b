// The form that asks what to edit, and a cancel in each window behind it.
#include "scenarios/ModifyMoves.h"
#include "scenarios/Moves.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using namespace modify;
using moves::RunNode;

// Ticks the boxes, goes on to the window and cancels it there; then the main window takes commands again.
Scenario CancelAt(const std::string& name, const std::string& golden, const std::vector<int>& boxes,
                  const std::function<void(Story&)>& until, const std::string& form) {
    return TheScenario(
        {.Name = "modify_cancelled_at_" + name,
         .Golden = golden,
         .Tell = [=](Story& story, const TheOutside&) {
             Open(story, RunNode(2), 2);
             TickAndAccept(story, boxes);
             until(story);
             moves::CancelWindow(story, form);
             story.SeeShown(Form, false);
             Open(story, RunNode(2), 2);
             story.SeeChecked(Form, "Check1", false).Click(Form, "Command2").SeeShown(Form, false);
         }});
}

void AtOnce(Story&) {}

std::vector<Scenario> Cancelled() {
    return {
        CancelAt("the_mechanical_parameters", "aga3_densimeter", {3}, AtOnce, "FrParMec"),
        CancelAt("the_accelabar_parameters", "accelabar_densimeter", {1, 3}, AtOnce, "FrAccelabar"),
        CancelAt(
            "the_run_inputs", "aga3_aga8_fixed", {1, 3},
            [](Story& story) { moves::AcceptEditor(story, "FrParMec"); }, "TagRuns"),
        CancelAt("the_gas_composition", "aga3_aga8_fixed", {1, 6}, Continue, "MDetail"),
        CancelAt("the_gas_properties", "aga7_iso3_fixed_external", {2, 6}, AtOnce, "frSGERG88"),
        CancelAt("the_measured_composition", "aga3_aga8_outside", {5}, AtOnce, "TagRuns"),
        CancelAt("the_run_outputs", "aga3_densimeter", {2}, AtOnce, "TagRuns"),
        CancelAt("the_gas_outputs", "aga3_aga8_fixed", {2, 4}, Continue, "TagRuns"),
    };
}

struct Looks {
    std::string Golden;
    std::string Inputs;
    std::string Outputs;
    std::string Mechanical; // empty: not to be seen
    // Outputs, tags and values of the gas.
    std::vector<std::string> Gas = {"", "", ""};
};

void SeeBox(Story& story, const std::string& box, const std::string& caption) {
    story.SeeVisible(Form, box, !caption.empty());
    if (!caption.empty())
        story.SeeText(Form, box, caption);
}

Scenario LooksLike(const Looks& looks) {
    return TheScenario({.Name = "modify_offers_what_there_is_of_" + looks.Golden,
                        .Golden = looks.Golden,
                        .Tell = [=](Story& story, const TheOutside&) {
                            Open(story, RunNode(2), 2);
                            story.SeeText(Form, "Frame1", "          Edit Run Parameters");
                            SeeBox(story, "Check1", looks.Inputs);
                            SeeBox(story, "Check2", looks.Outputs);
                            SeeBox(story, "Check3", looks.Mechanical);
                            for (std::size_t i = 0; i < looks.Gas.size(); ++i)
                                SeeBox(story, "Check" + std::to_string(4 + i), looks.Gas[i]);
                            story.Click(Form, "Command2").SeeShown(Form, false);
                        }});
}

const std::string mechanical = "Mechanical Parameters";
const std::string outputs8 = "AGA-8 / ISO-12213-3-1997 Outputs ";

// clang-format off
const std::vector<Looks> allLooks = {
    {"aga3_densimeter",          "AGA-3 Inputs",        "AGA-3 Outputs",        mechanical},
    {"aga3_aga8_fixed",          "AGA-3 Inputs",        "AGA-3 Outputs",        mechanical,
                                 {outputs8, "", "Change Fixed Gas Composition"}},
    {"aga7_densimeter",          "AGA-7 Inputs",        "AGA-7 Outputs",        ""},
    {"aga7_iso2_outside",        "AGA-7 Inputs",        "AGA-7 Outputs",        "",
                                 {outputs8, "Gas Composition Inputs", ""}},
    {"accelabar_iso3_fixed",     "AGA-3 Inputs",        "AGA-3-Outputs",        "Accelabar parameters",
                                 {"SGERG-88 / ISO-12213-3-1997 Outputs", "",
                                  "Change fixed SGERG-88 / ISO-12213-3-1997 parameters"}},
    {"gbt_aga8_outside",         "SYT6143-2004 Inputs", "SYT6143-2004 Outputs", mechanical,
                                 {outputs8, "Gas Composition Inputs", ""}},
};
// clang-format on

Scenario GrossTags() {
    return TheScenario({.Name = "modify_offers_the_tags_of_gross_properties",
                        .Golden = "aga3_sgerg88_fixed",
                        .ByHand = [](FileText& file) { file.Set("SGERG88", "AGA8CalInput", "MEASURED"); },
                        .Tell =
                            [](Story& story, const TheOutside&) {
                                Open(story, RunNode(2), 2);
                                SeeBox(story, "Check4", "SGERG-88 / ISO-12213-3-1997 Outputs");
                                SeeBox(story, "Check5", "SGERG-88 / ISO-12213-3-1997 inputs");
                                SeeBox(story, "Check6", "");
                                story.Click(Form, "Command2");
                            }});
}

// Without an enabled run the title names none.
Scenario NoRunEnabled() {
    return TheScenario(
        {.Name = "modify_where_no_run_is_enabled",
         .ByHand = [](FileText& file) { file.Set("FlowRuns", "Run2", "No").Set("FlowRuns", "Run5", "No"); },
         .Tell =
             [](Story& story, const TheOutside&) {
                 moves::Choose(story, moves::RunsNode, "ConfigPar");
                 story.SeeCaption(Form, "Change I/O Tags and Gas Composition").Click(Form, "Command2");
             }});
}

} // namespace

std::vector<Scenario> ModifyCancelScenarios() {
    auto all = Cancelled();
    for (const Looks& looks : allLooks)
        all.push_back(LooksLike(looks));
    all.push_back(GrossTags());
    all.push_back(NoRunEnabled());
    return all;
}

} // namespace gfc::test
