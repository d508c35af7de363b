#pragma once

#include <QAbstractNativeEventFilter>
#include <QString>

namespace gfc::qt {

// Asks Windows to wait when the person logs off or the machine is switched off while a window stands open
// above the main one: nobody is asked any more once the session ends, and what was entered there would go
// without a word. Windows shows the window's title and the reason, which it cuts at some 100 characters, and
// lets the person go back or end it all the same. Elsewhere it does nothing.
class SessionEnd : public QAbstractNativeEventFilter {
public:
    // From now on, and for as long as it lives, among the filters of the one QCoreApplication.
    explicit SessionEnd(QString reason);
    ~SessionEnd() override;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    void TakeReasonBack();

    QString reason_;
    void* reasonAt_ = nullptr; // the window (HWND) that Windows knows a reason of
};

} // namespace gfc::qt
