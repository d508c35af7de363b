#include "forms/binding/TagFilter.h"
#include "naming/TagName.h"
#include "support/World.h"
#include "ui/Form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace gfc::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ListForm : ui::Form {
    explicit ListForm(ui::Screen& screen) : ui::Form(screen, "ListForm") {}
    ui::ListView List{*this, "List"};
};

struct TagFilterTest : testing::Test, World {
    ListForm Form{Program.Screen};
    // A module for each register.
    forms::TagFilter Filter{[](std::string_view, std::string_view address) {
        return std::string_view(address == "121" ? "CROMATÓGRAFO" : "IN");
    }};

    void Add(const std::string& name, const std::string& type = "FX", const std::string& address = "7") {
        Form.List.AddRow({"1", name, type, address});
    }
    std::vector<int> RowsWith(const std::string& typed) {
        Filter.SetWords(typed);
        return Filter.RowsOf(Form.List);
    }
};

TEST_F(TagFilterTest, TakesWordsInAnyOrderWithoutCaseAndAccents) {
    Add("Presión Línea 1");
    Add("Metano");
    Add("PRESION_LINEA_2");
    EXPECT_THAT(RowsWith("linea presion"), ElementsAre(1, 3));
    EXPECT_THAT(RowsWith("PRESIÓN 2"), ElementsAre(3));
    EXPECT_THAT(RowsWith("  "), ElementsAre(1, 2, 3));
    EXPECT_THAT(RowsWith("nothing"), IsEmpty());
}

TEST_F(TagFilterTest, LooksAtModuleTypeAndRegisterButNotAtTheNumber) {
    Add("A", "FX", "120");
    Add("B", "FY", "121");
    EXPECT_THAT(RowsWith("cromatografo"), ElementsAre(2));
    EXPECT_THAT(RowsWith("fy"), ElementsAre(2));
    EXPECT_THAT(RowsWith("120"), ElementsAre(1));
    EXPECT_THAT(RowsWith("1 fx"), ElementsAre(1));
}

TEST_F(TagFilterTest, FollowsTheChangesThatItIsToldOf) {
    Add("A", "FX", "1");
    Add("B", "FX", "121");
    Add("C", "FX", "3");
    EXPECT_THAT(RowsWith("fx"), ElementsAre(1, 2, 3));
    Form.List.RemoveRows(1, 1);
    Filter.RowsChanged(Form.List, 1, 1, {});
    EXPECT_THAT(RowsWith("cromat"), ElementsAre(1));
    // A row may be nothing but its number.
    Form.List.InsertRows(2, {{"2", "D", "LX", "4"}, {"3"}});
    Filter.RowsChanged(Form.List, 2, 0, {{"D", "LX", "4"}, {}});
    EXPECT_THAT(RowsWith("d"), ElementsAre(2));
    EXPECT_THAT(RowsWith("c 3"), ElementsAre(4));
    EXPECT_THAT(RowsWith(""), ElementsAre(1, 2, 3, 4));
}

// The plain account: a row is shown exactly if each word stands somewhere in what is folded of it.
TEST_F(TagFilterTest, HoldsForAnyWords) {
    constexpr unsigned Seed = 97;
    std::mt19937 random(Seed);
    const std::string letters = "aBé1_ ";
    const auto any = [&](unsigned most) {
        std::string text;
        for (auto length = random() % (most + 1); length > 0; --length)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int row = 0; row < 200; ++row)
        Add(any(10), "FX", std::to_string(random() % 100 + 50));
    for (int round = 0; round < 200; ++round) {
        const std::string typed = any(6);
        const auto rows = RowsWith(typed);
        for (int row = 1; row <= Form.List.Count(); ++row) {
            const std::string text =
                naming::Fold(Form.List.Cell(row, 1) + " FX " + Form.List.Cell(row, 3) +
                             (Form.List.Cell(row, 3) == "121" ? " CROMATÓGRAFO" : " IN"));
            bool all = true;
            std::istringstream words(naming::Fold(typed));
            for (std::string word; words >> word;)
                all = all && text.find(word) != std::string::npos;
            EXPECT_EQ(std::ranges::find(rows, row) != rows.end(), all) << "seed " << Seed << ": " << typed;
        }
    }
}

TEST_F(TagFilterTest, AListKnowsWhichRowsItShows) {
    for (int row = 1; row <= 5; ++row)
        Add("T" + std::to_string(row));
    Form.List.ShowRows({2, 4});
    EXPECT_EQ(Form.List.ShownCount(), 2);
    EXPECT_EQ(Form.List.RowAtPlace(2), 4);
    EXPECT_EQ(Form.List.RowAtPlace(3), 0);
    EXPECT_EQ(Form.List.PlaceOfRow(4), 2);
    EXPECT_EQ(Form.List.PlaceOfRow(3), 0);
    EXPECT_EQ(Form.List.ShownFrom(3), 4);
    EXPECT_EQ(Form.List.ShownFrom(5), 0);
    Form.List.ShowAllRows();
    EXPECT_EQ(Form.List.PlaceOfRow(5), 5);
    EXPECT_EQ(Form.List.ShownFrom(6), 0);
}

} // namespace
} // namespace gfc::test
