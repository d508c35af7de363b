#include "report/Report.h"

#include <gtest/gtest.h>

namespace gfc::report {
namespace {

Report Sound() {
    Report report;
    report.Project = "plant";
    report.Entries = 7;
    report.Stations.push_back({"North", "north.ini", std::string(64, 'a'), 5, "[General]\r\n", {}});
    return report;
}

std::string With(const std::string& what, const std::string& instead) {
    std::string json = ToJson(Sound());
    return json.replace(json.find(what), what.size(), instead);
}

TEST(ReadReport, ReadsWhatWasWrittenInEitherForm) {
    EXPECT_EQ(ReadReport(ToJson(Sound())), Sound());
    EXPECT_EQ(ReadReport(ToHtml(Sound())), Sound());
}

// Each would be taken for some number, and the report be held against the wrong entry of the history.
TEST(ReadReport, TakesNothingForANumberThatIsNone) {
    EXPECT_TRUE(ReadReport(With("\"entries\":7", "\"entries\":9223372036854775807")));
    for (const char* number : {"-1", "1.5", "7.0", "1e300", "true", "null", "\"7\"", "9223372036854775808",
                               "18446744073709551616"}) {
        EXPECT_FALSE(ReadReport(With("\"entries\":7", std::string("\"entries\":") + number))) << number;
        EXPECT_FALSE(ReadReport(With("\"entry\":5", std::string("\"entry\":") + number))) << number;
    }
}

} // namespace
} // namespace gfc::report
