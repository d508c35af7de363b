#include "SampleTags.h"
#include "project/WorkingModules.h"

#include <gmock/gmock.h>

namespace gfc::project {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Show(const std::vector<Candidate>& candidates) {
    std::vector<std::string> texts;
    for (const Candidate& candidate : candidates)
        texts.push_back(candidate.ModuleName + " " + std::to_string(candidate.Registers));
    return texts;
}

const TagList Longs = Module("VL", "Virtual", "LX", 8);
const TagList Analogs = Module("VA", "Virtual", "AX", 32);
const TagList Floats = Module("VF", "Virtual", "FX", 128);

TEST(ChooseWorkingModules, finds_one_candidate_of_each_kind) {
    WorkingModuleCandidates candidates;
    EXPECT_TRUE(ChooseWorkingModules(InventoryOf(Longs + Analogs + Floats), candidates));
    EXPECT_THAT(Show(candidates.LongCandidates), ElementsAre("VL 8"));
    EXPECT_THAT(Show(candidates.AnalogCandidates), ElementsAre("VA 32"));
    EXPECT_THAT(Show(candidates.FloatCandidates), ElementsAre("VF 128"));
    EXPECT_EQ(candidates.NLX, 1);
    EXPECT_EQ(candidates.NLY, 0);
}

TEST(ChooseWorkingModules, takes_modules_of_outputs_as_well) {
    WorkingModuleCandidates candidates;
    const TagList tags = Module("L", "Virtual", "LY", 8) + Module("A", "Virtual", "AY", 32) +
                         Module("F", "Virtual", "FY", 128);
    EXPECT_TRUE(ChooseWorkingModules(InventoryOf(tags), candidates));
    EXPECT_EQ(candidates.NLY + candidates.NAY + candidates.NFY, 3);
}

TEST(ChooseWorkingModules, lists_inputs_before_outputs) {
    WorkingModuleCandidates candidates;
    const TagList tags = Module("out", "Virtual", "FY", 130) + Longs + Analogs + Floats +
                         Module("small", "Virtual", "FX", 127) + Module("in2", "Virtual", "FX", 128);
    EXPECT_TRUE(ChooseWorkingModules(InventoryOf(tags), candidates));
    EXPECT_THAT(Show(candidates.FloatCandidates), ElementsAre("VF 128", "in2 128", "out 130"));
    EXPECT_THAT(candidates.NamesFX, ElementsAre("VF", "small", "in2"));
    EXPECT_EQ(candidates.NFX, 2);
    EXPECT_EQ(candidates.NFY, 1);
}

TEST(ChooseWorkingModules, asks_for_the_least_number_of_registers) {
    const struct {
        TagList Short;
    } table[] = {{Module("VL", "Virtual", "LX", 7) + Analogs + Floats},
                 {Longs + Module("VA", "Virtual", "AX", 31) + Floats},
                 {Longs + Analogs + Module("VF", "Virtual", "FX", 127)}};
    for (const auto& row : table) {
        WorkingModuleCandidates candidates;
        EXPECT_FALSE(ChooseWorkingModules(InventoryOf(row.Short), candidates));
        EXPECT_THAT(candidates.FloatCandidates, IsEmpty());
    }
}

TEST(ChooseWorkingModules, takes_no_physical_module) {
    WorkingModuleCandidates candidates;
    const TagList tags = Module("PL", "Physical", "LX", 8) + Analogs + Floats;
    EXPECT_FALSE(ChooseWorkingModules(InventoryOf(tags), candidates));
}

TEST(ChooseWorkingModules, resizes_no_list_when_a_kind_is_missing) {
    WorkingModuleCandidates candidates;
    candidates.LongCandidates = {{99, "old"}};
    EXPECT_FALSE(ChooseWorkingModules(InventoryOf(Longs + Analogs), candidates));
    EXPECT_THAT(Show(candidates.LongCandidates), ElementsAre("old 99"));
    EXPECT_EQ(candidates.NLX, 0) << "nothing is counted without tags of every kind";
}

TEST(ChooseWorkingModules, counts_a_module_in_two_pieces_twice_and_whole) {
    WorkingModuleCandidates candidates;
    const TagList tags = Module("L", "Virtual", "LX", 5) + Module("x", "Virtual", "LX", 1) +
                         Module("L", "Virtual", "LX", 3) + Analogs + Floats;
    EXPECT_TRUE(ChooseWorkingModules(InventoryOf(tags), candidates));
    EXPECT_THAT(Show(candidates.LongCandidates), ElementsAre("L 8", "L 8"));
}

TEST(ChooseWorkingModules, counts_registers_in_any_case_of_the_name) {
    WorkingModuleCandidates candidates;
    const TagList tags = Module("é", "Virtual", "LX", 4) + Module("É", "Virtual", "LX", 4) + Analogs + Floats;
    EXPECT_TRUE(ChooseWorkingModules(InventoryOf(tags), candidates));
    EXPECT_THAT(Show(candidates.LongCandidates), ElementsAre("é 8", "É 8"));
}

// Deliberate: only what ends a command clears the counts, and the lists then end in empty records.
TEST(ChooseWorkingModules, adds_to_counts_that_were_not_cleared) {
    WorkingModuleCandidates candidates;
    const TagInventory inventory = InventoryOf(Longs + Analogs + Floats);
    EXPECT_TRUE(ChooseWorkingModules(inventory, candidates));
    EXPECT_TRUE(ChooseWorkingModules(inventory, candidates));
    EXPECT_EQ(candidates.NFX, 2);
    EXPECT_THAT(Show(candidates.FloatCandidates), ElementsAre("VF 128", " 0"));
    candidates.ClearCounts();
    EXPECT_TRUE(ChooseWorkingModules(inventory, candidates));
    EXPECT_THAT(Show(candidates.FloatCandidates), ElementsAre("VF 128"));
}

// One pass over the tags and not one per module: this would not end in time otherwise.
TEST(ChooseWorkingModules, bears_a_station_of_very_many_modules) {
    TagList tags = Longs + Analogs + Floats;
    for (int i = 0; i < 100000; ++i)
        tags.push_back({"T", i, "FX", "M" + std::to_string(i), "Virtual"});
    WorkingModuleCandidates candidates;
    EXPECT_TRUE(ChooseWorkingModules(InventoryOf(tags), candidates));
    EXPECT_EQ(candidates.NamesFX.size(), 100001U);
    EXPECT_THAT(Show(candidates.FloatCandidates), ElementsAre("VF 128"));
}

struct Resolve : testing::Test {
    config::WorkingModules Working{"f", "oldFT", "oldFA", "l", "oldLT", "oldLA", "a", "oldAT", "oldAA"};
    const WorkingModuleNames Names{"VA", "VL", "VF"};
};

TEST_F(Resolve, takes_the_first_tag_of_each_module_in_any_case) {
    const TagList tags = Module("other", "Virtual", "AX", 2) + TagList{{"a", 41, "AX", "va", "Virtual"}} +
                         TagList{{"a", 42, "AX", "VA", "Virtual"},
                                 {"l", 51, "lx", "VL", "Virtual"},
                                 {"f", -1, "FX", "vf", "Virtual"}};
    ResolveWorkingModuleRegisters(InventoryOf(tags), Names, Working);
    EXPECT_EQ(Working.WrkAnalogRegAddr, "41");
    EXPECT_EQ(Working.WrkAnalogRegType, "AX");
    EXPECT_EQ(Working.WrkIntLongRegAddr, "51");
    EXPECT_EQ(Working.WrkIntLongRegType, "lx");
    EXPECT_EQ(Working.WrkFloatRegAddr, "-1");
    EXPECT_EQ(Working.WrkFloatRegType, "FX");
    EXPECT_EQ(Working.WrkFloatModName, "f") << "names are the caller's";
}

TEST_F(Resolve, leaves_what_stood_there_without_a_match) {
    ResolveWorkingModuleRegisters(InventoryOf(Module("VF", "Virtual", "FX", 1)), Names, Working);
    EXPECT_EQ(Working.WrkFloatRegAddr, "1");
    EXPECT_EQ(Working.WrkAnalogRegAddr, "oldAA");
    EXPECT_EQ(Working.WrkAnalogRegType, "oldAT");
    EXPECT_EQ(Working.WrkIntLongRegAddr, "oldLA");
}

TEST_F(Resolve, lets_the_second_list_overwrite_the_first) {
    const TagList tags{{"v", 7, "FX", "VF", "Virtual"}, {"p", 8, "FX", "VF", "Physical"}};
    ResolveWorkingModuleRegisters(InventoryOf(tags), Names, Working);
    EXPECT_EQ(Working.WrkFloatRegAddr, "7");
}

TEST_F(Resolve, does_not_look_for_a_module_of_outputs) {
    const TagList tags{{"o", 9, "AY", "VA", "Virtual"}};
    ResolveWorkingModuleRegisters(InventoryOf(tags), Names, Working);
    EXPECT_EQ(Working.WrkAnalogRegAddr, "oldAA");
    EXPECT_EQ(Working.WrkAnalogRegType, "oldAT");
}

} // namespace
} // namespace gfc::project
