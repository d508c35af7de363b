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
        return Run(program, arguments, windows::StartInfo(ViewerWindow::Normal));
    }

    bool OpenTextFile(const std::string& path, ViewerWindow window) override {
        return Run(TextViewer, {path}, windows::StartInfo(window));
    }

private:
    static bool Run(const std::string& program, const std::vector<std::string>& arguments,
                    STARTUPINFOW start) {
        std::wstring line = windows::CommandLine(program, arguments);
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
};

} // namespace

std::unique_ptr<Launcher> MakeLauncher() {
    return std::make_unique<WindowsLauncher>();
}

} // namespace gfc::platform
