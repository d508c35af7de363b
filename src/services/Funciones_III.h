#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The entry rules of the numeric fields. All numbers stay text: these look at a text and never change it.
namespace gfc::services {

inline constexpr char32_t BackspaceKey = 8;

// True for Backspace, the ten digits and the point. The caller drops the key press on false.
[[nodiscard]] bool KeyAllowed(char32_t key);

// True for what can be typed as a user id: digits and points, one of them at least.
[[nodiscard]] bool IsUserId(std::string_view text);
inline constexpr std::string_view UserIdRule = "A user ID has digits and points only.";

// True if the text holds at most one point. An empty text passes, and so do letters.
[[nodiscard]] bool SingleDecimalPoint(std::string_view text);

// True if the text passes as a value from 0 to the maximum, which is meant to be 100: the test goes by the
// position of the first point and lets every text with at most two digits before it pass. An empty text
// passes.
[[nodiscard]] bool WithinRange(std::string_view text, std::int32_t maximum);

// The number at the start of the text, blanks before it skipped; it ends at the first character that is no
// part of a number. 0 for an empty text and one that starts with no number. The same on every machine,
// whatever its locale.
[[nodiscard]] double ValueOf(std::string_view text);

// What the box of a failed check says; the box itself puts EntryErrorPrefix before every message.
inline constexpr std::string_view EntryErrorPrefix = "Error: ";
inline constexpr std::string_view IncorrectValueTitle = "Incorrect value";
inline constexpr std::string_view FormatMessage =
    "Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";
inline constexpr std::string_view RangeMessageStart = "The range should be:";
inline constexpr std::string_view PercentRange = " [0-100]%";
inline constexpr std::int32_t PercentMaximum = 100;

// The range box's message for a range text such as PercentRange, the two joined without anything between.
[[nodiscard]] std::string RangeMessage(std::string_view range);

} // namespace gfc::services
