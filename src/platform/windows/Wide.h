#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <string>
#include <string_view>
#include <utility>
#include <windows.h>

namespace gfc::platform::windows {

// The system's own text and ours; what is no valid text becomes the replacement character.
[[nodiscard]] std::wstring Wide(std::string_view utf8);
[[nodiscard]] std::string Utf8(std::wstring_view wide);

// The system's words for an error code, without a line break; about is what it speaks of, a file mostly,
// which some of its texts leave a place for.
[[nodiscard]] std::string ErrorText(DWORD code, std::string_view about = {});

// A handle that is closed with its owner.
class Handle {
public:
    explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE)
        : handle_(handle == nullptr ? INVALID_HANDLE_VALUE : handle) {}
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { (void)Close(); }

    explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return handle_; }
    [[nodiscard]] bool Close() {
        const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0;
    }

private:
    HANDLE handle_;
};

} // namespace gfc::platform::windows
