#include "project/TagText.h"

#include <gtest/gtest.h>

#include <vector>

namespace gfc::project {
namespace {

TEST(TagText, is_the_text_that_it_was_given) {
    const TagText text = "PT-101";
    EXPECT_EQ(text, "PT-101");
    EXPECT_EQ(text, std::string("PT-101"));
    EXPECT_EQ(std::string(text), "PT-101");
    EXPECT_EQ(text.View().size(), 6U);
    EXPECT_NE(text, "PT-10");
    EXPECT_EQ(TagText(std::string_view("a\0b", 3)).View().size(), 3U)
        << "a NUL is a character like any other";
}

TEST(TagText, is_empty_unless_given) {
    EXPECT_EQ(TagText(), "");
    EXPECT_EQ(TagText(), TagText(""));
    EXPECT_EQ(TagTexts().Keep({}), TagText());
    EXPECT_NE(TagText(), TagText("A"));
}

TEST(TagText, is_equal_whether_shared_or_not) {
    const TagText one = "VF0";
    const TagText copy = one;
    EXPECT_EQ(copy, one);
    EXPECT_EQ(TagTexts().Keep("VF0"), one);
}

TEST(TagText, changes_for_nobody_else) {
    TagText one = "FX";
    const TagText copy = one;
    one = "FY";
    EXPECT_EQ(one, "FY");
    EXPECT_EQ(copy, "FX");
}

TEST(TagTexts, keep_more_than_one_piece_of_memory_holds) {
    std::vector<TagText> kept;
    { // the texts outlive what kept them
        TagTexts texts;
        for (int i = 0; i < 10000; ++i)
            kept.push_back(texts.Keep("Tag_" + std::to_string(i)));
        kept.push_back(texts.Keep(std::string(1'000'000, 'x')));
        kept.push_back(texts.Keep("after"));
    }
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(kept[static_cast<std::size_t>(i)], "Tag_" + std::to_string(i));
    EXPECT_EQ(kept[10000], std::string(1'000'000, 'x'));
    EXPECT_EQ(kept[10001], "after");
}

} // namespace
} // namespace gfc::project
