#include "qt/support/Offscreen.h"
#include "support/NamedEnd.h"

#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    gfc::test::NameTheTestOfAnEnd();
    gfc::test::UseOffscreenPlatform();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setOrganizationName(QStringLiteral("Orm"));
    QApplication::setApplicationName(QStringLiteral("io-workshop-test"));
    const QTemporaryDir settings; // what the window remembers is of this run alone
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    return RUN_ALL_TESTS();
}
