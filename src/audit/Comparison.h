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

// The units that the forms show the values of one configuration with.
class ShownUnits {
public:
    // bytes: the file. One that does not say its units is shown in the first ones, as in the forms.
    explicit ShownUnits(const std::string& bytes);
    // Empty for a text without a unit, and for an empty value.
    [[nodiscard]] std::string Of(const std::string& key, const std::optional<std::string>& value) const;
    // Whether values under the key have one in any configuration.
    [[nodiscard]] static bool Has(const std::string& key);

private:
    std::string systemUnits_;
    std::string algorithm_;
};

// "12.50 in", "(none)" for a key that is not there; an empty value is the empty text.
[[nodiscard]] std::string ShownValue(const std::optional<std::string>& value, const std::string& unit);

} // namespace gfc::audit
