#include "plan/Numbers.h"
#include "plan/Proposer.h"

#include <gtest/gtest.h>

namespace gfc::plan {
namespace {

TEST(Numbers, AreTakenOutOfANameAndTheRestIsItsFrame) {
    const NumberedName name = NumbersOf("pt-101A_2");
    EXPECT_EQ(name.Frame, NumbersOf("PT-7a_33").Frame);
    EXPECT_NE(name.Frame, NumbersOf("PT-101_2").Frame);
    EXPECT_EQ(name.Numbers, (std::vector<std::int64_t>{101, 2}));
    EXPECT_EQ(TextOf(name, NumbersOf("PT-201A_2")), "101 is 201 here");
    // More digits than any loop has stay letters.
    EXPECT_TRUE(NumbersOf("PT-1234567890123456").Numbers.empty());
}

TEST(Numbers, TheShiftOfMostIsTheShift) {
    ShiftVotes votes;
    EXPECT_FALSE(votes.Best(1));
    for (const char* name : {"PT-101", "TT-101", "FT-101"})
        votes.Add(ShiftBetween(NumbersOf(name), NumbersOf(std::string(name, 3) + "201")), false);
    votes.Add(ShiftBetween(NumbersOf("PT-101"), NumbersOf("PT-102")), false);
    votes.Add({0}, true);
    EXPECT_TRUE(votes.IsBetterThanNone(1));
    EXPECT_EQ(votes.Best(1), Shift{100});
    EXPECT_TRUE(votes.IsClear({100}));
    EXPECT_FALSE(votes.IsClear({1}));
    EXPECT_FALSE(votes.Best(2));
    // As many names: the registers decide, and else the lower one, which is not sure then.
    for (int i = 0; i < 3; ++i)
        votes.Add({50}, false);
    EXPECT_EQ(votes.Best(1), Shift{50});
    EXPECT_FALSE(votes.IsClear({50}));
    for (int i = 0; i < 3; ++i)
        votes.Add({100}, true);
    votes.Add({50}, false);
    EXPECT_EQ(votes.Best(1), Shift{100});
    EXPECT_TRUE(votes.IsClear({100}));
}

TEST(StationNames, AreReplacedWhereTheyStandAsAWord) {
    EXPECT_EQ(WithOtherStation("North_PT-1", "North", "South"), "SOUTH_PT-1");
    EXPECT_EQ(WithOtherStation("PT-1.NORTH", "North", "Añelo"), "PT-1.ANELO");
    EXPECT_EQ(WithOtherStation("Northern_PT-1", "North", "South"), "");
    EXPECT_EQ(WithOtherStation("PT-1", "North", "South"), "");
    EXPECT_EQ(WithOtherStation("PT-1", "", "South"), "");
}

} // namespace
} // namespace gfc::plan
