#include "services/CodePage.h"
#include "services/Utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace gfc::services;

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

TEST(CodePage, brings_every_byte_back) {
    const auto bytes = ToCodePage(FromCodePage(AllBytes()));
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, AllBytes());
}

TEST(CodePage, is_assigned_over_what_was_there) {
    std::string text = "what was there";
    AssignFromCodePage(text, "plain");
    EXPECT_EQ(text, "plain");
    AssignFromCodePage(text, "N\xF6rd");
    EXPECT_EQ(text, "Nörd");
    AssignFromCodePage(text, "");
    EXPECT_EQ(text, "");
}

TEST(CodePage, gives_the_characters_of_the_upper_controls) {
    EXPECT_EQ(FromCodePage("\x80"), "€");
    EXPECT_EQ(FromCodePage("\x8A\x8C\x8E\x9A\x9C\x9E\x9F"), "ŠŒŽšœžŸ");
    EXPECT_EQ(FromCodePage("\x82\x83\x84\x85\x86\x87\x88\x89\x8B"), "‚ƒ„…†‡ˆ‰‹");
    EXPECT_EQ(FromCodePage("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9B"), "‘’“”•–—˜™›");
    EXPECT_EQ(FromCodePage("\xB0\xB5\xF1\xFF"), "°µñÿ");
}

TEST(CodePage, gives_the_undefined_bytes_their_own_numbers) {
    EXPECT_EQ(FromCodePage("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(ToCodePage("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePage, refuses_a_character_that_it_lacks) {
    EXPECT_FALSE(CodePageHolds("流量"));
    EXPECT_FALSE(CodePageHolds("FT-101 Ω"));
    EXPECT_FALSE(CodePageHolds("\u0080")) << "byte 80 is the euro sign";
    EXPECT_FALSE(CodePageHolds("\U0001F600"));
    EXPECT_TRUE(CodePageHolds("Caudal_Ñ €"));
    EXPECT_TRUE(CodePageHolds(""));
}

TEST(CodePage, refuses_what_is_no_utf8) {
    EXPECT_FALSE(ToCodePage("\xFF"));
    EXPECT_FALSE(ToCodePage("a\xC3"));
    EXPECT_FALSE(ToCodePage("\x80"));
    EXPECT_FALSE(ToCodePage("\xC1\x81")) << "an overlong A";
    EXPECT_FALSE(ToCodePage("\xED\xA0\x80")) << "half of a surrogate pair";
    EXPECT_FALSE(ToCodePage("\xF4\x90\x80\x80")) << "beyond the last character";
    EXPECT_FALSE(ToCodePage("\xC3("));
}

TEST(CodePage, keeps_a_nul_in_the_middle) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(FromCodePage(text), text);
    EXPECT_EQ(ToCodePage(text), text);
}

TEST(IsPlain, finds_one_byte_of_the_upper_half_wherever_it_stands) {
    EXPECT_TRUE(IsPlain(""));
    for (std::size_t length = 1; length < 30; ++length) {
        std::string text(length, '\x7F');
        EXPECT_TRUE(IsPlain(text));
        for (char& byte : text) {
            byte = '\x80';
            EXPECT_FALSE(IsPlain(text)) << length;
            byte = '\x7F';
        }
    }
}

TEST(CodePageFold, pairs_capitals_with_small_letters) {
    EXPECT_TRUE(EqualBytesNoCase("ABCXYZ", "abcxyz"));
    EXPECT_TRUE(EqualBytesNoCase("\x8A\x8C\x8E\x9F", "\x9A\x9C\x9E\xFF"));
    for (int byte = 0xC0; byte <= 0xDE; ++byte)
        EXPECT_EQ(FoldByte(static_cast<char>(byte)), byte == 0xD7 ? 0xD7 : byte + 0x20);
}

TEST(CodePageFold, leaves_all_others_apart) {
    EXPECT_FALSE(EqualBytesNoCase("\xD7", "\xF7")) << "times and divided are no pair of letters";
    EXPECT_FALSE(EqualBytesNoCase("\xDF", "\xFF"));
    EXPECT_FALSE(EqualBytesNoCase("@[", "`{"));
    EXPECT_FALSE(EqualBytesNoCase("a", "ab"));
    EXPECT_TRUE(EqualBytesNoCase("", ""));
    int changed = 0;
    for (int byte = 0; byte < 256; ++byte)
        changed += FoldByte(static_cast<char>(byte)) != byte;
    EXPECT_EQ(changed, 26 + 30 + 4);
}

TEST(Utf8, writes_what_it_reads) {
    for (const char32_t code :
         {U'\0', U'\x7F', U'\x80', U'\u07FF', U'\u0800', U'\uFFFD', U'\U00010000', U'\U0010FFFF'}) {
        std::string text;
        AppendUtf8(text, code);
        const auto character = FirstCharacter(text);
        EXPECT_TRUE(character.Valid);
        EXPECT_EQ(character.Code, code);
        EXPECT_EQ(character.Length, text.size());
    }
}

} // namespace
