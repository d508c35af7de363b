// The encodings that the system itself can read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gfc::workshop {

struct SystemText {
    bool Known = false;              ///< the system knows an encoding of that name
    std::optional<std::string> Utf8; ///< nothing where the bytes are not in it
};

[[nodiscard]] SystemText ToUtf8(std::string_view bytes, const std::string& encoding);

} // namespace gfc::workshop
