#include "qt/support/Offscreen.h"
#include "support/NamedEnd.h"

#include <QApplication>
#include <QStyleFactory>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    gfc::test::NameTheTestOfAnEnd();
    gfc::test::UseOffscreenPlatform();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0); // pictures are held against each other
    return RUN_ALL_TESTS();
}
