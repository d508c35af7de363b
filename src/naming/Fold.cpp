#include "naming/TagName.h"
#include "services/Utf8.h"

namespace gfc::naming {

namespace {

// U+00C0 to U+00FF without their accents; a blank where there is no single letter for it.
constexpr std::string_view Plain = "AAAAAA CEEEEIIII NOOOOO OUUUUY  AAAAAA CEEEEIIII NOOOOO OUUUUY Y";

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

char LetterOf(char32_t code) {
    return code >= 0xC0 && code <= 0xFF ? Plain[code - 0xC0] : ' ';
}

} // namespace

std::string Fold(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        // Nearly all names are ASCII, and a list of fifty thousand is folded at once.
        if (static_cast<unsigned char>(text.front()) < 0x80) {
            folded.push_back(Upper(text.front()));
            text.remove_prefix(1);
            continue;
        }
        const auto character = services::FirstCharacter(text);
        const char letter = character.Valid ? LetterOf(character.Code) : ' ';
        if (letter == ' ')
            folded.append(text.substr(0, character.Length));
        else
            folded.push_back(letter);
        text.remove_prefix(character.Length);
    }
    return folded;
}

} // namespace gfc::naming
