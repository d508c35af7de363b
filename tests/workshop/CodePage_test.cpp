#include "workshop/text/CodePage.h"
#include "workshop/text/Paths.h"

#include <gtest/gtest.h>

namespace gfc::workshop {

TEST(CodePage, maps_letters_and_signs_to_one_byte_each) {
    EXPECT_EQ(ToCodePage("Caudal_Ñ ºC €"), "Caudal_\xD1 \xBA"
                                           "C \x80");
    EXPECT_TRUE(FitsCodePage("Caudal_Ñ ºC €"));
}

TEST(CodePage, every_byte_comes_back_from_utf8) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        const std::string utf8 = FromCodePage(bytes);
        EXPECT_TRUE(FitsCodePage(utf8)) << byte;
        EXPECT_EQ(CharacterCount(utf8), 1U) << byte;
        EXPECT_EQ(ToCodePage(utf8), bytes) << byte;
    }
}

TEST(CodePage, refuses_other_scripts_and_malformed_utf8) {
    EXPECT_FALSE(FitsCodePage("ρ"));
    EXPECT_FALSE(FitsCodePage("压力"));
    EXPECT_FALSE(FitsCodePage("\xD1"));             // a lone byte of the code page
    EXPECT_FALSE(FitsCodePage("\xC3"));             // cut short
    EXPECT_FALSE(FitsCodePage("\xC0\xAF"));         // overlong
    EXPECT_FALSE(FitsCodePage("\xED\xA0\x80"));     // surrogate
    EXPECT_FALSE(FitsCodePage("\xF4\x90\x80\x80")); // beyond the last character
    EXPECT_FALSE(FitsCodePage("\x80"));
}

TEST(CodePage, shows_what_it_does_not_hold_as_a_question_mark) {
    EXPECT_EQ(ToCodePage("a压b"), "a?b");
}

TEST(CodePage, fills_a_field_to_its_width_and_cuts_by_character) {
    char field[4] = {'x', 'x', 'x', 'x'};
    FillField(field, "Ñ");
    EXPECT_EQ(std::string(field, 4), std::string("\xD1\0\0\0", 4));
    FillField(field, "ÑÑÑÑÑ");
    EXPECT_EQ(std::string(field, 4), "\xD1\xD1\xD1\xD1");
}

TEST(CodePage, reads_a_field_to_its_first_nul_or_its_end) {
    const char closed[4] = {'a', '\0', 'b', '\0'};
    const char full[2] = {'\xD1', 'b'};
    EXPECT_EQ(FromField(closed), "a");
    EXPECT_EQ(FromField(full), "Ñb");
}

TEST(FileName, takes_plain_names_only) {
    for (const char* good : {"North", "Skid_Añelo", "North Gate 2", ".ini", "A.B"}) {
        EXPECT_TRUE(IsFileName(good)) << good;
    }
    for (const char* bad :
         {"", ".", "..", "a/b", "a\\b", "C:", "a*", "a?", "a\nb", " a", "a ", "a.", "<", "|", "\""}) {
        EXPECT_FALSE(IsFileName(bad)) << bad;
    }
}

} // namespace gfc::workshop
