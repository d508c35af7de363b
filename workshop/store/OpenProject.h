// Which project is open: one small file under the user's state folder, holding the project's absolute path.
#pragma once

#include <filesystem>
#include <optional>

namespace gfc::workshop {

/// The file that says so. Throws Failure when the user has neither a state folder nor a home.
[[nodiscard]] std::filesystem::path OpenProjectMark();

/// The path as it was recorded, whether or not the project still stands there; empty when none is open.
[[nodiscard]] std::optional<std::filesystem::path> RecordedProject();
/// Makes `file` the open project; whoever reads at that moment sees the old one or the new one.
void RecordProject(const std::filesystem::path& file);
/// True when a project was open.
bool ForgetProject();

} // namespace gfc::workshop
