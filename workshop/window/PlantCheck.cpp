#include "workshop/window/PlantCheck.h"

#include "workshop/load/Audit.h"
#include "workshop/window/Told.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProgressDialog>

namespace gfc::workshop {

namespace {

constexpr int HasErrors = 1; // of gfc-audit

// Waits with the windows alive; false where a person would not.
bool Finish(QProcess& audit, QWidget* parent) {
    QProgressDialog told(QObject::tr("Checking the plant..."), QObject::tr("Cancel"), 0, 0, parent);
    told.setWindowTitle(QObject::tr("I/O Workshop"));
    told.setWindowModality(Qt::WindowModal);
    told.setMinimumDuration(500);
    told.setValue(0);
    QEventLoop waiting;
    QObject::connect(&audit, &QProcess::finished, &waiting, &QEventLoop::quit);
    QObject::connect(&audit, &QProcess::errorOccurred, &waiting, &QEventLoop::quit);
    QObject::connect(&told, &QProgressDialog::canceled, &waiting, &QEventLoop::quit);
    if (audit.state() != QProcess::NotRunning) {
        waiting.exec();
    }
    if (told.wasCanceled()) {
        audit.kill();
        audit.waitForFinished();
    }
    return !told.wasCanceled();
}

void TakeErrors(const QByteArray& json, PlantErrors& errors) {
    QStringList lines;
    for (const QJsonValue each : QJsonDocument::fromJson(json)[QStringLiteral("stations")].toArray()) {
        const QString name = each[QStringLiteral("name")].toString();
        for (const QJsonValue finding : each[QStringLiteral("findings")].toArray()) {
            errors.Stations.insert(Typed(name));
            lines += QStringLiteral("%1: %2").arg(name, finding[QStringLiteral("text")].toString());
        }
    }
    errors.Found = lines.join(QLatin1Char('\n'));
}

} // namespace

PlantErrors CheckPlant(const Project& project, QWidget* parent) {
    PlantErrors errors;
    const std::filesystem::path program = AuditProgram();
    if (program.empty()) {
        return errors;
    }
    QStringList arguments{QStringLiteral("--json")};
    for (const std::string& argument : AuditArguments(project)) {
        arguments.insert(arguments.size() - 1, Shown(argument));
    }
    QProcess audit;
    audit.start(Shown(program), arguments);
    errors.Cancelled = !Finish(audit, parent);
    if (errors.Cancelled) {
        return errors;
    }
    if (audit.exitStatus() != QProcess::NormalExit || audit.error() == QProcess::FailedToStart ||
        audit.exitCode() > HasErrors) {
        errors.Fault = QString::fromUtf8(audit.readAllStandardError()).trimmed();
        errors.Fault = errors.Fault.isEmpty() ? audit.errorString() : errors.Fault;
    } else if (audit.exitCode() == HasErrors) {
        TakeErrors(audit.readAllStandardOutput(), errors);
    }
    return errors;
}

} // namespace gfc::workshop
