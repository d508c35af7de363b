#pragma once

#include <cstddef>

namespace gfc::platform {

// True if so many bytes can be read from there without the process dying of it; what they mean, and whose
// they are, is not known. True also where the machine gives no means to tell.
[[nodiscard]] bool IsReadable(const void* from, std::size_t size);

} // namespace gfc::platform
