#include "scenarios/ModifyMoves.h"

namespace gfc::test::modify {

namespace {

std::string Section(int run) {
    return "Run" + std::to_string(run);
}

} // namespace

void Open(Story& story, const std::string& node, int run) {
    moves::Choose(story, node, "ConfigPar");
    story.SeeCaption(Form, "Change I/O Tags and Gas Composition   Station : North (Run " +
                               std::to_string(run) + ")");
}

void TickAndAccept(Story& story, const std::vector<int>& boxes) {
    for (const int box : boxes)
        story.Click(Form, "Check" + std::to_string(box));
    story.Click(Form, "Command1");
}

void Rebind(Story& story, const std::string& variable) {
    story.ClickNode("TagRuns", "TreeAGA", variable).Click("TagRuns", "Command4").Click("TagRuns", "Command1");
}

void Continue(Story& story) {
    story.Click("TagRuns", "Command5");
}

void AskedToSave(Story& story, ui::Icon icon, ui::Answer answer) {
    story.Box("Configuration finished.", "Do you wish to save your changes ?", icon, answer);
}

void OutputsWritten(FileText& file, int run) {
    file.Touch(Section(run), {"StdVolFlowKDIOTag", "StdVolFlowKDIOType"});
}

void GasOutputsWritten(FileText& file, int run) {
    file.Touch(Section(run), {"AGA8zKDIOTAg"});
}

void StatusIs(FileText& file, int run, int analog) {
    file.Set(Section(run), "AGA3StatusKDIOTag", "AI-" + std::to_string(analog))
        .Set(Section(run), "AGA3StatusKDIORegAddr", std::to_string(200 + analog));
}

} // namespace gfc::test::modify
