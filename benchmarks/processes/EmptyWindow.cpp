// What any window costs: a toolkit, an application and nothing in it.
#include "Shown.h"

#include <QApplication>
#include <QStyleFactory>
#include <QWidget>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QWidget window;
    window.show();
    gfc::bench::EndOnceShown();
    return QApplication::exec();
}
