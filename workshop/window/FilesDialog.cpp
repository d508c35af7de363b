#include "workshop/window/FilesDialog.h"

#include "workshop/load/Download.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/window/FilteredTable.h"
#include "workshop/window/Place.h"
#include "workshop/window/PlantCheck.h"
#include "workshop/window/Told.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gfc::workshop {

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
    ResizeWithin(*this, {820, 420});
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

// As the command does it, stations with errors are left out; here a person may say otherwise. Nothing where
// nothing is to be downloaded at all.
std::optional<std::set<std::string>> FilesDialog::LeftOut(const PlantErrors& errors) {
    if (errors.Stations.empty()) {
        return std::set<std::string>();
    }
    QStringList names;
    for (const std::string& station : errors.Stations) {
        names += Shown(station);
    }
    constexpr qsizetype most = 8;
    const QString more = names.size() > most ? tr(" and %1 more").arg(names.size() - most) : QString();
    QMessageBox box(QMessageBox::Warning, tr("I/O Workshop"),
                    tr("The check of the plant finds errors in the configuration of %1%2.")
                        .arg(names.mid(0, most).join(QStringLiteral(", ")), more),
                    QMessageBox::Cancel, this);
    box.setDetailedText(errors.Found);
    QPushButton* without = box.addButton(tr("&Leave them out"), QMessageBox::AcceptRole);
    QPushButton* all = box.addButton(tr("Download &all"), QMessageBox::DestructiveRole);
    without->setObjectName(QStringLiteral("Without"));
    all->setObjectName(QStringLiteral("All"));
    box.setDefaultButton(without);
    box.exec();
    if (box.clickedButton() == without) {
        return errors.Stations;
    }
    return box.clickedButton() == all ? std::optional(std::set<std::string>()) : std::nullopt;
}

void FilesDialog::DownloadTo(const std::filesystem::path& folder) {
    Attempt(this, [&] {
        Project project = Project::Open(project_, Access::Read);
        const PlantErrors errors = CheckPlant(project, this);
        const auto refused = errors.Cancelled ? std::nullopt : LeftOut(errors);
        if (!refused) {
            outcome_->setText(tr("Nothing was downloaded."));
            return;
        }
        const DownloadResult result = Download(project, folder, *refused);
        QStringList lines{tr("Files downloaded: %1.").arg(result.Written.size())};
        if (!errors.Fault.isEmpty()) {
            lines += tr("The plant could not be checked: %1").arg(errors.Fault);
        }
        for (const std::string& text : result.Faults) {
            lines += InWindow(text);
        }
        outcome_->setText(lines.join(QLatin1Char('\n')));
    });
}

} // namespace gfc::workshop
