#include "platform/windows/CommandLine.h"

namespace gfc::platform::windows {

namespace {

// Backslashes count double before a quote and before the end.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

} // namespace

std::wstring CommandLine(const std::string& program, const std::vector<std::string>& arguments) {
    std::wstring line = Quoted(Wide(program));
    for (const std::string& argument : arguments)
        line += L' ' + Quoted(Wide(argument));
    return line;
}

STARTUPINFOW StartInfo(ViewerWindow window) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    if (window == ViewerWindow::Maximised) {
        start.dwFlags = STARTF_USESHOWWINDOW;
        start.wShowWindow = SW_SHOWMAXIMIZED;
    }
    return start;
}

} // namespace gfc::platform::windows
