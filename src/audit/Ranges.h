#pragma once

#include "config/Units.h"
#include "config/VarINIFile.h"

#include <optional>
#include <string>
#include <string_view>

// Within which figures a value is usual: by these it is judged, and by these a field tells what it expects.
namespace gfc::audit {

// In mm, degrees C, kPa, kg/m3 and per degree C, where it has a unit; else as the value stands.
struct UsualRange {
    std::string_view Key;
    std::optional<config::Quantity> Unit;
    double Least, Most;
};

// The key must be one that has a range.
[[nodiscard]] const UsualRange& UsualRangeOf(std::string_view key);

// The limits of a standard for plate and pipe, in mm.
struct OrificeLimits {
    std::string_view Algorithm;
    double Bore;
    bool BoreIsPast; // the limit itself is too small
    double LeastPipe;
    double MostPipe;
};

// Of the bore's diameter to the pipe's, by either standard.
inline constexpr double LeastBeta = 0.1, MostBeta = 0.75;

// Null for an algorithm without a plate.
[[nodiscard]] const OrificeLimits* OrificeLimitsOf(std::string_view algorithm);

// What is expected of the value of that key in the station's units, for the tip of its field: "Usual: 0 to 50
// degC". Empty where nothing is known of it.
[[nodiscard]] std::string ExpectedText(std::string_view key, const config::StationConfig& station);

} // namespace gfc::audit
