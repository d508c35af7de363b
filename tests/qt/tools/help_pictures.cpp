#include "qt/HelpBook.h"
#include "qt/HelpView.h"
#include "qt/HelpWindow.h"
#include "qt/support/Offscreen.h"
#include "qt/support/WindowDriver.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>

#include <cstdio>

// Writes a picture of the help window for each page of the manual: help_pictures FOLDER [SCALE] [--dark].
namespace {

QPalette Dark() {
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(52, 52, 56));
    dark.setColor(QPalette::Link, QColor(110, 170, 250));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, QColor(225, 225, 225));
    return dark;
}

bool Picture(QWidget& window, const QString& file) {
    gfc::test::Settle();
    const bool written = window.grab().save(file);
    std::printf("%s%s\n", qPrintable(file), written ? "" : " NOT WRITTEN");
    return written;
}

bool PictureAll(const QString& folder) {
    const gfc::qt::HelpBook book(gfc::qt::ManualFolder());
    gfc::qt::ShowHelpWindow(gfc::qt::ManualFolder(), 0, nullptr);
    QWidget* window = gfc::test::FindWindow("HelpWindow");
    auto* view = window->findChild<gfc::qt::HelpView*>();
    bool well = !book.Pages().empty();
    for (const auto& page : book.Pages()) {
        view->setSource(QUrl::fromLocalFile(QDir(gfc::qt::ManualFolder()).filePath(page.File)));
        well = Picture(*window, folder + "/" + page.File.chopped(5) + ".png") && well;
    }
    return well;
}

} // namespace

int main(int argc, char* argv[]) {
    const bool scaled = argc > 2 && argv[2][0] != '-';
    gfc::test::UseOffscreenPlatform(scaled ? std::atof(argv[2]) : 1);
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.isEmpty()) {
        std::fputs("usage: help_pictures FOLDER [SCALE] [--dark]\n", stderr);
        return 2;
    }
    if (arguments.contains("--dark"))
        QApplication::setPalette(Dark());
    QDir().mkpath(arguments.first());
    return PictureAll(arguments.first()) ? 0 : 1;
}
