#pragma once

#include <string>
#include <vector>

namespace gfc::platform {

// What a program of the command line was started with, its own name left out; UTF-8 on every machine. From
// then on the output is UTF-8, too, and no byte of it is changed on its way.
[[nodiscard]] std::vector<std::string> ConsoleArguments(int argc, const char* const* argv);

} // namespace gfc::platform
