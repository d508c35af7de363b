#include "qt/SystemLook.h"
#include "qt/support/Offscreen.h"
#include "support/NamedEnd.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    gfc::test::NameTheTestOfAnEnd();
    gfc::test::UseOffscreenPlatform();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    // Windows in memory look alike on every machine, those on a screen as the program's own.
    if (QApplication::platformName() == QStringLiteral("offscreen"))
        gfc::qt::TakeOwnLook();
    else
        gfc::qt::TakeSystemLook();
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0); // pictures are held against each other
    return RUN_ALL_TESTS();
}
