// Files read and written as a whole, and the folders for them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace gfc::workshop {

/// Makes the folder and those above it, as far as they are not there. Throws Failure when that cannot be
/// done.
void MakeFolder(const std::filesystem::path& folder);

/// The bytes of the file. Throws Failure when it cannot be read.
[[nodiscard]] std::string ReadWhole(const std::filesystem::path& file);

/// Gives the file these bytes: written beside and moved into place, so that whoever reads at that moment sees
/// the old ones or the new ones. Throws Failure when that cannot be done.
void ReplaceWhole(const std::filesystem::path& file, std::string_view bytes);

} // namespace gfc::workshop
