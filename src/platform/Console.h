#pragma once

#include <string>
#include <vector>

namespace gfc::platform {

// What a program of the command line was started with, its own name left out; UTF-8 on every machine. The
// output is UTF-8 from then on, too.
[[nodiscard]] std::vector<std::string> ConsoleArguments(int argc, const char* const* argv);

} // namespace gfc::platform
