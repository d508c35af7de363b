#include "binding/TagsInUse.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::binding {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

constexpr const char* file = "/jobs/station.ini";

Names NamesOf(const std::vector<ExpectedTag>& entries) {
    Names names;
    for (const auto& entry : entries)
        if (!entry.Tag.empty())
            names.push_back(entry.Tag);
    return names;
}

ExpectedTags InUse(const std::string& content) {
    test::MemoryFiles files;
    files.Content[file] = content;
    const config::FileIni ini(files);
    return TagsInUse(ini, file);
}

std::string Runs(const std::string& algorithm, const std::string& flags) {
    return "[FlowRuns]\r\nFlowAlgorithm=" + algorithm + "\r\nGasDensitySource=MEASURED\r\n" + flags;
}

const std::string runTwo = "[Run2]\r\nGasDensityKDIOTag=FT-1\r\nGasDensityKDIORegAddr=1001\r\n"
                           "ResetTotalsKDIOTag=XS-1\r\nAGA3StatusKDIOTag=AI-1\r\n";

} // namespace

TEST(TagsInUse, are_those_of_a_run_that_is_on) {
    const auto used = InUse(Runs("AGA3", "Run2=Yes\r\n") + runTwo);
    EXPECT_THAT(NamesOf(used.ExpectedFloat), ElementsAre("FT-1"));
    EXPECT_THAT(NamesOf(used.ExpectedDigital), ElementsAre("XS-1"));
    EXPECT_THAT(NamesOf(used.ExpectedAnalog), ElementsAre("AI-1"));
    EXPECT_EQ(used.ExpectedFloat.front().RegAddr, "1001");
}

TEST(TagsInUse, are_those_of_every_run) {
    std::string flags;
    std::string sections;
    for (const std::string run : {"Run1", "Run2", "Run3", "Run4", "Run5"}) {
        flags += run + "=Yes\r\n";
        sections += "[" + run + "]\r\nResetTotalsKDIOTag=XS-" + run.substr(3) + "\r\n";
    }
    EXPECT_THAT(NamesOf(InUse(Runs("AGA3", flags) + sections).ExpectedDigital),
                ElementsAre("XS-1", "XS-2", "XS-3", "XS-4", "XS-5"));
}

TEST(TagsInUse, are_those_of_a_run_that_is_configured_and_off) {
    const auto used = InUse(Runs("AGA3", "Run2=No\r\nRun22=Yes\r\n") + runTwo);
    EXPECT_THAT(NamesOf(used.ExpectedFloat), ElementsAre("FT-1"));
}

TEST(TagsInUse, are_not_those_of_a_run_that_was_never_configured) {
    const auto used = InUse(Runs("AGA3", "Run2=No\r\nRun22=No\r\n") + runTwo);
    EXPECT_THAT(NamesOf(used.ExpectedFloat), IsEmpty());
}

TEST(TagsInUse, are_those_that_the_check_passes_over) {
    const auto used = InUse(Runs("SYT6143-2004", "Run2=Yes\r\n") +
                            "[Run2]\r\nPipeAbsRoughnessKDIOTag=FT-7\r\nOrificeServiceTimeKDIOTag=FT-8\r\n");
    EXPECT_THAT(NamesOf(used.ExpectedFloat), ElementsAre("FT-7", "FT-8"));
}

TEST(TagsInUse, are_those_of_the_atmospheric_pressure_under_every_algorithm) {
    const std::string pressure = "ExtAtmPress=yes\r\nCommonPaKDIOTag=FT-9\r\n";
    EXPECT_THAT(NamesOf(InUse(Runs("AGA7", "") + "[AGA7]\r\n" + pressure).ExpectedFloat),
                ElementsAre("FT-9"));
    for (const char* algorithm : {"AGA3", "Accelabar-AGA-3-1992", "SYT6143-2004"})
        EXPECT_THAT(NamesOf(InUse(Runs(algorithm, "") + "[AGA3]\r\n" + pressure).ExpectedFloat),
                    ElementsAre("FT-9"))
            << algorithm;
    EXPECT_THAT(NamesOf(InUse(Runs("AGA7", "") + "[AGA3]\r\n" + pressure).ExpectedFloat), IsEmpty());
}

TEST(TagsInUse, are_those_of_external_diameters_in_any_spelling_of_yes) {
    for (const char* yes : {"Yes", "yes", "YES"})
        EXPECT_THAT(NamesOf(InUse(Runs("AGA3", "Run2=Yes\r\n") +
                                  "[Run2]\r\nPipeDiaKDIOTag=FT-3\r\nExtMechParam=" + yes + "\r\n")
                                .ExpectedFloat),
                    ElementsAre("FT-3"))
            << yes;
}

// Keys that an earlier choice has left in the file bind nothing.
TEST(TagsInUse, are_not_those_that_the_options_no_longer_call_for) {
    const auto used = InUse("[FlowRuns]\r\nFlowAlgorithm=AGA3\r\nGasDensitySource=AGA8\r\nRun2=Yes\r\n"
                            "[AGA8]\r\nAGA8CalInput=FIXED\r\n"
                            "[Run2]\r\nGasTempKDIOTag=FT-1\r\nGC_C1KDIOTag=FT-2\r\nGCEnableKDIOTag=XS-1\r\n"
                            "PipeDiaKDIOTag=FT-3\r\nExtMechParam=No\r\n");
    EXPECT_THAT(NamesOf(used.ExpectedFloat), ElementsAre("FT-1"));
    EXPECT_THAT(NamesOf(used.ExpectedDigital), IsEmpty());
}

} // namespace gfc::binding
