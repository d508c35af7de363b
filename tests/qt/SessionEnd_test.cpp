#ifdef _WIN32
#include "qt/SessionEnd.h"

#include <QApplication>
#include <QDialog>
#include <gtest/gtest.h>

#include <windows.h>

namespace gfc::test {
namespace {

// What Windows is answered when it asks whether the session may end.
bool MayEnd(qt::SessionEnd& filter, LPARAM how) {
    MSG question{};
    question.message = WM_QUERYENDSESSION;
    question.lParam = how;
    qintptr result = TRUE;
    return !filter.nativeEventFilter("windows_generic_MSG", &question, &result) || result != FALSE;
}

struct OpenWindow {
    OpenWindow() {
        Window.setModal(true);
        Window.show();
    }
    QDialog Window;
};

TEST(SessionEnd, is_as_ever_while_nothing_is_open) {
    qt::SessionEnd filter(QStringLiteral("Not yet."));
    QWidget main;
    main.show();
    EXPECT_TRUE(MayEnd(filter, ENDSESSION_LOGOFF));
    EXPECT_TRUE(MayEnd(filter, 0));
}

TEST(SessionEnd, waits_for_what_is_open_above_the_main_window) {
    qt::SessionEnd filter(QStringLiteral("Not yet."));
    {
        const OpenWindow open;
        EXPECT_FALSE(MayEnd(filter, ENDSESSION_LOGOFF));
        EXPECT_FALSE(MayEnd(filter, 0)) << "asked once more";
    }
    EXPECT_TRUE(MayEnd(filter, ENDSESSION_LOGOFF));
}

TEST(SessionEnd, does_not_hold_up_what_cannot_wait) {
    qt::SessionEnd filter(QStringLiteral("Not yet."));
    const OpenWindow open;
    EXPECT_TRUE(MayEnd(filter, static_cast<LPARAM>(ENDSESSION_CRITICAL)));
}

TEST(SessionEnd, leaves_every_other_message_alone) {
    qt::SessionEnd filter(QStringLiteral("Not yet."));
    const OpenWindow open;
    for (const UINT other : {WM_CLOSE, WM_ENDSESSION, WM_NULL}) {
        MSG message{};
        message.message = other;
        qintptr result = 5;
        EXPECT_FALSE(filter.nativeEventFilter("windows_generic_MSG", &message, &result));
        EXPECT_EQ(result, 5);
    }
}

} // namespace
} // namespace gfc::test
#endif
