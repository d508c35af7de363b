#include "platform/windows/SystemPath.h"

#include "platform/windows/Wide.h"

#include <algorithm>
#include <array>

namespace gfc::platform::windows {
namespace {

constexpr std::size_t ShortEnough = 190;
constexpr std::wstring_view Unlimited = L"\\\\?\\";
constexpr std::wstring_view UnlimitedShare = L"\\\\?\\UNC\\";

constexpr std::array<std::wstring_view, 6> Devices = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
constexpr std::array<std::wstring_view, 2> Ports = {L"COM", L"LPT"};

std::wstring FullPath(const std::wstring& path) {
    std::wstring full(32768, L'\0');
    const DWORD length = ::GetFullPathNameW(path.c_str(), 32768, full.data(), nullptr);
    full.resize(length < full.size() ? length : 0);
    return full;
}

bool IsSeparator(wchar_t c) {
    return c == L'\\' || c == L'/';
}

bool IsShare(std::wstring_view path) {
    return path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]) && path[2] != L'?' &&
           path[2] != L'.';
}

// What stands in front of the first dot, in capitals and without blanks at its end.
std::wstring StemOf(std::wstring_view path) {
    const auto separator = path.find_last_of(L"/\\:");
    std::wstring_view name = separator == std::wstring_view::npos ? path : path.substr(separator + 1);
    name = name.substr(0, name.find(L'.'));
    const auto last = name.find_last_not_of(L' ');
    std::wstring stem(name.substr(0, last == std::wstring_view::npos ? 0 : last + 1));
    std::transform(stem.begin(), stem.end(), stem.begin(),
                   [](wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c; });
    return stem;
}

bool NumbersPort(wchar_t c) {
    return (c >= L'1' && c <= L'9') || c == 0xB9 || c == 0xB2 || c == 0xB3; // the raised digits count too
}

// "X:\", "\\server\share\", or nothing.
std::wstring RootOf(std::wstring path) {
    if (path.starts_with(UnlimitedShare))
        path.replace(0, UnlimitedShare.size(), L"\\\\");
    else if (path.starts_with(Unlimited))
        path.erase(0, Unlimited.size());
    if (path.size() > 2 && path[1] == L':' && IsSeparator(path[2]))
        return path.substr(0, 3);
    if (!IsShare(path))
        return {};
    const auto share = path.find_first_of(L"/\\", path.find_first_of(L"/\\", 2) + 1);
    return share == std::wstring::npos ? std::wstring() : path.substr(0, share + 1);
}

} // namespace

std::wstring SystemPath(std::string_view utf8) {
    const std::wstring path = Wide(utf8);
    if (path.size() < ShortEnough || path.starts_with(Unlimited))
        return path;
    const std::wstring full = FullPath(path);
    if (full.empty())
        return path;
    return IsShare(full) ? std::wstring(UnlimitedShare) + full.substr(2) : std::wstring(Unlimited) + full;
}

bool NamesDevice(std::wstring_view path) {
    const std::wstring stem = StemOf(path);
    if (std::find(Devices.begin(), Devices.end(), stem) != Devices.end())
        return true;
    return stem.size() == 4 && NumbersPort(stem[3]) &&
           std::find(Ports.begin(), Ports.end(), std::wstring_view(stem).substr(0, 3)) != Ports.end();
}

bool RootAnswers(const std::wstring& path) {
    const std::wstring root = RootOf(path);
    // One that this user may not look at has answered, too.
    return root.empty() || ::GetFileAttributesW(root.c_str()) != INVALID_FILE_ATTRIBUTES ||
           ::GetLastError() == ERROR_ACCESS_DENIED;
}

} // namespace gfc::platform::windows
