#include "qt/SessionEnd.h"

#include <QApplication>
#include <QWidget>

#include <utility>

#ifdef _WIN32
#include <windows.h>
#endif

namespace gfc::qt {

SessionEnd::SessionEnd(QString reason) : reason_(std::move(reason)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

SessionEnd::~SessionEnd() {
    TakeReasonBack();
    if (QCoreApplication* application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

#ifdef _WIN32

// Windows asks each of our windows in turn, and tells each of them whether the session ends or goes on.
bool SessionEnd::nativeEventFilter(const QByteArray&, void* message, qintptr* result) {
    const MSG& told = *static_cast<MSG*>(message);
    if (told.message == WM_QUERYENDSESSION || told.message == WM_ENDSESSION)
        TakeReasonBack();
    const QWidget* open = QApplication::activeModalWidget();
    // At a critical end nobody is asked, and a refusal would be taken for a program that hangs.
    if (told.message != WM_QUERYENDSESSION || open == nullptr || (told.lParam & ENDSESSION_CRITICAL) != 0)
        return false;
    const auto window = reinterpret_cast<HWND>(open->window()->effectiveWinId());
    if (::ShutdownBlockReasonCreate(window, reason_.toStdWString().c_str()))
        reasonAt_ = window;
    *result = FALSE;
    return true;
}

void SessionEnd::TakeReasonBack() {
    if (reasonAt_ != nullptr)
        ::ShutdownBlockReasonDestroy(static_cast<HWND>(reasonAt_));
    reasonAt_ = nullptr;
}

#else

bool SessionEnd::nativeEventFilter(const QByteArray&, void*, qintptr*) {
    return false;
}

void SessionEnd::TakeReasonBack() {
    reasonAt_ = nullptr;
}

#endif

} // namespace gfc::qt
