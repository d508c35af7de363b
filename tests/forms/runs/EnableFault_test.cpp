#include "forms/runs/EnableFault.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using binding::ExpectedTag;
using binding::ExpectedTags;
using forms::EnableFaultText;
using forms::FindEnableFault;

ExpectedTag Entry(const std::string& location, bool found) {
    ExpectedTag entry;
    entry.Location = location;
    entry.Found = found;
    return entry;
}

const std::string see = "\r\n/n_Errors.log\r\n\r\nDo you wish to see the log file of errors ?";

std::string TextFor(const ExpectedTags& expected, int run) {
    const auto fault = FindEnableFault(expected, run);
    return fault ? EnableFaultText(*fault, run, "/n_Errors.log") : std::string();
}

} // namespace

TEST(EnableFault, there_is_none_where_all_is_found) {
    ExpectedTags expected;
    expected.ExpectedFloat = {Entry("Run2", true), Entry("Run3", false), Entry("AGA3", false)};
    expected.ExpectedDigital = {Entry("Run1", false)};
    EXPECT_FALSE(FindEnableFault(expected, 2).has_value());
    EXPECT_FALSE(FindEnableFault({}, 1).has_value());
}

TEST(EnableFault, each_class_has_its_own_letters) {
    const std::string usual = "A log file describing the error and its cause has been generated in:" + see;
    ExpectedTags expected;
    expected.ExpectedFloat = {Entry("Run2", true), Entry("Run2", false)};
    EXPECT_EQ(TextFor(expected, 2),
              "Error : Configuration errors or inconsistecies found in Run 2\r\n" + usual);
    expected.ExpectedLong = {Entry("Run2", false)};
    EXPECT_EQ(TextFor(expected, 2),
              "Error : Configuration errors or inconsistencies found in Run 2\r\n"
              "A lof file describing the error and its cause has been generated in:\r\n/n_Errors.log\r\n\r\n"
              "Dou you wish to see the log file of  errors ?");
    expected.ExpectedDigital = {Entry("Run2", false)};
    EXPECT_EQ(TextFor(expected, 2),
              "Error : Configuration errors or inconsistencies found in Run 2\r\n" + usual);
    expected.ExpectedDigital.clear();
    expected.ExpectedAnalog = {Entry("Run2", false)};
    EXPECT_EQ(TextFor(expected, 2),
              "Error : Configuration errors or inconsistencies found in Run 2\r\n" + usual);
}

TEST(EnableFault, an_error_of_the_composition_concerns_all_runs) {
    ExpectedTags expected;
    expected.ExpectedFloat = {Entry("Gas Composition", false), Entry("Run2", false)};
    const auto fault = FindEnableFault(expected, 2);
    ASSERT_TRUE(fault.has_value());
    EXPECT_TRUE(fault->OfAllRuns);
    EXPECT_EQ(TextFor(expected, 2),
              "Error : Configuration errors or inconsistencies found in the I/O tags Composition Gas \r\n"
              "A log file describing the error and its cause has been generated in :" +
                  see);
    // In order: the run's own entry stands first.
    std::swap(expected.ExpectedFloat[0], expected.ExpectedFloat[1]);
    EXPECT_FALSE(FindEnableFault(expected, 2)->OfAllRuns);
    expected.ExpectedFloat.clear();
    expected.ExpectedDigital = {Entry("Gas Composition", false)};
    EXPECT_FALSE(FindEnableFault(expected, 2).has_value());
}

} // namespace gfc::test
