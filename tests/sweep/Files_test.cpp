#include "Pairs.h"
#include "PlainStation.h"
#include "SweepWorld.h"
#include "audit/Check.h"
#include "binding/ExpectedTags.h"
#include "forms/program/StartUp.h"

#include <gtest/gtest.h>

#include <iostream>

// Every method that the wizard offers, each with every pair of the other choices (with every combination of
// them in the deep checks), from the first window to the last, against a second account of the file, of the
// model and of the summaries.
namespace gfc::test::sweep {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", from)) {
        lines.push_back(text.substr(from, end - from));
        from = end + 2;
    }
    if (from < text.size())
        lines.push_back(text.substr(from) + " without an end");
    return lines;
}

void ExpectLines(const std::string& written, const PlainFile& expected) {
    const auto lines = LinesOf(written);
    const auto plain = expected.Lines();
    for (std::size_t i = 0; i < lines.size() && i < plain.size(); ++i)
        ASSERT_EQ(lines[i], plain[i]) << "line " << i + 1;
    EXPECT_EQ(lines.size(), plain.size());
}

// The check that stands before every edit finds nothing to say against a fresh file.
void ExpectNoErrors(SweepWorld& world) {
    binding::ExpectedTags expected;
    config::StationConfig station;
    binding::BuildExpectedTags(world.Program.Ini, world.ConfigFile("North"), station, expected);
    EXPECT_FALSE(expected.ExpectedFloat.empty());
    EXPECT_TRUE(binding::CheckExpectedTags(expected, world.Session.Inventory));
}

// The way enters the same density in every unit system, which is sound in the metric ones alone.
std::string WithSoundDensity(std::string file, const Choice& choice) {
    const std::string entered = "GasDensityStandard=0.7\r\n";
    for (auto at = file.find(entered); choice.Units < 2 && at != file.npos; at = file.find(entered, at + 1))
        file.replace(at, entered.size(), "GasDensityStandard=0.0437\r\n");
    return file;
}

// Nor does the look over the whole plant: what the wizard writes with sound entries has no error and no
// warning.
void ExpectNothingFound(SweepWorld& world, const Choice& choice) {
    const std::string file = world.ConfigFile("North");
    MemoryFiles files;
    files.Content[file] = WithSoundDensity(world.WrittenFile(), choice);
    const auto& project = world.Session.Project;
    const auto report = audit::CheckFile(files, {file, project.ProjectFile, project.ProjectName, "North"},
                                         &world.Library.TagsOf["North"]);
    // The program offers each run the pulse counters of the others again, and the way takes the first for
    // all.
    for (const audit::Finding& finding : report.Findings)
        if (finding.Rule != audit::RuleId::PulsesShared) {
            EXPECT_EQ(finding.Severity, audit::Severity::Note) << finding.Row().Name << ": " << finding.Text;
        }
}

void Prove(const Choice& choice) {
    SCOPED_TRACE(choice.Text());
    const PlainFile plain = FileOf(choice);
    SweepWorld world;
    world.TellConfiguration(choice);
    world.TheStory.Check([&](Driver&) {
        ExpectLines(world.WrittenFile(), plain);
        ExpectNothingFound(world, choice);
        // As the check goes through run by run, two runs show what five would.
        if (choice.Runs.size() < 3)
            ExpectNoErrors(world);
    });
    world.TellLook(choice, plain);
    forms::StartProgram(world.Program);
    world.Screen.RunToEnd();
    EXPECT_TRUE(world.Screen.Ended());
    // Nothing that was looked at was changed, and the file was entered for the station.
    EXPECT_EQ(world.WrittenFile(), plain.Text());
    EXPECT_EQ(world.Files.Content.size(), 1U);
    EXPECT_EQ(world.Library.FilesToLoad.size(), 1U);
}

class Files : public testing::TestWithParam<Choice> {
protected:
    static void TearDownTestSuite() {
        std::cout << "[  count   ] " << proved << " combinations, " << beyondHands
                  << " of them with an option that the wizard shuts\n";
    }
    static inline int proved = 0;
    static inline int beyondHands = 0;
};

TEST_P(Files, are_as_accounted_and_read_back) {
    for (const Choice& choice : SweptOf(GetParam())) {
        Prove(choice);
        ++proved;
        beyondHands += choice.BeyondHands() ? 1 : 0;
        ASSERT_FALSE(HasFailure()) << choice.Text();
    }
}

INSTANTIATE_TEST_SUITE_P(Methods, Files, testing::ValuesIn(Methods()),
                         [](const auto& method) { return method.param.Name(); });

TEST(Combinations, are_all_that_the_lists_hold) {
    std::size_t all = 0, beyond = 0;
    for (const auto& method : Methods()) {
        all += VariationsOf(method).size();
        beyond += method.BeyondHands() ? VariationsOf(method).size() : 0;
    }
    // Orifices twice, since their diameters come from two places.
    EXPECT_EQ(all, (2U + 1U + 1U + 2U) * 9U * 5U * 3U * 3U);
    EXPECT_EQ(beyond, (2U + 1U + 1U + 2U) * 2U * 5U * 3U * 3U);
}

TEST(Combinations, that_are_swept_hold_every_pair_of_choices) {
    std::set<std::string> swept;
    for (const auto& method : Methods()) {
        std::set<std::string> pairs, all;
        const auto chosen = PairwiseOf(method);
        for (const auto& choice : chosen) {
            pairs.merge(PairsIn(choice));
            swept.insert(choice.Text().substr(method.Text().find(", US")));
        }
        for (const auto& choice : VariationsOf(method))
            all.merge(PairsIn(choice));
        EXPECT_EQ(pairs, all) << method.Text();
        EXPECT_LE(chosen.size(), 20U) << method.Text();
    }
    // All methods together have nearly each combination of the rest among them.
    EXPECT_GE(swept.size(), 80U);
}

TEST(Combinations, of_the_largest_need_leave_the_station_almost_nothing) {
    const auto& pools = FreeTags();
    EXPECT_EQ(pools.Floats.size(), 220U);
    EXPECT_EQ(pools.Digitals.size(), 22U);
    EXPECT_EQ(pools.Longs.size(), 6U);
    EXPECT_EQ(pools.Analogs.size(), 12U);
}

} // namespace
} // namespace gfc::test::sweep
