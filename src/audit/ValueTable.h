#pragma once

#include "audit/Finding.h"
#include "config/VarINIFile.h"

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// What each value may say: one of a few words, a number, or anything.
namespace gfc::audit {

// What the need of a value depends on.
struct Choices {
    const config::StationConfig& Station;
    const config::RunMechanical& Mechanical; // an empty one for common values
};

enum class Form {
    Word,     // one of Words
    Number,   // digits and one point at most
    Whole,    // digits alone
    Fraction, // a number of 1 at most
    Percent   // by the range check of the composition's fields: 100 at most, in its own odd way
};

struct ValueRow {
    std::string_view Key;
    audit::Form Form;
    std::span<const std::string_view> Words;
    bool (*IsNeeded)(const Choices&);
    bool IsPositive = false;                               // 0 makes no sense
    double Most = std::numeric_limits<double>::infinity(); // of a whole number
};

// Null for a key whose text may be anything.
[[nodiscard]] const ValueRow* ValueRowOf(std::string_view key);

// What the value may not say; nothing is said of an empty one.
void CheckValue(const ValueRow& row, const std::string& value, Sink& sink);

// The number that the text is, for judging alone; nothing for what the fields would refuse, and for an empty
// text.
[[nodiscard]] std::optional<double> NumberOf(std::string_view text);

} // namespace gfc::audit
