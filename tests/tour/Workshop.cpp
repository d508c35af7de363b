#include "tour/Workshop.h"

#include <QCoreApplication>
#include <QDir>

#ifdef _WIN32
#include "platform/windows/CommandLine.h"
#else
#include <QProcess>
#endif

namespace gfc::tour {

namespace {

#ifdef _WIN32

// Not by QProcess: it waits on a thread of the system's pool, which under Wine may post the end of the
// process to an object that is gone by then; the tour died of it, far from here.
int Run(const QString& program, const QStringList& arguments) {
    std::vector<std::string> texts;
    for (const QString& argument : arguments)
        texts.push_back(argument.toStdString());
    std::wstring line = platform::windows::CommandLine(program.toStdString() + ".exe", texts);
    STARTUPINFOW start = platform::windows::StartInfo(platform::ViewerWindow::Normal);
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                          &process))
        return -1;
    const platform::windows::Handle thread(process.hThread);
    const platform::windows::Handle running(process.hProcess);
    DWORD code = 0;
    const bool ended = ::WaitForSingleObject(running.Get(), 60'000) == WAIT_OBJECT_0 &&
                       ::GetExitCodeProcess(running.Get(), &code);
    return ended ? static_cast<int>(code) : -1;
}

#else

int Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return ended ? process.exitCode() : -1;
}

#endif

} // namespace

bool Workshop(const QStringList& arguments) {
    return Beside(QStringLiteral("io-workshop"), arguments) == 0;
}

int Beside(const QString& command, const QStringList& arguments) {
    return Run(QDir(QCoreApplication::applicationDirPath()).filePath(command), arguments);
}

} // namespace gfc::tour
