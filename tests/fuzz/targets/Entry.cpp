#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "services/CodePage.h"
#include "services/Funciones_III.h"
#include "services/Text.h"
#include "services/Utf8.h"

#include <algorithm>
#include <cmath>

// Any text in a numeric field, and any text on its way between the memory and a file.
namespace gfc::fuzz {

namespace {

void CheckNumber(std::string_view text) {
    const auto points = std::ranges::count(text, '.');
    Require(services::SingleDecimalPoint(text) == (points <= 1), "one point passes, two do not");
    Require(!std::isnan(services::ValueOf(text)), "every text has a value");
    const std::size_t digits = std::min(text.find('.'), text.size());
    Require(digits > 2 || services::WithinRange(text, services::PercentMaximum),
            "what is short before its point passes");
}

void CheckCodePage(std::string_view text) {
    const auto back = services::ToCodePage(services::FromCodePage(text));
    Require(back == text, "any bytes come back from memory as they were");
    const auto bytes = services::ToCodePage(text);
    Require(bytes.has_value() == services::CodePageHolds(text), "both say alike what the page holds");
    Require(!bytes || services::FromCodePage(*bytes) == text, "what the page holds comes back");
}

void CheckUtf8(std::string_view text) {
    std::string again;
    while (!text.empty()) {
        const auto character = services::FirstCharacter(text);
        Require(character.Length >= 1 && character.Length <= text.size(), "a character is part of the text");
        again.clear();
        if (character.Valid)
            services::AppendUtf8(again, character.Code);
        Require(!character.Valid || again == text.substr(0, character.Length), "a character has one form");
        text.remove_prefix(character.Length);
    }
}

} // namespace

void Entry(std::string_view bytes) {
    Input input(bytes);
    const std::string_view text = input.Text(40);
    const std::string_view other = input.Text(40);
    CheckNumber(text);
    CheckCodePage(text);
    CheckUtf8(text);
    Require(services::EqualNoCase(text, other) == (services::FoldCase(text) == services::FoldCase(other)),
            "two texts are alike exactly if their keys are");
    (void)services::KeyAllowed(static_cast<char32_t>(input.Number()));
}

} // namespace gfc::fuzz
