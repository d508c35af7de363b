#include "platform/windows/FileHandle.h"

#include <algorithm>

namespace gfc::platform::windows {
namespace {

constexpr std::size_t LargestPiece = 1u << 30;

} // namespace

Handle OpenPatiently(const std::wstring& path, DWORD access) {
    Handle file;
    (void)Patiently(
        [&] {
            file = Handle(::CreateFileW(path.c_str(), access, ShareAll, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
            return static_cast<bool>(file);
        },
        SaysHeld);
    return file;
}

bool DeletedPatiently(const std::wstring& path) {
    return Patiently([&] { return ::DeleteFileW(path.c_str()) != 0; }, SaysHeld);
}

std::optional<std::string> ReadToEnd(HANDLE file) {
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file, &size))
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t used = 0;
    while (used < bytes.size()) {
        DWORD got = 0;
        const auto piece = static_cast<DWORD>(std::min(bytes.size() - used, LargestPiece));
        if (!::ReadFile(file, bytes.data() + used, piece, &got, nullptr))
            return std::nullopt;
        if (got == 0)
            break;
        used += got;
    }
    bytes.resize(used);
    return bytes;
}

bool WriteAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(bytes.size(), LargestPiece));
        if (!::WriteFile(file, bytes.data(), size, &written, nullptr) || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

} // namespace gfc::platform::windows
