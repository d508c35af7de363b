#include "binding/Assignment.h"

#include <gtest/gtest.h>

using namespace gfc::binding;

TEST(Nodes, of_a_variable_stand_seven_by_seven_behind_the_root) {
    EXPECT_EQ(node::Variable(0), 2);
    EXPECT_EQ(node::AddressValue(0), 6);
    EXPECT_EQ(node::TypeValue(0), 7);
    EXPECT_EQ(node::NameValue(0), 8);
    EXPECT_EQ(node::Variable(21), 149);
    EXPECT_EQ(node::NameValue(21), 155);
}

TEST(Nodes, below_a_variable_stand_for_the_variable) {
    for (int position = 0; position < 22; ++position)
        for (int n = node::Variable(position); n <= node::NameValue(position); ++n)
            EXPECT_EQ(node::PositionOf(n), position);
}

TEST(Nodes, at_the_root_or_nowhere_stand_for_no_variable) {
    EXPECT_EQ(node::PositionOf(node::Root), -1);
    EXPECT_EQ(node::PositionOf(0), -1);
}

TEST(OfferListOf, goes_by_position_alone) {
    const TagCounts needed{.Float = 2, .Digital = 3, .Long = 1};
    const OfferList expected[] = {OfferList::Float,     OfferList::Float,     OfferList::Long,
                                  OfferList::AnalogDig, OfferList::AnalogDig, OfferList::AnalogDig};
    for (int position = 0; position < 6; ++position)
        EXPECT_EQ(OfferListOf(position, needed), expected[position]) << position;
    EXPECT_EQ(OfferListOf(99, needed), OfferList::AnalogDig);
    EXPECT_EQ(OfferListOf(0, {.Analog = 1}), OfferList::AnalogDig);
}

TEST(AutoAssignment, counts_rows_from_the_clicked_one_to_the_end) {
    EXPECT_EQ(RowsFrom(1, 22), 22);
    EXPECT_EQ(RowsFrom(3, 22), 20);
    EXPECT_EQ(RowsFrom(1, 0), 0);
    EXPECT_EQ(RowsFrom(5, 2), -2);
}

TEST(AutoAssignment, fits_with_exactly_as_many_rows_as_are_needed) {
    const TagCounts needed{.Float = 2, .Digital = 3, .Long = 1};
    EXPECT_TRUE(CanAutoAssign(needed, {.Float = 2, .Long = 1, .AnalogDig = 3}));
    EXPECT_FALSE(CanAutoAssign(needed, {.Float = 1, .Long = 1, .AnalogDig = 3}));
    EXPECT_FALSE(CanAutoAssign(needed, {.Float = 2, .Long = 0, .AnalogDig = 3}));
    EXPECT_FALSE(CanAutoAssign(needed, {.Float = 2, .Long = 1, .AnalogDig = 2}));
}

TEST(AutoAssignment, is_never_held_up_by_a_class_that_is_not_needed) {
    EXPECT_TRUE(CanAutoAssign({.Float = 4, .Analog = 1}, {.Float = 4, .Long = -7, .AnalogDig = 1}));
    EXPECT_TRUE(CanAutoAssign({.Float = 1}, {.Float = 1, .Long = 0, .AnalogDig = -1}));
}

TEST(AutoAssignment, names_each_needed_class_in_the_message_of_a_refusal) {
    EXPECT_EQ(AutoAssignShortage({.Float = 21, .Digital = 1}),
              "There must be at least:\r\n21 consecutive float    tags\r\n1 consecutive discrete tags\r\n");
    EXPECT_EQ(AutoAssignShortage({.Float = 4, .Analog = 1}),
              "There must be at least:\r\n4 consecutive float    tags\r\n1 consecutive analog   tags\r\n");
    EXPECT_EQ(AutoAssignShortage({.Float = 1, .Digital = 3, .Long = 1}),
              "There must be at least:\r\n1 consecutive float    tags\r\n3 consecutive discrete tags\r\n"
              "1 consecutive long     tags\r\n");
}
