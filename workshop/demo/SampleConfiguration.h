#pragma once

#include <string>
#include <string_view>

namespace gfc::workshop {

/// The station of the sample project that is configured from the start.
inline constexpr std::string_view ConfiguredStation = "Lakeside_Delivery";

/// Its configuration file as bytes: one run of AGA-3 with a densimeter, in "US" units. The path is UTF-8.
[[nodiscard]] std::string SampleConfiguration(std::string_view projectPath);

} // namespace gfc::workshop
