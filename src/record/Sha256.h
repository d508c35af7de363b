#pragma once

#include <string>
#include <string_view>

namespace gfc::record {

// The SHA-256 (FIPS 180-4) of these bytes, as 64 small hexadecimal digits.
[[nodiscard]] std::string Sha256(std::string_view bytes);

} // namespace gfc::record
