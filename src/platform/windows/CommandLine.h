#pragma once

#include "platform/Machine.h"
#include "platform/windows/Wide.h"

#include <string>
#include <vector>

namespace gfc::platform::windows {

// The line with which a program is started, so quoted that it reads program and arguments (UTF-8) back as
// they are.
[[nodiscard]] std::wstring CommandLine(const std::string& program, const std::vector<std::string>& arguments);

// With which a program is started, so that its first window stands as asked.
[[nodiscard]] STARTUPINFOW StartInfo(ViewerWindow window);

} // namespace gfc::platform::windows
