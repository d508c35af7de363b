#pragma once

#include "platform/windows/Wide.h"

#include <optional>
#include <string>
#include <string_view>

namespace gfc::platform::windows {

inline constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Does it again, for a third of a second at the most, as long as it fails and that is for an error that
// passes: whoever looks through new files, for viruses mostly, holds each for a moment.
template <class Attempt, class Passes>
bool Patiently(Attempt attempt, Passes passes) {
    for (const DWORD pause : {10, 20, 40, 80, 160, 0}) {
        if (attempt())
            return true;
        if (pause == 0 || !passes(::GetLastError()))
            return false;
        ::Sleep(pause);
    }
    return false;
}

// True for an error that speaks of somebody who holds the file.
[[nodiscard]] constexpr bool SaysHeld(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

// An existing file, shared with all others.
[[nodiscard]] Handle OpenPatiently(const std::wstring& path, DWORD access);

[[nodiscard]] bool DeletedPatiently(const std::wstring& path);

// From where the file stands.
[[nodiscard]] std::optional<std::string> ReadToEnd(HANDLE file);
[[nodiscard]] bool WriteAll(HANDLE file, std::string_view bytes);

} // namespace gfc::platform::windows
