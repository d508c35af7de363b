#include "tour/Workshop.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace gfc::tour {

bool Workshop(const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("io-workshop")),
                  arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace gfc::tour
