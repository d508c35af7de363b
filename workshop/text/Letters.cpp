#include "workshop/text/Letters.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

char Shifted(char c, char first, char last, int by) {
    return c >= first && c <= last ? static_cast<char>(c + by) : c;
}

char Small(char c) {
    return Shifted(c, 'A', 'Z', 'a' - 'A');
}

// The accented letters of Spanish and Portuguese in UTF-8, all of which begin with C3.
struct Accented {
    std::string_view Second; // the second byte of each
    char Plain;
};
constexpr Accented Letters[] = {
    {"\x80\x81\x82\x83\x84\xA0\xA1\xA2\xA3\xA4", 'a'},
    {"\x87\xA7", 'c'},
    {"\x88\x89\x8A\x8B\xA8\xA9\xAA\xAB", 'e'},
    {"\x8C\x8D\x8E\x8F\xAC\xAD\xAE\xAF", 'i'},
    {"\x91\xB1", 'n'},
    {"\x92\x93\x94\x95\x96\xB2\xB3\xB4\xB5\xB6", 'o'},
    {"\x99\x9A\x9B\x9C\xB9\xBA\xBB\xBC", 'u'},
};

char PlainOf(char second) {
    for (const Accented& letter : Letters) {
        if (letter.Second.find(second) != std::string_view::npos) {
            return letter.Plain;
        }
    }
    return ' ';
}

bool IsWordSign(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

} // namespace

std::string Folded(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), Small);
    return folded;
}

bool SameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return Small(left) == Small(right); });
}

std::string Upper(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return Shifted(c, 'a', 'z', 'A' - 'a'); });
    return upper;
}

std::string Plainly(std::string_view utf8) {
    constexpr char AccentFollows = '\xC3';
    std::string plain;
    bool gap = false;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const bool accented = utf8[at] == AccentFollows && at + 1 < utf8.size();
        const char sign = accented ? PlainOf(utf8[++at]) : Small(utf8[at]);
        if (IsWordSign(sign)) {
            plain += gap && !plain.empty() ? " " : "";
            plain += sign;
        }
        gap = !IsWordSign(sign);
    }
    return plain;
}

std::string OnOneLine(const std::string& text) {
    constexpr std::string_view Blanks = " \t\r\n";
    if (text.find_first_of(Blanks.substr(1)) == std::string::npos) {
        return text;
    }
    std::string line;
    for (const char c : text) {
        const bool blank = Blanks.find(c) != std::string_view::npos;
        if (!blank) {
            line += c;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    line.resize(line.find_last_not_of(' ') + 1);
    return line;
}

} // namespace gfc::workshop
