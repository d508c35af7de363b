#include "platform/Machine.h"
#include "platform/windows/CommandLine.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

using windows::Handle;

constexpr const char* TextViewer = "notepad.exe";

class WindowsLauncher : public Launcher {
public:
    bool Start(const std::string& program, const std::vector<std::string>& arguments) override {
        std::wstring line = windows::CommandLine(program, arguments);
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
