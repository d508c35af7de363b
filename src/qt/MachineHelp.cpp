#include "qt/MachineHelp.h"

#include "qt/Texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace gfc::qt {

QStringList MachineHelpArguments(const QString& path, int context) {
    const QString book = QStringLiteral("ms-its:") + QDir::toNativeSeparators(path);
    return context == 0 ? QStringList{book}
                        : QStringList{QStringLiteral("-mapid"), QString::number(context), book};
}

bool OpenMachineHelp([[maybe_unused]] const std::string& file, [[maybe_unused]] int context) {
#ifdef Q_OS_WIN
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(ToQt(file));
    return QFileInfo::exists(path) &&
           QProcess::startDetached(QStringLiteral("hh.exe"), MachineHelpArguments(path, context));
#else
    return false;
#endif
}

} // namespace gfc::qt
