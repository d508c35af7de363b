#pragma once

#include "platform/Files.h"

#include <string>

namespace gfc::test {

// The path of a file in the folder of the world's project, as the program says it on this machine.
[[nodiscard]] inline std::string InJobs(const std::string& name) {
    return platform::WithOwnSeparators("/jobs/" + name);
}

} // namespace gfc::test
