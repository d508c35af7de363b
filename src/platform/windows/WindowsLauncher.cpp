#include "platform/Machine.h"
#include "platform/windows/CommandLine.h"
#include "platform/windows/ViewerWatch.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

using windows::Handle;

constexpr const char* TextViewer = "notepad.exe";

// No handle if it could not be started.
Handle Run(const std::string& program, const std::vector<std::string>& arguments, STARTUPINFOW start) {
    std::wstring line = windows::CommandLine(program, arguments);
    PROCESS_INFORMATION process{};
    // Without a program of its own the call takes the line's first word, and looks for it on the search path.
    if (program.empty() || !::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                             nullptr, &start, &process))
        return Handle();
    const Handle thread(process.hThread);
    return Handle(process.hProcess);
}

class WindowsLauncher : public Launcher {
public:
    bool Start(const std::string& program, const std::vector<std::string>& arguments) override {
        return bool(Run(program, arguments, windows::StartInfo(ViewerWindow::Normal)));
    }

    bool OpenTextFile(const std::string& path, ViewerWindow window) override {
        Handle process = Run(TextViewer, {path}, windows::StartInfo(window));
        const bool isStarted(process);
        watch_.Begin(std::move(process));
        return isStarted;
    }

    bool ViewerFailed() override { return watch_.Failed(); }

private:
    windows::ViewerWatch watch_; // over the one that was started last
};

} // namespace

std::unique_ptr<Launcher> MakeLauncher() {
    return std::make_unique<WindowsLauncher>();
}

} // namespace gfc::platform
