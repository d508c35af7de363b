#include "services/CodePage.h"
#include "services/WesternPage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <random>

#ifdef _WIN32
#include "services/windows/MachinePage.h"
#endif

namespace gfc::services {
namespace {

// A page by hand: characters of bytes 80 to FF with "\0" where the page has none, and its pairs of letters.
struct Page {
    const char* Name;
    unsigned Number;
    std::u32string_view Characters;
    std::u32string_view Capitals;
    std::u32string_view Small;
};

void PrintTo(const Page& page, std::ostream* out) {
    *out << page.Name;
}

using namespace std::string_view_literals;

// clang-format off
const Page Pages[] = {
    {"CentralEurope", 1250,
     U"€\0‚\0„…†‡\0‰Š‹ŚŤŽŹ" U"\0‘’“”•–—\0™š›śťžź"
     U"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż" U"°±˛ł´µ¶·¸ąş»Ľ˝ľż"
     U"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎ" U"ĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
     U"ŕáâăäĺćçčéęëěíîď" U"đńňóôőö÷řůúűüýţ˙"sv,
     U"ŠŚŤŽŹŁĄŞŻĽŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢ"sv,
     U"šśťžźłąşżľŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ"sv},
    {"Cyrillic", 1251,
     U"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏ" U"ђ‘’“”•–—\0™љ›њќћџ"
     U"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї" U"°±Ііґµ¶·ё№є»јЅѕї"
     U"АБВГДЕЖЗИЙКЛМНОП" U"РСТУФХЦЧШЩЪЫЬЭЮЯ"
     U"абвгдежзийклмноп" U"рстуфхцчшщъыьэюя"sv,
     U"ЂЃЉЊЌЋЏЎЈҐЁЄЇІЅАБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"sv,
     U"ђѓљњќћџўјґёєїіѕабвгдежзийклмнопрстуфхцчшщъыьэюя"sv},
};
// clang-format on

CodePage Made(const Page& page) {
    CodePage::UpperHalf characters{};
    for (std::size_t place = 0; place < characters.size(); ++place) {
        const char32_t code = page.Characters[place];
        const auto capital = page.Capitals.find(code);
        characters.at(place) = {code, capital < page.Capitals.size() ? page.Small[capital] : code};
    }
    return CodePage(characters);
}

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

class CodePages : public testing::TestWithParam<Page> {};
INSTANTIATE_TEST_SUITE_P(All, CodePages, testing::ValuesIn(Pages),
                         [](const auto& page) { return std::string(page.param.Name); });

TEST_P(CodePages, bring_every_byte_back) {
    const CodePage page = Made(GetParam());
    EXPECT_EQ(ToCodePage(FromCodePage(AllBytes(), page), page), AllBytes());
}

TEST_P(CodePages, give_their_characters) {
    const CodePage page = Made(GetParam());
    for (std::size_t place = 0; place < GetParam().Characters.size(); ++place)
        if (const char32_t code = GetParam().Characters[place]; code != 0) {
            EXPECT_EQ(page.CharacterOf(static_cast<char>(0x80 + place)), code) << std::hex << 0x80 + place;
        }
}

TEST_P(CodePages, pair_their_capitals_and_nothing_else) {
    const CodePage page = Made(GetParam());
    std::size_t changed = 0;
    for (const char byte : AllBytes())
        changed += page.Fold(byte) != static_cast<unsigned char>(byte);
    EXPECT_EQ(changed, 26 + GetParam().Capitals.size());
    for (std::size_t pair = 0; pair < GetParam().Capitals.size(); ++pair)
        EXPECT_EQ(page.Fold(GetParam().Capitals[pair]), GetParam().Small[pair]);
    EXPECT_EQ(page.Fold(U'流'), U'流');
}

#ifdef _WIN32
// As Windows converts and compares, which is what its other programs see.
TEST_P(CodePages, are_those_of_windows) {
    const CodePage made = Made(GetParam());
    const CodePage page = PageOfNumber(GetParam().Number);
    for (std::size_t place = 0; place < GetParam().Characters.size(); ++place) {
        const char byte = static_cast<char>(0x80 + place);
        if (GetParam().Characters[place] == 0)
            continue;
        EXPECT_EQ(page.CharacterOf(byte), made.CharacterOf(byte)) << std::hex << 0x80 + place;
        EXPECT_EQ(page.Fold(byte), made.Fold(byte)) << std::hex << 0x80 + place;
    }
    EXPECT_EQ(ToCodePage(FromCodePage(AllBytes(), page), page), AllBytes());
}

TEST(CodePage, of_western_europe_is_that_of_windows) {
    constexpr CodePage made = MakeWesternPage();
    const CodePage page = PageOfNumber(1252);
    for (const char byte : AllBytes()) {
        EXPECT_EQ(page.CharacterOf(byte), made.CharacterOf(byte)) << int(byte);
        EXPECT_EQ(page.Fold(byte), made.Fold(byte)) << int(byte);
    }
}

TEST(CodePage, of_several_bytes_for_a_character_is_not_taken) {
    for (const unsigned number : {932U, 65001U, 99999U})
        EXPECT_EQ(FromCodePage(AllBytes(), PageOfNumber(number)),
                  FromCodePage(AllBytes(), MakeWesternPage()));
}
#endif

TEST(CodePage, gives_each_byte_a_character_of_its_own_whatever_the_table) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 200; ++round) {
        // Few characters for many bytes, plain and missing ones among them.
        CodePage::UpperHalf characters{};
        for (auto& character : characters)
            character = {char32_t(random() % 300), char32_t(random() % 300)};
        const CodePage page(characters);
        ASSERT_EQ(ToCodePage(FromCodePage(AllBytes(), page), page), AllBytes());
        for (const char byte : AllBytes()) {
            const bool isPlain = static_cast<unsigned char>(byte) < 0x80;
            ASSERT_EQ(page.Fold(byte) < 0x80, isPlain) << "no letter is paired with one of the other half";
        }
    }
}

} // namespace
} // namespace gfc::services
