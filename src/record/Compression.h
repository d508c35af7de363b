#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gfc::record {

// The bytes in the form in which the record keeps them (RFC 1950), behind their length. Throws Failure where
// memory is short.
[[nodiscard]] std::string Compress(std::string_view bytes);
// Nothing for what Compress did not make.
[[nodiscard]] std::optional<std::string> Expand(std::string_view kept);

// The same of bytes that are much like others, base, which are needed to have them back: a series of streams
// (RFC 1951), each of one piece, to which base's bytes around the same place are known beforehand. Throws
// Failure where memory is short.
[[nodiscard]] std::string CompressLike(std::string_view bytes, std::string_view base);
// Nothing for what CompressLike did not make. Another base gives other bytes, or nothing.
[[nodiscard]] std::optional<std::string> ExpandLike(std::string_view kept, std::string_view base);

} // namespace gfc::record
