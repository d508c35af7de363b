// What any window costs: a toolkit, an application and nothing in it; with an argument, that text alone.
#include "Shown.h"

#include <QApplication>
#include <QLabel>
#include <QStyleFactory>
#include <QWidget>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QWidget window;
    if (argc > 1)
        new QLabel(QString::fromLocal8Bit(argv[1]), &window);
    window.show();
    gfc::bench::EndOnceShown();
    return QApplication::exec();
}
