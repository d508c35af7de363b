#include "ModifyWorld.h"

#include "binding/Catalogue.h"
#include "config/ConfigWriter.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::test {

namespace {

using binding::BindingStage;

} // namespace

ModifyWorld::ModifyWorld(const ModifyChoices& choices) {
    AddStation("North", LargeStationTags());
    OpenProject();
    OpenStation("North");
    Choose(choices);
    ActivateRuns(choices.Runs);
    BindEverything();
    FillFixedValues();
    config::SaveWholeConfiguration(Hand, Station, File());
    Content() = EditedByHand(Content());
    // As the command that opens the form leaves the session.
    config::ResetStationConfig(Station);
    Station.Runs = {};
    OpenStation("North");
    SelectRun(2);
}

void ModifyWorld::Choose(const ModifyChoices& choices) {
    Station.FlowAlgorithm = choices.Algorithm;
    Station.FlagAGA7 = choices.Algorithm == "AGA7";
    Station.GasDensitySource = choices.Source;
    Station.Measured = choices.Source == "MEASURED";
    Station.AGA8CalInput = choices.CalInput;
    Station.AGA8Method = "DETAIL";
    Station.SystemUnits = "Metric";
    Station.StandardT = "15.00";
    Station.StandardP = "1.01325";
    Station.Compressible = "Yes";
    Station.FlowingViscosity = "0.010268";
    Station.IsentropicCoeff = "1.3";
    Station.PressType = "Absolute";
    Station.ExtAtmPress = "No";
    Station.AtmPress = "1.01325";
    auto& working = Station.WorkingModules;
    working = {"VF0", "FX", "1", "VL0", "LX", "1", "VA0", "AX", "1"};
}

void ModifyWorld::BindEverything() {
    auto& pools = Session.Inventory;
    const std::map<binding::TagClass, project::TagList*> lists = {
        {binding::TagClass::Float, &pools.AvailFloat},
        {binding::TagClass::Long, &pools.AvailLong},
        {binding::TagClass::Analog, &pools.AvailAnalog},
        {binding::TagClass::Digital, &pools.AvailDigital}};
    for (int element = 0; element < Station.ActiveRunCount; ++element)
        for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                                 BindingStage::GasOutputs})
            for (const auto& variable : binding::VariablesOf(stage, Station, element)) {
                auto& pool = *lists.at(variable.Class());
                const auto& tag = pool.front();
                *variable.Binding = {
                    .Tag = tag.TagName, .Type = tag.RegType, .RegAddr = std::to_string(tag.RegAddr)};
                pool.erase(pool.begin());
            }
}

void ModifyWorld::FillFixedValues() {
    using config::GasSlot;
    for (std::size_t element = 0; element < Station.Runs.IO.size(); ++element) {
        auto& io = Station.Runs.IO[element];
        io.CalibrationFactor = "1.0";
        io.meterKFactor = "250";
        io.GasDensityStandard = "0.72";
        io.ContractHour = "6";
        io.ContractMin = "30";
        auto& mechanical = Station.Runs.Mechanical[element];
        mechanical = {"363.513", "CS",     "20.00", "193.675", "SS", "20.00", "Flange", "Up", "4",
                      "0.6986",  "0.7106", "1.700", "",        "",   "No",    "",       "",   ""};
        if (Station.AGA8CalInput == "MEASURED" || Station.Measured)
            continue;
        auto& gas = Station.Runs.Gas[element];
        for (int slot = 0; slot < static_cast<int>(GasSlot::GCEnable); ++slot)
            gas[static_cast<GasSlot>(slot)].Tag = "0.0" + std::to_string(10 + slot);
    }
}

void ModifyWorld::SelectNode(const std::string& text) {
    const auto separator = text.rfind('\\');
    Session.SelectedNodeText = separator == std::string::npos ? text : text.substr(separator + 1);
    Session.SelectedPath = "All Stations\\North\\" + text;
}

void ModifyWorld::Put(const std::string& section, const std::string& key, const std::string& value) {
    Hand.WriteKey(section, key, value, File());
}

std::string ModifyWorld::Key(const std::string& section, const std::string& key) {
    return Program.Ini.ReadKey(section, key, File());
}

void ModifyWorld::RenameTag(const std::string& name, const std::string& newName) {
    auto& tags = Library.TagsOf.at("North");
    std::ranges::find_if(tags, [&](const auto& tag) { return tag.TagName == name; })->TagName = newName;
    OpenStation("North");
}

void ModifyWorld::TickAndAccept(const std::vector<int>& boxes) {
    for (const int box : boxes)
        TheStory.Click(Form, "Check" + std::to_string(box));
    TheStory.Click(Form, "Command1");
}

void ModifyWorld::LookAndCancel() {
    TheStory.Click(Form, "Command2").SeeShown(Form, false);
    Play();
    Screen.PlayOut();
}

void ModifyWorld::CancelTags() {
    TheStory.Click("TagRuns", "Command2")
        .Box("Gas Flow Computer",
             "Are you sure you want to discard the changes made to the current configuration?",
             ui::Icon::Question, ui::Answer::Yes);
}

void ModifyWorld::Rebind(int position, const std::string& list) {
    TheStory
        .Do("pick variable " + std::to_string(position),
            [this, position](Driver& hands) {
                const auto& tree = Program.Forms.Get<forms::TagRuns>().TreeAGA;
                hands.ClickNode("TagRuns", "TreeAGA", tree.FullPath(binding::node::Variable(position)));
            })
        .Click("TagRuns", "Command4")
        .Check([this, list](Driver& eyes) {
            Assigned = {.Tag = eyes.Cell("TagRuns", list, 1, 1),
                        .Type = eyes.Cell("TagRuns", list, 1, 2),
                        .RegAddr = eyes.Cell("TagRuns", list, 1, 3)};
        })
        .Click("TagRuns", "Command1");
}

void ModifyWorld::AskedToSave(ui::Icon icon, ui::Answer answer) {
    TheStory.Box("Configuration finished.", "Do you wish to save your changes ?", icon, answer);
}

std::vector<std::string> ModifyWorld::Windows() const {
    const auto& shown = Screen.FormsShown;
    const auto first = std::ranges::find(shown, std::string(Form));
    return first == shown.end() ? std::vector<std::string>{} : std::vector(first + 1, shown.end());
}

} // namespace gfc::test
