#include "workshop/window/FilesDialog.h"

#include "workshop/load/Download.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/window/FilteredTable.h"
#include "workshop/window/Told.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

namespace gfc::workshop {

namespace {

#ifdef _WIN32
constexpr const char* AuditName = "gfc-audit.exe";
#else
constexpr const char* AuditName = "gfc-audit";
#endif

// What the check of the plant lists as errors; empty where there are none or nothing beside us can check.
QString ErrorsOfPlant(QString& fault) {
    const QString program =
        QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(AuditName);
    if (!QFileInfo(program).isExecutable()) {
        return {};
    }
    QProcess audit;
    audit.start(program, {QStringLiteral("check"), QStringLiteral("--severity"), QStringLiteral("error")});
    if (!audit.waitForFinished(-1) || audit.exitStatus() != QProcess::NormalExit || audit.exitCode() > 1) {
        fault = QString::fromUtf8(audit.readAllStandardError()).trimmed();
        return {};
    }
    return audit.exitCode() == 1 ? QString::fromUtf8(audit.readAllStandardOutput()).trimmed() : QString();
}

} // namespace

FilesDialog::FilesDialog(std::filesystem::path project, QWidget* parent)
    : QDialog(parent), project_(std::move(project)),
      files_(new FilteredTable(tr("files"),
                               {tr("Station"), tr("Target on the station"), tr("Local file"), tr("State")})),
      download_(nullptr), outcome_(new QLabel) {
    setObjectName(QStringLiteral("FilesDialog"));
    setWindowTitle(tr("Files to Load"));
    outcome_->setObjectName(QStringLiteral("Outcome"));
    outcome_->setWordWrap(true);
    outcome_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    download_ = buttons->addButton(tr("&Download to a folder..."), QDialogButtonBox::ActionRole);
    download_->setObjectName(QStringLiteral("Download"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(files_, 1);
    layout->addWidget(outcome_);
    layout->addWidget(buttons);
    resize(820, 420);
    connect(download_, &QPushButton::clicked, this, &FilesDialog::AskForFolder);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowFiles();
}

void FilesDialog::ShowFiles() {
    std::vector<QStringList> rows;
    Attempt(this, [&] {
        Project project = Project::Open(project_, Access::Read);
        for (const FileToLoad& file : ListFilesToLoad(project)) {
            const bool there = std::filesystem::is_regular_file(LocalPath(project, file.Local));
            rows.push_back({Shown(file.Station), Shown(file.Target), Shown(file.Local),
                            there ? tr("there") : tr("missing")});
        }
    });
    download_->setEnabled(!rows.empty());
    outcome_->setText(
        rows.empty() ? tr("No station has a file to load. The configurator enters those of the configured "
                          "stations when it ends.")
                     : QString());
    files_->Show(std::move(rows));
}

void FilesDialog::AskForFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("A folder that stands for the stations"));
    if (!folder.isEmpty()) {
        DownloadTo(PathOf(Typed(folder)));
    }
}

void FilesDialog::DownloadTo(const std::filesystem::path& folder) {
    QString fault;
    const QString errors = ErrorsOfPlant(fault);
    if (!fault.isEmpty()) {
        outcome_->setText(tr("The plant could not be checked: %1").arg(fault));
    }
    if (!errors.isEmpty()) {
        QMessageBox box(QMessageBox::Warning, tr("I/O Workshop"),
                        tr("The check of the plant finds errors. Download all the same?"),
                        QMessageBox::Yes | QMessageBox::No, this);
        box.setDetailedText(errors);
        box.setDefaultButton(QMessageBox::No);
        if (box.exec() != QMessageBox::Yes) {
            outcome_->setText(tr("Nothing was downloaded."));
            return;
        }
    }
    Attempt(this, [&] {
        Project project = Project::Open(project_, Access::Read);
        const DownloadResult result = Download(project, folder);
        QStringList lines{tr("Files downloaded: %1.").arg(result.Written.size())};
        for (const std::string& text : result.Faults) {
            lines += Shown(text);
        }
        outcome_->setText(lines.join(QLatin1Char('\n')));
    });
}

} // namespace gfc::workshop
