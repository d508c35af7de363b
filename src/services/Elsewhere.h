#pragma once

#include <future>

namespace gfc::services {

// How work is given to another thread; it is done when it is asked for where the system gives none.
inline constexpr std::launch Elsewhere = std::launch::async | std::launch::deferred;

} // namespace gfc::services
