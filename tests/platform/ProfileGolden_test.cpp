#include "support/TestFolders.h"
#include "tools/ProfileReplay.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using namespace gfc::test;

TEST(ProfileGolden, holds_in_every_recorded_case) {
    std::ifstream cases(GoldenFolder() / "profile/profile.jsonl", std::ios::binary);
    ASSERT_TRUE(cases);
    const auto outcomes = ReplayProfileCases(cases);
    EXPECT_EQ(outcomes.size(), 258u);
    for (const auto& outcome : outcomes)
        EXPECT_EQ(outcome.Failure, "") << outcome.Id;
}

// A case on an empty file that stays empty.
std::string Case(const std::string& id, const std::string& operations, const std::string& results) {
    return R"({"id":")" + id + R"(","initial_hex":"","final_hex":"","ops":[)" + operations +
           R"(],"results":[)" + results + "]}\n";
}

// The replay itself must be able to fail, or its passing would mean nothing.
TEST(ProfileReplay, reports_a_wrong_result_a_wrong_file_and_a_broken_line) {
    std::istringstream cases(Case("read", R"({"op":"read","section":"A","key":"k"})", R"("x")") +
                             Case("file", R"({"op":"write","section":"A","key":"k","value":"1"})", "true") +
                             "{broken\n" + Case("name", R"({"op":"move","section":"A"})", "true") +
                             Case("good", "", ""));
    const auto outcomes = ReplayProfileCases(cases);
    ASSERT_EQ(outcomes.size(), 5u);
    EXPECT_NE(outcomes[0].Failure, "");
    EXPECT_EQ(outcomes[1].Failure, "the file's last bytes differ");
    EXPECT_NE(outcomes[2].Failure, "");
    EXPECT_EQ(outcomes[3].Failure, "unknown operation move");
    EXPECT_EQ(outcomes[4].Failure, "");
}

} // namespace
