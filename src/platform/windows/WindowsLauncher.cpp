#include "platform/Machine.h"
#include "platform/windows/CommandLine.h"
#include "platform/windows/ViewerWatch.h"
#include "platform/windows/Wide.h"

namespace gfc::platform {
namespace {

using windows::Handle;

// Where the machine's own viewer may stand. Without a folder it would be looked for beside this program and
// in the current folder first, and whatever lies there under its name would be started.
std::vector<std::string> TextViewers() {
    std::vector<std::string> viewers;
    for (const auto folderOf : {::GetSystemDirectoryW, ::GetSystemWindowsDirectoryW}) {
        std::wstring folder(MAX_PATH, L'\0');
        const UINT length = folderOf(folder.data(), MAX_PATH);
        if (length > 0 && length < MAX_PATH)
            viewers.push_back(windows::Utf8(folder.substr(0, length)) + "\\notepad.exe");
    }
    return viewers;
}

// No handle if it could not be started.
Handle Run(const std::string& program, const std::vector<std::string>& arguments, STARTUPINFOW start) {
    std::wstring line = windows::CommandLine(program, arguments);
    PROCESS_INFORMATION process{};
    // Without a program of its own the call takes the line's first word, and looks for it on the search path.
    if (program.empty() || !::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE,
                                             CREATE_DEFAULT_ERROR_MODE, nullptr, nullptr, &start, &process))
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
        Handle process;
        for (const std::string& viewer : TextViewers())
            if (!process)
                process = Run(viewer, {path}, windows::StartInfo(window));
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
