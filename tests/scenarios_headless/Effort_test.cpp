#include "binding/Catalogue.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "forms/program/StartUp.h"
#include "scenarios/Moves.h"
#include "suggest/Plant.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

// What it costs a person to bind a station of three runs with AGA-3, AGA-8 and a chromatograph: every click
// and every key in TagRuns, whoever looks for the tags among many hundreds.
namespace gfc::test {
namespace {

using binding::BindingStage;

const std::string Form = "TagRuns";
const moves::Choices Choices{.Standard = 0, .Source = 1, .Chromatograph = true};
constexpr int AddressesOfPlant = 3000; // behind those of the large station

// The large station with the plant's tags behind it, and registers for what the chromatograph lacks.
project::TagList TagsOf(const Plant& plant) {
    project::TagList tags = LargeStationTags(300);
    for (project::Tag tag : plant.Tags) {
        tag.RegAddr += AddressesOfPlant;
        tags.push_back(tag);
    }
    for (int spare = 1; spare <= 6; ++spare)
        tags.push_back({.TagName = "SPARE_" + std::to_string(spare),
                        .RegAddr = 2 * AddressesOfPlant + spare,
                        .RegType = "FX",
                        .ModuleName = "GC_IN",
                        .ModuleType = "Virtual Module"});
    return tags;
}

// A person at TagRuns, whose every click and key counts.
class Person {
public:
    Person(Story& story, const Plant& plant) : story_(story), plant_(plant) {}

    int Clicks = 0;
    int Keys = 0;

    // Each variable, its tag, Assign; in the stage of the composition the key that binds the chosen tag.
    void BindByHand(int run, BindingStage stage) {
        if (run > 1 && stage == BindingStage::GasInputs)
            return CopyComposition();
        int spare = 0;
        for (const auto& want : plant_.Wants()) {
            if (want.Run != run || want.Row->Stage != stage)
                continue;
            const auto* right = plant_.RightFor(want);
            PickNode(want);
            PickTag(want, right == nullptr ? "SPARE_" + std::to_string(++spare)
                                           : std::string(plant_.Tags[right->front().Tag].TagName));
            if (stage == BindingStage::GasInputs)
                Press("atar");
            else
                Click("Command1");
        }
        Click("Command5");
    }

    void BindBySuggestion(int run, BindingStage stage) {
        if (run > 1 && stage == BindingStage::GasInputs)
            return CopyComposition();
        Click("SuggestTags");
        Click("TakeSure");
        // What the chromatograph lacks, and what its last figure means, is the person's to decide.
        if (stage == BindingStage::GasInputs) {
            story_.Menu(Form, "repuestos");
            Clicks += 2;
            for (const auto& want : plant_.Wants()) {
                const auto* right = plant_.RightFor(want);
                if (want.Run != run || want.Row->Stage != stage ||
                    (right != nullptr && right->front().MayBeSure))
                    continue;
                PickNode(want);
                Press("tomar");
            }
        }
        Click("Command5");
    }

private:
    // One chromatograph serves all runs.
    void CopyComposition() {
        for (const char* button : {"Option1_0", "CopyGasCompButton", "Command5"})
            Click(button);
    }
    void Click(const std::string& button) {
        story_.Click(Form, button);
        ++Clicks;
    }
    // Each of these has a key of its own.
    void Press(const std::string& entry) {
        story_.Menu(Form, entry);
        ++Keys;
    }
    void PickNode(const suggest::Want& want) {
        config::StationConfig station;
        station.FlowAlgorithm = config::algorithm::AGA3;
        station.GasDensitySource = config::source::AGA8;
        story_.ClickNode(Form, "TreeAGA",
                         std::string(binding::RootCaption(want.Row->Stage, station)) + "\\" +
                             std::string(want.Row->Captions.Tree));
        ++Clicks;
    }
    void PickTag(const suggest::Want& want, const std::string& name) {
        const std::string list =
            want.Row->Class == binding::TagClass::Float ? "ListViewRuns" : "ListAnalogDig";
        story_.Do("pick " + name, [list, name](Driver& driver) {
            int row = 1;
            while (row < driver.Rows(Form, list) && driver.Cell(Form, list, row, 1) != name)
                ++row;
            EXPECT_EQ(driver.Cell(Form, list, row, 1), name);
            driver.ClickRow(Form, list, row);
        });
        ++Clicks;
    }

    Story& story_;
    const Plant& plant_;
};

struct Outcome {
    std::string File;
    int Clicks = 0;
    int Keys = 0;
};

Outcome Configure(void (Person::*bind)(int run, BindingStage stage)) {
    const Plant plant = ReadPlant("isa");
    World world;
    world.AddStation("North", TagsOf(plant));
    Story& story = world.TheStory;
    Person person(story, plant);
    moves::StartUp(story);
    moves::OpenWizard(story, "North");
    moves::SelectRuns(story, plant.Runs);
    moves::WalkPages(story, Choices);
    for (const int run : plant.Runs) {
        story.Click("Step", "Command1");
        moves::AcceptEditor(story, "FrParMec");
        for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                                 BindingStage::GasOutputs}) {
            story.Click("Step", "Command1");
            (person.*bind)(run, stage);
        }
    }
    moves::SaveAndClose(story);
    moves::Exit(story);
    forms::StartProgram(world.Program);
    world.Screen.RunToEnd();
    return {world.Files.Content[world.ConfigFile("North")], person.Clicks, person.Keys};
}

TEST(Effort, IsAFractionOfBindingByHandAndBindsTheSame) {
    const Outcome byHand = Configure(&Person::BindByHand);
    const Outcome suggested = Configure(&Person::BindBySuggestion);
    std::printf(
        "three runs, AGA-3, AGA-8, chromatograph: by hand %d clicks and %d keys, with Suggest %d clicks "
        "and %d keys\n",
        byHand.Clicks, byHand.Keys, suggested.Clicks, suggested.Keys);
    EXPECT_FALSE(byHand.File.empty());
    EXPECT_EQ(byHand.File, suggested.File);
    EXPECT_LT(4 * (suggested.Clicks + suggested.Keys), byHand.Clicks + byHand.Keys);
}

} // namespace
} // namespace gfc::test
