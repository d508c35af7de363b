#include "services/CodePage.h"
#include "services/Text.h"
#include "services/Utf8.h"
#include "services/Utilidades.h"

#include <gtest/gtest.h>

namespace {

using namespace gfc::services;

TEST(EqualNoCase, ignores_the_case_of_all_letters_of_the_page) {
    EXPECT_TRUE(EqualNoCase("Yes", "yES"));
    EXPECT_TRUE(EqualNoCase("CAUDAL_Ñ", "caudal_ñ"));
    EXPECT_TRUE(EqualNoCase("ŠŒŽŸÀÞ", "šœžÿàþ"));
    EXPECT_FALSE(EqualNoCase("×", "÷"));
    EXPECT_FALSE(EqualNoCase("yes", "ye"));
    EXPECT_FALSE(EqualNoCase("ye", "yes"));
    EXPECT_TRUE(EqualNoCase("", ""));
}

TEST(EqualNoCase, compares_characters_outside_the_page_as_they_are) {
    EXPECT_TRUE(EqualNoCase("Ω流", "Ω流"));
    EXPECT_FALSE(EqualNoCase("Ω", "ω"));
}

TEST(EqualNoCase, compares_broken_bytes_as_they_are) {
    EXPECT_TRUE(EqualNoCase("A\xFF", "a\xFF"));
    EXPECT_FALSE(EqualNoCase("\xC0", "\xE0"));
    EXPECT_FALSE(EqualNoCase("\xC0", "À"));
}

TEST(EqualNoCase, folds_as_the_files_do) {
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            const std::string left(1, static_cast<char>(a));
            const std::string right(1, static_cast<char>(b));
            ASSERT_EQ(EqualNoCase(FromCodePage(left), FromCodePage(right)), EqualBytesNoCase(left, right))
                << a << ' ' << b;
        }
}

TEST(FoldCase, is_the_same_for_texts_that_differ_in_case_alone) {
    EXPECT_EQ(FoldCase("TÉmP Ÿ"), FoldCase("tÉMp ÿ"));
    EXPECT_NE(FoldCase("Ж"), FoldCase("ж")) << "outside the page";
    EXPECT_NE(FoldCase("\xE9"), FoldCase("é")) << "a byte that is no character";
    EXPECT_EQ(FoldCase(""), "");
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            const std::string left(FromCodePage(std::string(1, static_cast<char>(a))));
            const std::string right(FromCodePage(std::string(1, static_cast<char>(b))));
            ASSERT_EQ(FoldCase(left) == FoldCase(right), EqualNoCase(left, right)) << a << ' ' << b;
        }
}

TEST(TrimFixedString, cuts_at_the_first_nul) {
    EXPECT_EQ(TrimFixedString(std::string("North\0\0South\0", 13)), "North");
    EXPECT_EQ(TrimFixedString(std::string("\0x", 2)), "");
}

TEST(TrimFixedString, leaves_a_text_without_nul_as_it_is) {
    EXPECT_EQ(TrimFixedString("North "), "North ");
    EXPECT_EQ(TrimFixedString(""), "");
}

TEST(FirstWord, cuts_at_the_first_blank_and_at_the_first_nul) {
    EXPECT_EQ(FirstWord("Virtual Module"), "Virtual");
    EXPECT_EQ(FirstWord(std::string("Virtual\0 Module", 15)), "Virtual");
    EXPECT_EQ(FirstWord(std::string("AI-8\0\0\0", 7)), "AI-8");
    EXPECT_EQ(FirstWord(" Virtual"), "");
    EXPECT_EQ(FirstWord("Virtual\tModule"), "Virtual\tModule");
    EXPECT_EQ(FirstWord(""), "");
}

} // namespace
