#pragma once

#include <string>

namespace gfc::platform::posix {

// The folder that a variable names, by the desktop's rule: one that is not named in full does not count.
[[nodiscard]] std::string FullPathIn(const char* variable);

// Both without a separator at the end, and empty if the machine does not tell.
[[nodiscard]] std::string HomeFolder();
// Where this program keeps what it must find again itself. It need not exist.
[[nodiscard]] std::string StateFolder();
// With those that it stands in, open to its owner alone; what stands there already stays.
void MakeFolder(const std::string& folder);

} // namespace gfc::platform::posix
