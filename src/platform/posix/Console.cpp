#include "platform/Console.h"

namespace gfc::platform {

std::vector<std::string> ConsoleArguments(int argc, const char* const* argv) {
    return argc < 2 ? std::vector<std::string>() : std::vector<std::string>(argv + 1, argv + argc);
}

} // namespace gfc::platform
