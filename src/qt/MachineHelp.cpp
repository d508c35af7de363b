#include "qt/MachineHelp.h"

#ifdef _WIN32
#include <QCoreApplication>
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
        const HMODULE library = ::LoadLibraryW(L"hhctrl.ocx");
        return library == nullptr ? nullptr
                                  : reinterpret_cast<HtmlHelp*>(
                                        reinterpret_cast<void*>(::GetProcAddress(library, "HtmlHelpA")));
    }();
    return viewer;
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
    if (!QFileInfo::exists(QString::fromStdString(file)) || Viewer() == nullptr)
        return false;
    CloseWithTheProgram();
    const auto topic = static_cast<DWORD_PTR>(context);
    if (context != 0 && Viewer()(::GetDesktopWindow(), file.c_str(), HelpContext, topic) != nullptr)
        return true;
    return Viewer()(::GetDesktopWindow(), file.c_str(), DisplayTopic, 0) != nullptr;
}

} // namespace gfc::qt
#else
namespace gfc::qt {

bool OpenMachineHelp(const std::string&, int) {
    return false;
}

} // namespace gfc::qt
#endif
