#pragma once

#include "services/CodePage.h"

namespace gfc::services {
namespace detail {

// clang-format off
// The characters of bytes 80 to 9F; all others of the upper half have the number of their character.
inline constexpr std::array<char32_t, 32> WesternControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

// Of a character of the page, capital or not.
constexpr char32_t SmallWestern(char32_t code) {
    if (code >= 0xC0 && code <= 0xDE && code != 0xD7) // D7 is the multiplication sign
        return code + 0x20;
    if (code == 0x0160 || code == 0x0152 || code == 0x017D)
        return code + 1;
    return code == 0x0178 ? 0xFF : code;
}

} // namespace detail

// Windows-1252, for Western Europe and the Americas. The five bytes that it leaves undefined (81 8D 8F 90 9D)
// stand for U+0081 and so on, as they do for Windows.
[[nodiscard]] constexpr CodePage MakeWesternPage() {
    CodePage::UpperHalf characters{};
    for (unsigned place = 0; place < characters.size(); ++place) {
        const char32_t code =
            place < detail::WesternControls.size() ? detail::WesternControls[place] : 0x80 + place;
        characters[place] = {code, detail::SmallWestern(code)};
    }
    return CodePage(characters);
}

} // namespace gfc::services
