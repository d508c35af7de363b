#include "audit/Comparison.h"

#include <gmock/gmock.h>

namespace gfc::audit {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::string FileOf(const std::string& units, const std::string& runs) {
    return "[General]\r\nOrmStation=North\r\n[FlowRuns]\r\nFlowAlgorithm=AGA-3\r\nSystemUnits=" + units +
           "\r\n" + runs;
}

std::vector<std::string> KeysIn(const std::vector<ComparedRow>& rows, bool equal) {
    std::vector<std::string> keys;
    for (const ComparedRow& row : rows)
        if (row.IsEqual() == equal)
            keys.push_back(row.Section + "/" + row.Key);
    return keys;
}

TEST(Compare, GivesEqualAndDifferentRowsInTheOrderOfTheLeftFile) {
    const auto rows = Compare({FileOf("US", "[Run1]\r\nOrificeDia=2\r\nGasTempKDIOTag=T1\r\n")},
                              {FileOf("US", "[Run1]\r\nNew=\r\nOrificeDia=3\r\ngastempkdiotag=T1\r\n")});
    EXPECT_THAT(KeysIn(rows, false), ElementsAre("Run1/OrificeDia", "Run1/New"));
    EXPECT_THAT(KeysIn(rows, true), ElementsAre("General/OrmStation", "FlowRuns/FlowAlgorithm",
                                                "FlowRuns/SystemUnits", "Run1/GasTempKDIOTag"));
}

TEST(Compare, HasTheCaptionsAndUnitsOfTheFormsOfEachSide) {
    const auto rows = Compare({FileOf("US", "[Run1]\r\nOrificeDia=2\r\nGasTempKDIOTag=T1\r\n")},
                              {FileOf("Practical-SI", "[Run1]\r\nOrificeDia=50\r\n")});
    const auto dia = std::ranges::find(rows, "OrificeDia", &ComparedRow::Key);
    ASSERT_NE(dia, rows.end());
    EXPECT_EQ(dia->Caption, "Orifice Plate Internal Dia.");
    EXPECT_EQ(ShownValue(dia->Left, dia->LeftUnit), "2 in");
    EXPECT_EQ(ShownValue(dia->Right, dia->RightUnit), "50 mm");
    const auto tag = std::ranges::find(rows, "GasTempKDIOTag", &ComparedRow::Key);
    ASSERT_NE(tag, rows.end());
    EXPECT_THAT(tag->Caption, testing::EndsWith(", Name"));
    EXPECT_EQ(ShownValue(tag->Right, tag->RightUnit), "(none)");
}

TEST(Compare, RunsOfOtherNumbersAreTheSameSection) {
    const std::string file = FileOf(
        "US",
        "[Run1]\r\nOrificeDia=2\r\nPipeMaterial=Steel\r\n[Run3]\r\nOrificeDia=3\r\nPipeMaterial=Steel\r\n");
    const auto rows = Compare({file, 1}, {file, 3});
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_FALSE(rows[0].IsEqual());
    EXPECT_TRUE(rows[1].IsEqual());
    EXPECT_EQ(rows[0].LeftUnit, "in") << "the units stand in another section";
}

} // namespace
} // namespace gfc::audit
