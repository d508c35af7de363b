#pragma once

#include <string>

namespace gfc::platform::windows {

// Where this user's programs keep what they must find again themselves, without a separator at the end; empty
// if the machine does not tell. It need not exist.
[[nodiscard]] std::wstring StateFolder();

} // namespace gfc::platform::windows
