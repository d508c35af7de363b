#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How an entry keeps its file: whole, or by what it differs in from that of an earlier entry of the station.
// Every so often one is kept whole, so that the way back is never long.
namespace gfc::record {

inline constexpr int LongestWay = 16; // entries between one that is kept whole and the last that needs it

// The number of the entry whose file is needed to have that of this content; 0 for none.
[[nodiscard]] std::int64_t BaseOf(std::string_view content);

[[nodiscard]] std::string KeepWhole(std::string_view file);
[[nodiscard]] std::string KeepLike(std::string_view file, std::int64_t base, std::string_view baseFile);

// base is the file of BaseOf; not used where that is 0. Nothing for what the two above did not make.
[[nodiscard]] std::optional<std::string> FileIn(std::string_view content, std::string_view base);

} // namespace gfc::record
