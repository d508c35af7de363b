#include "fuzz/Target.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

// Each finding of the fuzzer, and what it took to reach every corner, stays in the corpus and is tried again
// here.
namespace gfc::fuzz {

namespace {

std::vector<std::filesystem::path> EntriesOf(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> entries;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        entries.push_back(entry.path());
    std::ranges::sort(entries);
    return entries;
}

std::filesystem::path CorpusFolder() {
    return test::GoldenFolder().parent_path() / "fuzz/corpus";
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

class Corpus : public testing::TestWithParam<Target> {};

} // namespace

TEST_P(Corpus, holds_for_every_file_and_for_none) {
    const auto files = EntriesOf(CorpusFolder() / GetParam().Name);
    EXPECT_GE(files.size(), 10u);
    for (const auto& file : files)
        EXPECT_NO_THROW(GetParam().Run(BytesOf(file))) << file.filename();
    EXPECT_NO_THROW(GetParam().Run({}));
}

INSTANTIATE_TEST_SUITE_P(All, Corpus, testing::ValuesIn(Targets().begin(), Targets().end()),
                         [](const auto& target) { return std::string(target.param.Name); });

// The build and the scripts take the fuzzers' names from the folders.
TEST(Targets, each_has_its_folder_and_each_folder_its_target) {
    std::vector<std::string> folders;
    for (const auto& folder : EntriesOf(CorpusFolder()))
        folders.push_back(folder.filename().string());
    std::vector<std::string> targets;
    for (const Target& target : Targets())
        targets.emplace_back(target.Name);
    std::ranges::sort(targets);
    EXPECT_EQ(targets, folders);
}

TEST(Finding, tells_what_was_to_hold) {
    EXPECT_NO_THROW(Require(true, "it holds"));
    try {
        Require(false, "it holds");
        FAIL() << "a finding was expected";
    } catch (const Finding& finding) {
        EXPECT_STREQ(finding.what(), "it holds");
    }
}

} // namespace gfc::fuzz
