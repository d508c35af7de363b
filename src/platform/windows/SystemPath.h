#pragma once

#include <string>
#include <string_view>

namespace gfc::platform::windows {

// The path as the system's calls take it: one that is longer than most of them take becomes a full one behind
// the mark that lifts their limit of 260 characters. A file that is written to beside it may have a longer
// name by 60 characters.
[[nodiscard]] std::wstring SystemPath(std::string_view utf8);

// True for a name that the system takes for one of its devices in whatever folder it stands: "nul",
// "COM1.ini".
[[nodiscard]] bool NamesDevice(std::wstring_view path);

// False if the drive or the share on which the path stands does not answer, so that nobody can tell what
// there is; true also of a path that names neither.
[[nodiscard]] bool RootAnswers(const std::wstring& path);

} // namespace gfc::platform::windows
