#include "workshop/import/SavedMapping.h"
#include "workshop/store/Failure.h"

#include <gmock/gmock.h>

namespace gfc::workshop {
namespace {

using testing::HasSubstr;

std::string RefusalOf(const std::string& lines) {
    try {
        (void)WishesFrom(lines, "kept.mapping");
        return {};
    } catch (const Failure& failure) {
        return failure.what();
    }
}

// Spreadsheets break long titles.
TEST(SavedMapping, keeps_titles_of_several_lines_with_signs_of_any_kind) {
    TableWishes wishes;
    for (const char* title : {"Tag\nName", "\"\n\"=", "a\r\nb\"\n\n", "map=\"x"})
        wishes.Columns.push_back({title, "Tag"});
    wishes.ModuleTypes = {{"M\n1", "Virtual\nFI"}, {"M2", "\n"}};
    wishes.Station = "\"North";
    wishes.Direction = "in";
    EXPECT_EQ(WishesFrom(LinesOf(wishes), "kept.mapping"), wishes);
}

TEST(SavedMapping, refuses_by_the_line_as_an_editor_counts) {
    EXPECT_THAT(RefusalOf("map=\"Tag\nName\"=\"Tag\"\ndirection=up\n"),
                HasSubstr("line 3, \"direction=up\""));
    EXPECT_THAT(RefusalOf("direction=in\nmap=\"Tag\nName\n"), HasSubstr("map: \"\"Tag"));
}

} // namespace
} // namespace gfc::workshop
