#include "workshop/window/ProjectWindow.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Orm"));
    QApplication::setApplicationName(QStringLiteral("io-workshop"));
    QApplication::setApplicationDisplayName(QString());
    // A desktop knows a window by its entry, and that is named otherwise than the program.
    QApplication::setDesktopFileName(QStringLiteral("io-workshop"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("gfc-configurator")));
    gfc::workshop::ProjectWindow window;
    window.show();
    return QApplication::exec();
}
