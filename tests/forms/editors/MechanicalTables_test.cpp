#include "forms/editors/MechanicalTables.h"

#include <gtest/gtest.h>

namespace gfc::forms {

TEST(MechanicalTables, find_each_material_and_take_the_rest_for_other) {
    EXPECT_EQ(PositionOf(OrificeMaterials, "CS"), 0);
    EXPECT_EQ(PositionOf(OrificeMaterials, "1Cr18Ni9Ti"), 3);
    EXPECT_EQ(PositionOf(OrificeMaterials, "Other"), 4);
    EXPECT_EQ(PositionOf(OrificeMaterials, "cs"), 4); // words are compared exactly
    EXPECT_EQ(PositionOf(PipeMaterials, "MONEL"), 2);
    EXPECT_EQ(PositionOf(PipeMaterials, "1Cr18Ni9Ti"), 3);
    EXPECT_EQ(PositionOf(PipeMaterials, ""), 3);
}

TEST(MechanicalTables, store_the_word_of_what_is_shown) {
    EXPECT_EQ(StoredMaterial(OrificeMaterials, "SS - Stainless Steel"), "SS");
    EXPECT_EQ(StoredMaterial(OrificeMaterials, "1Cr18Ni9Ti"), "1Cr18Ni9Ti");
    EXPECT_EQ(StoredMaterial(PipeMaterials, "Other"), "Other");
    EXPECT_EQ(StoredMaterial(PipeMaterials, "1Cr18Ni9Ti"), "Other");
}

TEST(MechanicalTables, count_an_unknown_unit_system_as_the_last) {
    EXPECT_EQ(MechanicalSystemOf("").Name, "Practical-SI");
    EXPECT_EQ(MechanicalSystemOf("us").Name, "Practical-SI");
    EXPECT_EQ(MechanicalSystemOf("Metric-degF").Name, "Metric-degF");
}

} // namespace gfc::forms
