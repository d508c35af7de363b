#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace gfc::workshop {

/// UTF-8 of a path.
[[nodiscard]] std::string PathText(const std::filesystem::path& path);
/// The path that a UTF-8 text names.
[[nodiscard]] std::filesystem::path PathOf(std::string_view text);
/// True for a text that can be the name of one file or folder on any machine: no separator, no character that
/// a file system or a line of a text file cannot hold, no "." or "..", no blank at either end, no dot at the
/// end.
[[nodiscard]] bool IsFileName(std::string_view text);

} // namespace gfc::workshop
