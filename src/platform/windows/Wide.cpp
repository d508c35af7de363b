#include "platform/windows/Wide.h"

namespace gfc::platform::windows {

std::wstring Wide(std::string_view utf8) {
    const auto size = static_cast<int>(utf8.size());
    std::wstring wide(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Utf8(std::wstring_view wide) {
    const auto size = static_cast<int>(wide.size());
    std::string utf8(static_cast<std::size_t>(
                         ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr)),
                     '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                          nullptr);
    return utf8;
}

std::string ErrorText(DWORD code, std::string_view about) {
    std::wstring text(512, L'\0');
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          code, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    text.resize(length);
    while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n' || text.back() == L' '))
        text.pop_back();
    if (const auto place = text.find(L"%1"); place != std::wstring::npos)
        text.replace(place, 2, Wide(about.empty() ? "the file" : about));
    return text.empty() ? "error " + std::to_string(code) : Utf8(text);
}

} // namespace gfc::platform::windows
