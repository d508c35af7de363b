#pragma once

#include <optional>
#include <string>
#include <vector>

// Two configurations side by side, key by key, with the words of the summaries beside the keys.
namespace gfc::audit {

// What is compared: the bytes of a configuration file, or those of one of its runs.
struct Side {
    std::string Bytes;
    int Run = 0; // 1 to 5; 0 for the whole file
};

struct ComparedRow {
    std::string Section; // of the left side, or of the right one where the left side lacks the key
    std::string Key;
    std::string Caption;             // as the summaries have it: "Pipe Internal Dia."
    std::string LeftUnit, RightUnit; // as the forms of that side show it; empty for a text without one
    std::optional<std::string> Left; // the values, UTF-8; nothing where the side lacks the key
    std::optional<std::string> Right;

    [[nodiscard]] bool IsEqual() const { return Left == Right; }
};

// All keys of both sides, those of the left one in its order and each section's others behind them. A run is
// compared with a run of any number: their sections count as the same one. Two runs of different numbers
// differ in nothing that only says which run it is.
[[nodiscard]] std::vector<ComparedRow> Compare(const Side& left, const Side& right);

// What the summaries call the value or the part of a binding that stands under the key; the key itself where
// no summary shows it.
[[nodiscard]] std::string CaptionOf(const std::string& key);

// "12.50 in", "(none)" for a key that is not there; an empty value is the empty text.
[[nodiscard]] std::string ShownValue(const std::optional<std::string>& value, const std::string& unit);

} // namespace gfc::audit
