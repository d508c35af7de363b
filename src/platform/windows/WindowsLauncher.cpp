#include "platform/Machine.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

using windows::Handle;

constexpr const char* TextViewer = "notepad.exe";

// One word of a command line, so quoted that the started program reads it back as it is: backslashes count
// double before a quote and before the end.
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

std::wstring CommandLine(const std::string& program, const std::vector<std::string>& arguments) {
    std::wstring line = Quoted(windows::Wide(program));
    for (const std::string& argument : arguments)
        line += L' ' + Quoted(windows::Wide(argument));
    return line;
}

class WindowsLauncher : public Launcher {
public:
    bool Start(const std::string& program, const std::vector<std::string>& arguments) override {
        std::wstring line = CommandLine(program, arguments);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION process{};
        // Without a program of its own the call takes the line's first word, and looks for it on the search
        // path.
        if (program.empty() || !::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                                 nullptr, &start, &process))
            return false;
        const Handle thread(process.hThread);
        const Handle started(process.hProcess);
        return true;
    }

    bool OpenTextFile(const std::string& path) override { return Start(TextViewer, {path}); }
};

} // namespace

std::unique_ptr<Launcher> MakeLauncher() {
    return std::make_unique<WindowsLauncher>();
}

} // namespace gfc::platform
