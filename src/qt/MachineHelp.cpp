#include "qt/MachineHelp.h"

#ifdef _WIN32
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QString>

#include <windows.h>

namespace gfc::qt {
namespace {

using HtmlHelp = HWND WINAPI(HWND, const char*, UINT, DWORD_PTR);

constexpr UINT DisplayTopic = 0x0000; // HH_DISPLAY_TOPIC
constexpr UINT HelpContext = 0x000f;  // HH_HELP_CONTEXT
constexpr UINT CloseAll = 0x0012;     // HH_CLOSE_ALL

// The viewer is a library that stays loaded; null on a machine that has none.
HtmlHelp* Viewer() {
    static HtmlHelp* const viewer = [] {
        // The machine's own, and not what lies beside the program under that name.
        const HMODULE library = ::LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        return library == nullptr ? nullptr
                                  : reinterpret_cast<HtmlHelp*>(
                                        reinterpret_cast<void*>(::GetProcAddress(library, "HtmlHelpA")));
    }();
    return viewer;
}

// The viewer puts up an empty page in place of a file that comes over the network or was downloaded.
bool WillBeShown(const QString& name) {
    const QString full = QDir::toNativeSeparators(QFileInfo(name).canonicalFilePath());
    const std::wstring root = full.left(3).toStdWString();
    const std::wstring mark = (full + QStringLiteral(":Zone.Identifier")).toStdWString();
    return !full.isEmpty() && !full.startsWith(QStringLiteral("\\\\")) &&
           ::GetDriveTypeW(root.c_str()) != DRIVE_REMOTE &&
           ::GetFileAttributesW(mark.c_str()) == INVALID_FILE_ATTRIBUTES;
}

// A window of the viewer that outlives the program's own windows takes the program down with it.
void CloseWithTheProgram() {
    static const bool once = [] {
        qAddPostRoutine([] { Viewer()(nullptr, nullptr, CloseAll, 0); });
        return true;
    }();
    (void)once;
}

} // namespace

bool OpenMachineHelp(const std::string& file, int context) {
    const QString name = QString::fromStdString(file);
    // The viewer takes names in the machine's code page; what that lacks it would look for as something else.
    const QByteArray path = name.toLocal8Bit();
    if (!WillBeShown(name) || QString::fromLocal8Bit(path) != name || Viewer() == nullptr)
        return false;
    CloseWithTheProgram();
    const auto topic = static_cast<DWORD_PTR>(context);
    if (context != 0 && Viewer()(::GetDesktopWindow(), path.constData(), HelpContext, topic) != nullptr)
        return true;
    return Viewer()(::GetDesktopWindow(), path.constData(), DisplayTopic, 0) != nullptr;
}

} // namespace gfc::qt
#else
namespace gfc::qt {

bool OpenMachineHelp(const std::string&, int) {
    return false;
}

} // namespace gfc::qt
#endif
