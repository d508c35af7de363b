#include "workshop/window/ProjectWindow.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Orm"));
    QApplication::setApplicationName(QStringLiteral("io-workshop"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("io-workshop")));
    gfc::workshop::ProjectWindow window;
    window.show();
    return QApplication::exec();
}
