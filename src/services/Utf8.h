#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gfc::services {

// What stands at one place of a text: a character and how many bytes it takes. Bytes that are no valid UTF-8
// (overlong forms and surrogates included) give Valid false, the byte's value and length 1.
struct Utf8Character {
    char32_t Code = 0;
    std::size_t Length = 0;
    bool Valid = false;
};

// The text must not be empty.
[[nodiscard]] Utf8Character FirstCharacter(std::string_view utf8);

// The code must be a Unicode scalar value.
void AppendUtf8(std::string& utf8, char32_t code);

} // namespace gfc::services
