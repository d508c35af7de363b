#include "tour/Workshop.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace gfc::tour {

bool Workshop(const QStringList& arguments) {
    return Beside(QStringLiteral("io-workshop"), arguments) == 0;
}

int Beside(const QString& command, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QDir(QCoreApplication::applicationDirPath()).filePath(command), arguments);
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return ended ? process.exitCode() : -1;
}

} // namespace gfc::tour
