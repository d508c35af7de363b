#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gfc::platform {

// The names of the files that stand in the folder, in no order; folders in it are left out, and so is what
// has a name that is no text. Nothing if the folder is missing or cannot be read. Paths and names are UTF-8.
[[nodiscard]] std::optional<std::vector<std::string>> FileNamesIn(const std::string& folder);

// In bytes; nothing if there is no such file. UTF-8.
[[nodiscard]] std::optional<std::uint64_t> FileSize(const std::string& path);

} // namespace gfc::platform
