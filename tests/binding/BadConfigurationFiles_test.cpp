#include "CheckedFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace gfc;
using namespace gfc::binding;
using namespace gfc::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Each file is sound.ini with one fault done to it, checked against the station that sound.ini fits: runs 1
// and 3 and the atmospheric pressure.
struct BadConfiguration : testing::Test, CheckedFile {
    BadConfiguration() {
        Open("sound");
        Tags = StationHolding(Expected);
    }
    void Open(const std::string& name) {
        Files.Content[File] = Golden("bad/" + name + ".ini");
        ASSERT_FALSE(Files.Content[File].empty()) << name;
        Build();
    }
    [[nodiscard]] bool Check() { return CheckExpectedTags(Expected, Tags); }

    project::TagInventory Tags;
};

const Texts OfOneRun = {"Density",        "Temperature",      "Pressure", "Diferential Pressure",
                        "Std. Mass Flow", "Std. Volume Flow", "Volune",   "Mass"};

} // namespace

TEST_F(BadConfiguration, sound_for_comparison_passes) {
    EXPECT_TRUE(Check());
    EXPECT_EQ(Expected.ExpectedFloat.size(), 1U + 2U * OfOneRun.size());
    EXPECT_EQ(Expected.WorkingFloat.Tag, "VF0");
}

// What stands before the cut holds, what stood behind it is missing and bears no name.
TEST_F(BadConfiguration, cut_in_the_middle_misses_what_was_cut_off) {
    Open("cut_in_the_middle");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Missing(Expected),
                ElementsAre("Pressure", "Diferential Pressure", "Std. Mass Flow", "Std. Volume Flow",
                            "Volune", "Mass", "AGA 3 Status", "Reset", "Flow Run/Hold", "Totalize Run/Hold"));
    for (const auto& entry : Expected.ExpectedFloat)
        if (!entry.Found) {
            EXPECT_EQ(entry.Location, "Run3");
            EXPECT_EQ(entry.Tag, entry.Caption == "Pressure" ? "R3-GasPress" : "");
        }
}

// Of equal keys and of equal sections the first counts.
TEST_F(BadConfiguration, with_duplicate_keys_and_section_is_read_by_the_first) {
    Open("duplicate_keys_and_section");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Missing(Expected), ElementsAre("Diferential Pressure"));
    EXPECT_EQ(Expected.ExpectedFloat.at(2).Tag, "R1-GasTemp");
    EXPECT_EQ(Expected.ExpectedFloat.at(4).Tag, "R1-Other");
    EXPECT_EQ(Expected.ExpectedFloat.at(8).Tag, "R1-GasMass");
}

TEST_F(BadConfiguration, with_a_type_in_lower_case_misses_the_tag) {
    Open("type_in_lower_case");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Missing(Expected), ElementsAre("Temperature"));
    EXPECT_EQ(Expected.ExpectedFloat.at(2).Type, "fx");
}

TEST_F(BadConfiguration, with_a_leading_zero_in_an_address_misses_the_tag) {
    Open("address_with_leading_zero");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Missing(Expected), ElementsAre("Temperature"));
    EXPECT_EQ(Expected.ExpectedFloat.at(2).RegAddr, "01101");
}

// Half of it stands before the first section, where nothing is read, half of it in one value, which is cut.
TEST_F(BadConfiguration, with_a_megabyte_of_text_misses_the_tag_whose_name_it_is) {
    Open("one_megabyte_of_text");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Missing(Expected), ElementsAre("Temperature"));
    EXPECT_EQ(Expected.ExpectedFloat.at(2).Tag.size(), 254U);
}

TEST_F(BadConfiguration, of_bytes_of_another_kind_expects_nothing) {
    Open("bytes_of_another_kind");
    EXPECT_TRUE(Check());
    EXPECT_THAT(Expected.ExpectedFloat, IsEmpty());
    EXPECT_EQ(Station.FlowAlgorithm, "");
}

TEST_F(BadConfiguration, with_line_breaks_of_another_machine_passes) {
    Open("line_breaks_of_another_machine");
    EXPECT_TRUE(Check());
    EXPECT_EQ(Expected.ExpectedFloat.size(), 1U + 2U * OfOneRun.size());
}

// A name that is never closed takes the whole line.
TEST_F(BadConfiguration, with_a_section_never_closed_is_read_all_the_same) {
    Open("section_never_closed");
    EXPECT_TRUE(Check());
    EXPECT_EQ(Expected.ExpectedFloat.size(), 1U + 2U * OfOneRun.size());
}
