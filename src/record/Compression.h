#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gfc::record {

// The bytes in the form in which the record keeps them (RFC 1950), behind their length; never fails.
[[nodiscard]] std::string Compress(std::string_view bytes);
// Nothing for what Compress did not make.
[[nodiscard]] std::optional<std::string> Expand(std::string_view kept);

} // namespace gfc::record
