#include "qt/support/Offscreen.h"

#include <QDir>
#include <QFile>
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
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("screen.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ScreenOf(scale)) < 0)
        return;
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
}

} // namespace gfc::test
