#include "services/TypedNumber.h"

#include "services/Funciones_III.h"

#include <algorithm>
#include <array>

namespace gfc::services {

namespace {

constexpr std::string_view PointAlready = "There is a decimal point already.";
constexpr std::string_view NumbersOnly = "Only digits and a decimal point can be entered here.";

bool HasPoint(std::string_view text) {
    return text.find('.') != std::string_view::npos;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view WithoutBlanksAround(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

// What is written between the thousands: the two that some write for the point, blanks, apostrophes. In
// UTF-8, the narrow and the non-breaking blank and the typographic apostrophe among them.
constexpr std::array<std::string_view, 8> Marks = {
    ",", ".", " ", "'", "_", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x99"};

// Three digits stand behind the mark, and no fourth.
bool IsThousand(std::string_view behind) {
    const auto digits = std::ranges::find_if_not(behind, IsDigit) - behind.begin();
    return digits == 3;
}

// One to three digits that do not begin with a zero, and then a mark and three more: whatever follows, it may
// be a thousand.
bool MayHaveThousands(std::string_view text) {
    const auto leading = static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
    if (leading < 1 || leading > 3 || text.front() == '0')
        return false;
    text.remove_prefix(leading);
    return std::ranges::any_of(Marks, [&](std::string_view mark) {
        return text.starts_with(mark) && IsThousand(text.substr(mark.size()));
    });
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t longest = 40; // a bubble is small
    return text.size() > longest ? "the text" : "\"" + std::string(text) + "\"";
}

// A point alone is what the file has: "14.696" is no fourteen thousand here.
bool HasThousands(std::string_view text) {
    const bool plain = std::ranges::all_of(text, [](char c) { return IsDigit(c) || c == '.'; });
    const bool onePoint = std::ranges::count(text, '.') <= 1;
    return !(plain && onePoint) && MayHaveThousands(text);
}

} // namespace

TypedKey InsteadOf(char32_t key, std::string_view besides) {
    constexpr char32_t firstPrintable = 32;
    if (key == U',')
        return HasPoint(besides) ? TypedKey{0, std::string(PointAlready)} : TypedKey{U'.', {}};
    return key < firstPrintable ? TypedKey{} : TypedKey{0, std::string(NumbersOnly)};
}

PastedNumber NumberPasted(std::string_view pasted, std::string_view besides) {
    const std::string_view text = WithoutBlanksAround(pasted);
    if (HasThousands(text))
        return {{}, "Not pasted: " + Quoted(text) + " may have marks between the thousands. Please type it."};
    std::string number(text);
    if (!HasPoint(number) && std::ranges::count(number, ',') == 1)
        std::ranges::replace(number, ',', '.');
    if (!std::ranges::all_of(number, [](char c) { return IsDigit(c) || c == '.'; }))
        return {{}, "Not pasted: " + Quoted(text) + " is no number. " + std::string(NumbersOnly)};
    if (std::ranges::count(number, '.') > (HasPoint(besides) ? 0 : 1))
        return {{}, "Not pasted: " + std::string(PointAlready)};
    return {number, {}};
}

} // namespace gfc::services
