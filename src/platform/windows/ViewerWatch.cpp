#include "platform/windows/ViewerWatch.h"

#include <cstdint>

namespace gfc::platform::windows {
namespace {

constexpr std::uint64_t Second = 10'000'000; // in steps of 100 ns
constexpr std::uint64_t Seen = 5 * Second;

std::uint64_t Count(const FILETIME& time) {
    return std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

// Of a process that has ended; as long as can be where the system does not tell.
std::uint64_t LifeOf(HANDLE process) {
    FILETIME start{}, end{}, kernel{}, user{};
    return ::GetProcessTimes(process, &start, &end, &kernel, &user) ? Count(end) - Count(start) : Seen;
}

} // namespace

bool ViewerWatch::Failed() {
    if (!process_ || ::WaitForSingleObject(process_.Get(), 0) != WAIT_OBJECT_0)
        return false;
    const Handle ended = std::move(process_);
    DWORD code = 0;
    return ::GetExitCodeProcess(ended.Get(), &code) && code != 0 && LifeOf(ended.Get()) < Seen;
}

} // namespace gfc::platform::windows
