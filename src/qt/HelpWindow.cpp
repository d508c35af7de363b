#include "qt/HelpWindow.h"

#include "qt/Icons.h"
#include "qt/SideWindow.h"
#include "qt/Texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace gfc::qt {

namespace {

QString PageOf(const std::string& file, int context) {
    const QString book = QCoreApplication::translate("Help", "Help of the Gas Flow Computer Configurator");
    const QString page = context == 0 ? QStringLiteral("Contents") : QStringLiteral("Page %1").arg(context);
    return QStringLiteral("<h2>%1</h2><p><b>%2</b></p>"
                          "<p>The manual <i>%3</i> is not installed beside this program. Look up page %4 "
                          "in the manual that came with the package.</p>")
        .arg(book.toHtmlEscaped(), page, ToQt(file).toHtmlEscaped(), QString::number(context));
}

} // namespace

bool OpenMachineHelp([[maybe_unused]] const std::string& file, [[maybe_unused]] int context) {
#ifdef Q_OS_WIN
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(ToQt(file));
    if (!QFileInfo::exists(path))
        return false;
    const QString mapped = context == 0 ? QStringLiteral("ms-its:%1") : QStringLiteral("-mapid %2 ms-its:%1");
    const QString arguments = context == 0 ? mapped.arg(QDir::toNativeSeparators(path))
                                           : mapped.arg(QDir::toNativeSeparators(path)).arg(context);
    return QProcess::startDetached(QStringLiteral("hh.exe"), arguments.split(QLatin1Char(' ')));
#else
    return false;
#endif
}

void ShowHelpWindow(const std::string& file, int context, QWidget* owner) {
    SideWindow& window = SideWindow::Open("HelpWindow", owner);
    window.setWindowTitle(QStringLiteral("Help"));
    window.setProperty("context", context);
    window.setProperty("file", ToQt(file));
    auto* page = new QTextBrowser(&window);
    page->setObjectName("HelpPage");
    page->setAccessibleName(QStringLiteral("Help page"));
    page->setHtml(PageOf(file, context));
    window.Fill(*page, QSize(520, 360));
}

} // namespace gfc::qt
