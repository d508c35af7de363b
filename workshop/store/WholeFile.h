// Files read and written as a whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace gfc::workshop {

/// The bytes of the file. Throws Failure when it cannot be read.
[[nodiscard]] std::string ReadWhole(const std::filesystem::path& file);

/// Gives the file these bytes: written beside and moved into place, so that whoever reads at that moment sees
/// the old ones or the new ones. Throws Failure when that cannot be done.
void ReplaceWhole(const std::filesystem::path& file, std::string_view bytes);

} // namespace gfc::workshop
