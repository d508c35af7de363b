#include "services/Funciones_III.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace gfc::services {
namespace {

// The point stands among the digits: it counts as one at the key filter.
constexpr std::u32string_view EntryKeys = U"0123456789.";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
    const auto start = text.find_first_not_of(" \t\n");
    return start == std::string_view::npos ? std::string_view{} : text.substr(start);
}

// A number too large for the machine counts as the largest, one too small as 0.
double OutOfRangeValue(std::string_view number) {
    const auto exponent = number.find_first_of("eE");
    const bool large =
        exponent != std::string_view::npos
            ? number[exponent + 1] != '-'
            : number.substr(0, number.find('.')).find_first_not_of('0') != std::string_view::npos;
    return large ? std::numeric_limits<double>::max() : 0;
}

// A fraction counts as zero if its whole leading run of digits is zeros; none at all is zero too.
bool IsZeroFraction(std::string_view fraction) {
    const auto end = std::find_if_not(fraction.begin(), fraction.end(), IsDigit);
    return std::all_of(fraction.begin(), end, [](char c) { return c == '0'; });
}

} // namespace

bool KeyAllowed(char32_t key) {
    return key == BackspaceKey || EntryKeys.find(key) != EntryKeys.npos;
}

bool IsUserId(std::string_view text) {
    const auto stands = [](char c) { return c == '.' || IsDigit(c); };
    return !text.empty() && std::ranges::all_of(text, stands);
}

bool SingleDecimalPoint(std::string_view text) {
    return std::count(text.begin(), text.end(), '.') <= 1;
}

bool WithinRange(std::string_view text, std::int32_t maximum) {
    const auto found = text.find('.');
    const std::size_t point = found == std::string_view::npos ? 0 : found + 1;
    if (point == 0)
        return ValueOf(text) <= maximum;
    // Deliberate: up to two digits before the point pass whatever they are, and the maximum has no effect.
    if (point <= 3)
        return true;
    if (point > 4)
        return false;
    // Deliberate: three digits before the point stand only with a zero fraction, so that 050.5 fails.
    return ValueOf(text.substr(0, 3)) <= maximum && IsZeroFraction(text.substr(point));
}

double ValueOf(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    // from_chars knows words such as "inf" and a sign of its own, which are no numbers here.
    if (text.empty() || !(IsDigit(text.front()) || text.front() == '.'))
        return 0;
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        value = OutOfRangeValue(text.substr(0, static_cast<std::size_t>(end - text.data())));
    return negative ? -value : value;
}

std::string RangeMessage(std::string_view range) {
    return std::string(RangeMessageStart) += range;
}

} // namespace gfc::services
