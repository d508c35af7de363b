#include "CheckedFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace gfc;
using namespace gfc::binding;
using namespace gfc::test;
using testing::ElementsAre;
using testing::IsEmpty;
namespace algorithm = config::algorithm;
namespace source = config::source;

namespace {

using Inventory = project::TagInventory;
using Entries = std::vector<ExpectedTag>;

// One run of everything that AGA-7 and a measured composition call for, and a station that holds it.
struct ExpectedTagsCheck : testing::Test, CheckedFile {
    ExpectedTagsCheck() : CheckedFile(algorithm::AGA7, source::AGA8, "MEASURED") {
        Activate(1).Build();
        Tags = StationHolding(Expected);
    }
    Inventory Tags;
};

ExpectedTag Entry(const std::string& address, const std::string& tag, const std::string& type) {
    ExpectedTag entry;
    entry.RegAddr = address;
    entry.Tag = tag;
    entry.Type = type;
    return entry;
}

// Whether a float entry is found in a station with this one tag.
bool FloatFinds(const ExpectedTag& entry, const project::Tag& tag) {
    ExpectedTags expected;
    expected.ExpectedFloat = {entry};
    Inventory station;
    station.VirtFX = {tag};
    (void)CheckExpectedTags(expected, station);
    return expected.ExpectedFloat.front().Found;
}

const project::Tag TT1{"TT-1", 12, "FX", "VF1", "Virtual FI"};

} // namespace

TEST_F(ExpectedTagsCheck, passes_where_the_station_holds_everything) {
    EXPECT_TRUE(CheckExpectedTags(Expected, Tags));
    EXPECT_THAT(Missing(Expected), IsEmpty());
}

TEST_F(ExpectedTagsCheck, misses_a_tag_that_got_a_new_name) {
    Tags.VirtFX.at(1).TagName = "PT-NEW";
    EXPECT_FALSE(CheckExpectedTags(Expected, Tags));
    EXPECT_THAT(Missing(Expected), ElementsAre("Pressure"));
}

TEST_F(ExpectedTagsCheck, misses_a_tag_that_moved_to_another_register) {
    Tags.VirtFX.at(1).RegAddr += 1000;
    EXPECT_FALSE(CheckExpectedTags(Expected, Tags));
    EXPECT_THAT(Missing(Expected), ElementsAre("Pressure"));
}

TEST_F(ExpectedTagsCheck, misses_a_tag_that_changed_its_direction) {
    Tags.VirtAX.at(0).RegType = "AY";
    EXPECT_FALSE(CheckExpectedTags(Expected, Tags));
    EXPECT_THAT(Missing(Expected), ElementsAre("AGA 3 Status"));
}

TEST_F(ExpectedTagsCheck, misses_in_each_class) {
    EXPECT_FALSE(CheckExpectedTags(Expected, {}));
    EXPECT_EQ(Missing(Expected).size(), Expected.ExpectedFloat.size() + 2U + 4U + 1U);
}

TEST_F(ExpectedTagsCheck, forgets_what_an_earlier_check_found) {
    ASSERT_TRUE(CheckExpectedTags(Expected, Tags));
    Tags.VirtLX.clear();
    EXPECT_FALSE(CheckExpectedTags(Expected, Tags));
    EXPECT_THAT(Missing(Expected), ElementsAre("Pulse Input"));
    Tags = StationHolding(Expected);
    EXPECT_TRUE(CheckExpectedTags(Expected, Tags));
}

TEST_F(ExpectedTagsCheck, ignores_the_working_modules) {
    Expected.WorkingFloat.Tag = "gone";
    Expected.WorkingLong.RegAddr = "7";
    EXPECT_TRUE(CheckExpectedTags(Expected, Tags));
}

TEST(CheckExpectedTags, searches_the_lists_of_the_class_alone) {
    struct Case {
        Entries ExpectedTags::*Class;
        std::vector<project::TagList Inventory::*> Searched;
    };
    project::TagList Inventory::*const all[] = {
        &Inventory::PhysX,      &Inventory::PhysY,     &Inventory::PhysAX,      &Inventory::PhysAY,
        &Inventory::PhysFX,     &Inventory::PhysFY,    &Inventory::PhysLX,      &Inventory::PhysLY,
        &Inventory::VirtX,      &Inventory::VirtY,     &Inventory::VirtAX,      &Inventory::VirtAY,
        &Inventory::VirtFX,     &Inventory::VirtFY,    &Inventory::VirtLX,      &Inventory::VirtLY,
        &Inventory::AvailFloat, &Inventory::AvailLong, &Inventory::AvailAnalog, &Inventory::AvailDigital};
    const Case cases[] = {
        {&ExpectedTags::ExpectedFloat, {&Inventory::VirtFX, &Inventory::VirtFY}},
        {&ExpectedTags::ExpectedAnalog,
         {&Inventory::PhysAX, &Inventory::PhysAY, &Inventory::VirtAX, &Inventory::VirtAY}},
        {&ExpectedTags::ExpectedDigital,
         {&Inventory::PhysX, &Inventory::PhysY, &Inventory::VirtX, &Inventory::VirtY}},
        {&ExpectedTags::ExpectedLong, {&Inventory::VirtLX, &Inventory::VirtLY}},
    };
    for (const Case& each : cases)
        for (const auto list : all) {
            ExpectedTags expected;
            expected.*each.Class = {Entry("12", "TT-1", "FX")};
            Inventory station;
            station.*list = {TT1};
            const bool searched = std::count(each.Searched.begin(), each.Searched.end(), list) == 1;
            EXPECT_EQ(CheckExpectedTags(expected, station), searched);
        }
}

TEST(CheckExpectedTags, compares_the_address_as_it_is_written) {
    EXPECT_TRUE(FloatFinds(Entry("12", "TT-1", "FX"), TT1));
    for (const char* other : {"012", "+12", "12.0", "12 ", " 12", "0x0c", "", "1", "121", "99999999999"})
        EXPECT_FALSE(FloatFinds(Entry(other, "TT-1", "FX"), TT1)) << other;
}

TEST(CheckExpectedTags, knows_addresses_at_the_ends_of_their_range) {
    auto tag = TT1;
    for (const auto& [number, text] : {std::pair{0, "0"}, {-1, "-1"}, {2147483647, "2147483647"}}) {
        tag.RegAddr = number;
        EXPECT_TRUE(FloatFinds(Entry(text, "TT-1", "FX"), tag)) << text;
    }
    tag.RegAddr = 0;
    EXPECT_FALSE(FloatFinds(Entry("-0", "TT-1", "FX"), tag));
    EXPECT_FALSE(FloatFinds(Entry("", "TT-1", "FX"), tag));
}

// The sorting of the tags into classes is without regard to case; what it let in is compared exactly.
TEST(CheckExpectedTags, compares_type_and_name_with_regard_to_case) {
    EXPECT_FALSE(FloatFinds(Entry("12", "TT-1", "fx"), TT1));
    EXPECT_FALSE(FloatFinds(Entry("12", "tt-1", "FX"), TT1));
    auto lower = TT1;
    lower.RegType = "fx";
    EXPECT_TRUE(FloatFinds(Entry("12", "TT-1", "fx"), lower));
    EXPECT_FALSE(FloatFinds(Entry("12", "TT-1", "FX"), lower));
}

TEST(CheckExpectedTags, fails_on_an_empty_name_even_where_such_a_tag_stands) {
    ExpectedTags expected;
    expected.ExpectedFloat = {Entry("12", "", "FX")};
    Inventory station;
    station.VirtFX = {{"", 12, "FX", "VF1", "Virtual FI"}};
    EXPECT_FALSE(CheckExpectedTags(expected, station));
    EXPECT_TRUE(expected.ExpectedFloat.front().Found);
}

TEST(CheckExpectedTags, lets_two_entries_have_one_tag) {
    ExpectedTags expected;
    expected.ExpectedFloat = {Entry("12", "TT-1", "FX"), Entry("12", "TT-1", "FX")};
    Inventory station;
    station.VirtFY = {TT1, TT1};
    EXPECT_TRUE(CheckExpectedTags(expected, station));
}

TEST(CheckExpectedTags, passes_with_nothing_expected) {
    ExpectedTags expected;
    EXPECT_TRUE(CheckExpectedTags(expected, {}));
}

// The index is no more than a quicker way through the lists.
TEST(CheckExpectedTags, finds_what_a_comparison_of_each_with_each_finds) {
    std::mt19937 dice(20230315);
    const auto pick = [&dice](auto choices) { return std::string(choices[dice() % std::size(choices)]); };
    using Choices = std::vector<const char*>;
    const Choices addresses = {"0", "1", "-1", "12", "012", ""};
    const Choices names = {"TT-1", "tt-1", "TT-2", ""};
    const Choices types = {"FX", "FY", "fx"};
    Inventory station;
    for (int i = 0; i < 25; ++i)
        (i % 2 == 0 ? station.VirtFX : station.VirtFY)
            .push_back({pick(names), static_cast<int>(dice() % 14) - 1, pick(types), "VF1", "Virtual FI"});
    ExpectedTags expected;
    for (int i = 0; i < 500; ++i)
        expected.ExpectedFloat.push_back(Entry(pick(addresses), pick(names), pick(types)));
    (void)CheckExpectedTags(expected, station);

    int found = 0;
    for (const auto& entry : expected.ExpectedFloat) {
        const auto matches = [&entry](const project::Tag& tag) {
            return entry.RegAddr == std::to_string(tag.RegAddr) && entry.Type == tag.RegType &&
                   entry.Tag == tag.TagName;
        };
        const bool there =
            std::ranges::any_of(station.VirtFX, matches) || std::ranges::any_of(station.VirtFY, matches);
        EXPECT_EQ(entry.Found, there) << entry.RegAddr << entry.Tag << entry.Type;
        found += there ? 1 : 0;
    }
    EXPECT_GT(found, 0);
}

TEST(CheckExpectedTags, finds_its_way_through_a_hundred_thousand_tags) {
    ExpectedTags expected;
    Inventory station;
    for (int i = 0; i < 100000; ++i)
        station.VirtFX.push_back({"FT-" + std::to_string(i), i % 300, "FX", "VF1", "Virtual FI"});
    for (int i = 0; i < 230; ++i)
        expected.ExpectedFloat.push_back(Entry(std::to_string(i), "FT-" + std::to_string(99900 + i), "FX"));
    EXPECT_FALSE(CheckExpectedTags(expected, station));
    for (int i = 0; i < 230; ++i)
        EXPECT_EQ(expected.ExpectedFloat.at(static_cast<std::size_t>(i)).Found, i < 100) << i;
}

TEST(RemoveUsedTags, keeps_the_others_in_their_order) {
    project::TagList pool = {{"A", 1, "FX", "M", "Virtual"},
                             {"B", 2, "FX", "M", "Virtual"},
                             {"C", 3, "FX", "M", "Virtual"},
                             {"D", 4, "FX", "M", "Virtual"}};
    RemoveUsedTags(pool, {Entry("3", "C", "FX"), Entry("1", "A", "FX"), Entry("1", "A", "FX")});
    ASSERT_EQ(pool.size(), 2U);
    EXPECT_EQ(pool[0].TagName, "B");
    EXPECT_EQ(pool[1].TagName, "D");
}

TEST(RemoveUsedTags, does_not_ask_for_the_type) {
    project::TagList pool = {TT1};
    RemoveUsedTags(pool, {Entry("12", "TT-1", "anything")});
    EXPECT_THAT(pool, IsEmpty());
}

TEST(RemoveUsedTags, asks_for_address_and_name) {
    project::TagList pool = {TT1};
    RemoveUsedTags(pool, {Entry("13", "TT-1", "FX"), Entry("12", "TT-2", "FX"), Entry("12", "tt-1", "FX"),
                          Entry("012", "TT-1", "FX"), Entry("", "", "")});
    EXPECT_EQ(pool.size(), 1U);
    RemoveUsedTags(pool, {});
    EXPECT_EQ(pool.size(), 1U);
}

TEST(RemoveUsedTags, takes_every_tag_of_the_same_address_and_name) {
    project::TagList pool = {TT1, TT1};
    RemoveUsedTags(pool, {Entry("12", "TT-1", "FX")});
    EXPECT_THAT(pool, IsEmpty());
}

namespace {

struct DisableRuns : testing::Test, CheckedFile {
    DisableRuns() {
        for (const char* run : {"Run1", "Run2", "Run3", "Run4", "Run5"})
            Put("FlowRuns", run, "Yes");
        Files.Replaces = 0;
    }
    static ExpectedTag At(const char* location, bool found = false) {
        ExpectedTag entry;
        entry.Location = location;
        entry.Found = found;
        return entry;
    }
    void Disable() { DisableRunsWithErrors(Ini, Expected, File); }
    [[nodiscard]] std::string Flags() const {
        std::string flags;
        for (const char* run : {"Run1", "Run2", "Run3", "Run4", "Run5"})
            flags += Ini.ReadKey("FlowRuns", run, File) == "No" ? '-' : 'x';
        return flags;
    }
};

} // namespace

TEST_F(DisableRuns, with_an_entry_of_any_class_that_was_not_found) {
    Expected.ExpectedFloat = {At("Run1"), At("Run1")};
    Expected.ExpectedAnalog = {At("Run2")};
    Expected.ExpectedDigital = {At("Run3", true), At("Run4")};
    Expected.ExpectedLong = {At("Run5")};
    Disable();
    EXPECT_EQ(Flags(), "--x--");
    EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(DisableRuns, leaves_the_file_alone_without_errors) {
    Expected.ExpectedFloat = {At("Run1", true)};
    Disable();
    EXPECT_EQ(Flags(), "xxxxx");
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(DisableRuns, does_not_touch_the_configured_mark) {
    Put("FlowRuns", "Run22", "Yes");
    Expected.ExpectedLong = {At("Run2")};
    Disable();
    EXPECT_EQ(Flags(), "x-xxx");
    EXPECT_EQ(Ini.ReadKey("FlowRuns", "Run22", File), "Yes");
}

// Nobody reads that key: a bad atmospheric pressure deliberately disables no run.
TEST_F(DisableRuns, writes_a_key_of_its_own_for_the_atmospheric_pressure) {
    Expected.ExpectedFloat = {At("AGA3")};
    Disable();
    EXPECT_EQ(Flags(), "xxxxx");
    EXPECT_EQ(Ini.ReadKey("FlowRuns", "AGA3", File), "No");
}

TEST_F(DisableRuns, ends_the_floats_at_an_entry_of_the_shared_composition) {
    Expected.ExpectedFloat = {At("Run2"), At("Gas Composition", true), At("Run3"), At("Gas Composition"),
                              At("Run4")};
    Disable();
    EXPECT_EQ(Flags(), "---xx");
    EXPECT_EQ(Ini.ReadKey("FlowRuns", "Gas Composition", File), "");
}

TEST_F(DisableRuns, skips_entries_of_the_shared_composition_in_the_other_classes) {
    Expected.ExpectedAnalog = {At("Gas Composition"), At("Run2")};
    Expected.ExpectedDigital = {At("Gas Composition"), At("Run3")};
    Expected.ExpectedLong = {At("Gas Composition"), At("Run4")};
    Disable();
    EXPECT_EQ(Flags(), "x---x");
    EXPECT_EQ(Ini.ReadKey("FlowRuns", "Gas Composition", File), "");
}
