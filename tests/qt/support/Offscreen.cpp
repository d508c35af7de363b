#include "qt/support/Offscreen.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPalette>
#include <QString>
#include <QTemporaryDir>

#include <cstdio>

namespace gfc::test {

namespace {

constexpr int width = 1366;
constexpr int height = 768;

// What the platform says of itself at every window tells nothing.
void Report(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support")) &&
        !text.startsWith(QLatin1String("QStandardPaths")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

QByteArray ScreenOf(int scale) {
    return QStringLiteral("{\"screens\": [{\"name\": \"one\", \"x\": 0, \"y\": 0, \"width\": %1, "
                          "\"height\": %2, \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}")
        .arg(width * scale)
        .arg(height * scale)
        .toUtf8();
}

} // namespace

void UseOffscreenPlatform(int scale) {
    qInstallMessageHandler(Report);
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
        qEnvironmentVariable("QT_QPA_PLATFORM") != "offscreen")
        return;
        // Kept until the program ends: the platform reads it when the application is made.
#ifdef _WIN32
    // A colon ends the word that names the file, so that it is named without its drive.
    static const QTemporaryDir folder(QDir::current().absoluteFilePath(QStringLiteral("screen-XXXXXX")));
    const QString path = QDir::current().relativeFilePath(folder.filePath(QStringLiteral("screen.json")));
#else
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("screen.json"));
#endif
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ScreenOf(scale)) < 0)
        return;
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
}

void UseDarkPalette() {
    const QColor ground(0x2a, 0x2e, 0x32);
    const QColor text(0xee, 0xf0, 0xf1);
    const QColor faded(0x8a, 0x90, 0x96);
    // Lights and shadows of frames and buttons follow from these two.
    QPalette palette(QColor(0x36, 0x3b, 0x40), ground);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    palette.setColor(QPalette::Base, QColor(0x1d, 0x20, 0x23));
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x66, 0x90));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x8f, 0xb6, 0xff));
    QApplication::setPalette(palette);
}

} // namespace gfc::test
