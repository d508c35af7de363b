#pragma once

#include <string>

namespace gfc::bench {

// The full path of what stands in the program's own folder.
[[nodiscard]] std::string Beside(const std::string& name);

// The first line that a command of the shell writes; it is waited for.
[[nodiscard]] std::string FirstLineOf(const std::string& command);

// Runs io-workshop with these arguments and waits for it.
void Workshop(const std::string& arguments);

} // namespace gfc::bench
