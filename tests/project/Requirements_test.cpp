#include "SampleTags.h"
#include "project/Requirements.h"

#include <gmock/gmock.h>

#include <utility>

namespace gfc::project {
namespace {

// A station by its numbers alone.
struct Numbers {
    int FloatModules = 1, AnalogModules = 1, LongModules = 1;
    int Floats = 0, Analogs = 0, Digitals = 0, Longs = 0; // free ones
};

struct Plant {
    TagInventory Inventory;
    WorkingModuleCandidates Candidates;

    explicit Plant(const Numbers& numbers) {
        Candidates.NFX = numbers.FloatModules;
        Candidates.NAY = numbers.AnalogModules;
        Candidates.NLX = numbers.LongModules;
        Candidates.FloatCandidates.assign(static_cast<std::size_t>(numbers.FloatModules), {128, "VF"});
        Candidates.AnalogCandidates.assign(static_cast<std::size_t>(numbers.AnalogModules), {32, "VA"});
        Candidates.LongCandidates.assign(static_cast<std::size_t>(numbers.LongModules), {8, "VL"});
        Inventory.VirtFY = Module("M", "Virtual", "FY", numbers.Floats + 128 * numbers.FloatModules);
        Inventory.PhysAX = Module("M", "Physical", "AX", numbers.Analogs + 32 * numbers.AnalogModules);
        Inventory.PhysY = Module("M", "Physical", "Y", numbers.Digitals);
        Inventory.VirtLX = Module("M", "Virtual", "LX", numbers.Longs + 8 * numbers.LongModules);
    }

    [[nodiscard]] StationCapacity Capacity() const { return {Inventory, Candidates}; }
};

bool Carries(const Numbers& numbers, int floats, int analogs, int digitals) {
    return RunCapacity(Plant(numbers).Capacity(), floats, analogs, digitals);
}

TEST(RunCapacity, compares_each_number_with_one_module_of_each_kind) {
    EXPECT_TRUE(Carries({.Floats = 17, .Analogs = 1, .Digitals = 3}, 17, 1, 3));
    EXPECT_FALSE(Carries({.Floats = 16, .Analogs = 1, .Digitals = 3}, 17, 1, 3));
    EXPECT_FALSE(Carries({.Floats = 17, .Analogs = 0, .Digitals = 3}, 17, 1, 3));
    EXPECT_FALSE(Carries({.Floats = 17, .Analogs = 1, .Digitals = 2}, 17, 1, 3));
}

TEST(RunCapacity, carries_the_largest_need) {
    EXPECT_TRUE(Carries({.Floats = 220, .Analogs = 10, .Digitals = 20}, 44 * 5, 10, 20));
    EXPECT_FALSE(Carries({.Floats = 219, .Analogs = 10, .Digitals = 20}, 44 * 5, 10, 20));
}

TEST(RunCapacity, deliberately_asks_nothing_of_two_modules_of_both_kinds) {
    EXPECT_TRUE(Carries({.FloatModules = 2, .AnalogModules = 2}, 220, 10, 20));
    EXPECT_TRUE(Carries({.FloatModules = 3, .AnalogModules = 2}, 220, 10, 20));
}

TEST(RunCapacity, compares_no_floats_with_two_float_modules) {
    EXPECT_TRUE(Carries({.FloatModules = 2, .Analogs = 1, .Digitals = 3}, 220, 1, 3));
    EXPECT_FALSE(Carries({.FloatModules = 2, .Analogs = 0, .Digitals = 3}, 220, 1, 3));
    EXPECT_FALSE(Carries({.FloatModules = 2, .Analogs = 1, .Digitals = 2}, 220, 1, 3));
}

TEST(RunCapacity, compares_no_analogs_with_two_analog_modules) {
    EXPECT_TRUE(Carries({.AnalogModules = 2, .Floats = 17, .Digitals = 3}, 17, 99, 3));
    EXPECT_FALSE(Carries({.AnalogModules = 2, .Floats = 16, .Digitals = 3}, 17, 99, 3));
    EXPECT_FALSE(Carries({.AnalogModules = 2, .Floats = 17, .Digitals = 2}, 17, 99, 3));
}

TEST(RunCapacity, fails_without_a_module_of_either_kind) {
    EXPECT_FALSE(Carries({.FloatModules = 0, .Floats = 99, .Analogs = 99, .Digitals = 99}, 0, 0, 0));
    EXPECT_FALSE(Carries({.AnalogModules = 0, .Floats = 99, .Analogs = 99, .Digitals = 99}, 0, 0, 0));
    EXPECT_FALSE(Carries({.FloatModules = 2, .AnalogModules = 0, .Analogs = 9, .Digitals = 9}, 0, 0, 0));
}

TEST(RunCapacity, counts_analogs_and_digitals_of_all_four_lists) {
    Plant plant({.Floats = 1});
    plant.Inventory.VirtAX = plant.Inventory.VirtAY = plant.Inventory.PhysAY = Module("M", "", "AX", 1);
    plant.Inventory.VirtX = plant.Inventory.VirtY = plant.Inventory.PhysX = Module("M", "", "X", 1);
    EXPECT_TRUE(RunCapacity(plant.Capacity(), 1, 3, 3));
    EXPECT_FALSE(RunCapacity(plant.Capacity(), 1, 4, 3));
    EXPECT_FALSE(RunCapacity(plant.Capacity(), 1, 3, 4));
}

TEST(LongCapacity, compares_with_one_module_only) {
    EXPECT_TRUE(LongCapacity(Plant({.Longs = 3}).Capacity(), 3));
    EXPECT_FALSE(LongCapacity(Plant({.Longs = 2}).Capacity(), 3));
    EXPECT_FALSE(LongCapacity(Plant({.Longs = 0}).Capacity(), 1)) << "one module and nothing to spare";
    EXPECT_TRUE(LongCapacity(Plant({.LongModules = 2, .Longs = 0}).Capacity(), 5));
}

TEST(LongCapacity, does_not_count_physical_longs) {
    Plant plant({.Longs = 0});
    plant.Inventory.PhysLX = Module("M", "", "LX", 9);
    EXPECT_FALSE(LongCapacity(plant.Capacity(), 1));
}

TEST(LongCapacity, counts_virtual_longs_of_both_directions) {
    Plant plant({.Longs = 1});
    plant.Inventory.VirtLY = Module("M", "Virtual", "LY", 2);
    EXPECT_TRUE(LongCapacity(plant.Capacity(), 3));
    EXPECT_FALSE(LongCapacity(plant.Capacity(), 4));
}

int RunsOf(const Numbers& numbers, bool isAGA7 = false) {
    return MaximumRuns(Plant(numbers).Capacity(), isAGA7);
}

TEST(MaximumRuns, goes_by_bands_of_free_floats) {
    const struct {
        int Floats, Runs;
    } table[] = {{7, 0}, {8, 1}, {15, 1}, {16, 2}, {23, 2}, {24, 3}, {31, 3}, {32, 4}, {39, 4}, {40, 0}};
    for (const auto& [floats, runs] : table)
        EXPECT_EQ(RunsOf({.Floats = floats, .Analogs = 9, .Digitals = 9}), runs) << floats;
}

TEST(MaximumRuns, goes_by_other_bands_for_a_pulse_meter) {
    const struct {
        int Floats, Runs;
    } table[] = {{4, 0}, {5, 1}, {9, 1}, {10, 2}, {17, 2}, {18, 3}, {22, 3}, {23, 4}, {27, 4}, {28, 0}};
    for (const auto& [floats, runs] : table)
        EXPECT_EQ(RunsOf({.Floats = floats, .Analogs = 9, .Digitals = 9, .Longs = 9}, true), runs) << floats;
}

TEST(MaximumRuns, tests_two_runs_before_one_and_falls_back) {
    EXPECT_EQ(RunsOf({.Floats = 12, .Analogs = 1, .Digitals = 9, .Longs = 9}, true), 1);
    EXPECT_EQ(RunsOf({.Floats = 12, .Analogs = 2, .Digitals = 9, .Longs = 9}, true), 2);
    EXPECT_EQ(RunsOf({.Floats = 16, .Analogs = 1, .Digitals = 9}), 0) << "no band below takes sixteen";
}

TEST(MaximumRuns, deliberately_asks_no_digitals_for_four_runs) {
    EXPECT_EQ(RunsOf({.Floats = 32, .Analogs = 4, .Digitals = 0}), 4);
    EXPECT_EQ(RunsOf({.Floats = 24, .Analogs = 4, .Digitals = 2}), 0);
    EXPECT_EQ(RunsOf({.Floats = 32, .Analogs = 3, .Digitals = 9}), 0);
}

TEST(MaximumRuns, is_limited_by_longs_for_a_pulse_meter_only) {
    EXPECT_EQ(RunsOf({.Floats = 10, .Analogs = 9, .Digitals = 9, .Longs = 1}, true), 1);
    EXPECT_EQ(RunsOf({.Floats = 16, .Analogs = 9, .Digitals = 9, .Longs = 0}), 2);
    Plant plant({.Floats = 10, .Analogs = 9, .Digitals = 9, .Longs = 1});
    plant.Inventory.PhysLY = Module("M", "", "LY", 1);
    EXPECT_EQ(MaximumRuns(plant.Capacity(), true), 2) << "physical longs count here";
    plant.Inventory.PhysLX = std::exchange(plant.Inventory.PhysLY, {});
    EXPECT_EQ(MaximumRuns(plant.Capacity(), true), 2) << "of both directions";
}

TEST(MaximumRuns, skips_candidates_without_a_name) {
    Plant plant({.Floats = 8, .Analogs = 1, .Digitals = 1});
    plant.Candidates.FloatCandidates.push_back({128, ""});
    EXPECT_EQ(MaximumRuns(plant.Capacity(), false), 1);
    EXPECT_FALSE(RunCapacity(plant.Capacity(), 8, 1, 1)) << "the other check does not skip them";
}

TEST(MaximumRuns, says_how_many) {
    EXPECT_EQ(MaximumRunsText(0), "");
    EXPECT_EQ(MaximumRunsText(1), "Only one Run can be configured");
    EXPECT_EQ(MaximumRunsText(2), "Only two Runs can be configured");
    EXPECT_EQ(MaximumRunsText(3), "Only three Runs can be configured");
    EXPECT_EQ(MaximumRunsText(4), "Only four Runs can be configured");
    EXPECT_EQ(MaximumRunsText(5), "");
    EXPECT_EQ(MaximumRunsText(-1), "");
}

constexpr const char* ShortageHead =
    "ERROR: The number of available tags/modules is below the minimum required for the flow computer "
    "software.\r"
    "Please make sure that at least the following I/O memory is available for the flow computer software "
    "usage:\r"
    "- One LI or LO Virtual Module containing 8 registers for datalogging\r"
    "- One AI or AO Virtual Module containing 32 registers for datalogging\r"
    "- One FI or FO Virtual Module containing 128 registers for datalogging\r";

TEST(IOShortage, lists_what_the_orifice_family_needs) {
    EXPECT_EQ(IOShortageTitle(ShortageKind::AGA3Family), "Error: Configuring AGA3");
    EXPECT_EQ(
        IOShortageText(ShortageKind::AGA3Family, 5),
        std::string(ShortageHead) +
            "- 85 FI or FO, 5 AI or AO and 15 DI or DO registers for 5 enabled flow calculation runs\r"
            "- 115 FI or FO, 10 AI or AO and 15 DI or DO registers if AGA-8 calculation block is enabled\r"
            "- 220 FI or FO, 10 AI or AO and 20 DI or DO registers if AGA-8 is enabled and gas composition "
            "source is from an external gas chromatograph");
}

TEST(IOShortage, lists_what_a_pulse_meter_needs) {
    EXPECT_EQ(IOShortageTitle(ShortageKind::AGA7), "Error: Configuring AGA7");
    EXPECT_EQ(
        IOShortageText(ShortageKind::AGA7, 1),
        std::string(ShortageHead) +
            "- 6 FI or FO, 1 AI or AO and 3 DI or DO registers for 1 enabled flow calculation runs\r"
            "- 11 FI or FO, 2 AI or AO and 3 DI or DO registers if AGA-8 calculation block is enabled\r"
            "- 32 FI or FO, 2 AI or AO and 4 DI or DO registers if AGA-8 is enabled and gas composition "
            "source is from an external gas chromatograph");
}

} // namespace
} // namespace gfc::project
