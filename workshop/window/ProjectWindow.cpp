#include "workshop/window/ProjectWindow.h"

#include "workshop/demo/SampleProject.h"
#include "workshop/edit/TagEdits.h"
#include "workshop/export/TagExport.h"
#include "workshop/store/OpenProject.h"
#include "workshop/store/Stations.h"
#include "workshop/store/WholeFile.h"
#include "workshop/usage/TagUses.h"
#include "workshop/window/FilesDialog.h"
#include "workshop/window/FilteredTable.h"
#include "workshop/window/FolderQuestion.h"
#include "workshop/window/ImportDialog.h"
#include "workshop/window/Place.h"
#include "workshop/window/StartPage.h"
#include "workshop/window/Told.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QUrl>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

constexpr int MostRecent = 8;

QString RecentKey() {
    return QStringLiteral("recentProjects");
}

void Remember(const fs::path& file) {
    QSettings settings;
    QStringList recent = settings.value(RecentKey()).toStringList();
    recent.removeAll(Shown(file));
    recent.prepend(Shown(file));
    settings.setValue(RecentKey(), recent.mid(0, MostRecent));
}

// Those that a start page has room for.
QStringList RecentThatStand() {
    constexpr qsizetype Most = 3;
    QStringList files;
    for (const QString& file : QSettings().value(RecentKey()).toStringList()) {
        if (files.size() < Most && QFileInfo::exists(file)) {
            files += file;
        }
    }
    return files;
}

fs::path Whole(const QString& path) {
    return fs::absolute(PathOf(Typed(path))).lexically_normal();
}

bool AskedYes(QWidget* parent, const QString& text) {
    return QMessageBox::question(parent, QMessageBox::tr("I/O Workshop"), text,
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

// Empty where the configurator does not stand beside this program.
QString Configurator() {
#ifdef _WIN32
    const QString name = QStringLiteral("/gfc-configurator.exe");
#else
    const QString name = QStringLiteral("/gfc-configurator");
#endif
    const QString program = QCoreApplication::applicationDirPath() + name;
    return QFileInfo::exists(program) ? program : QString();
}

} // namespace

ProjectWindow::ProjectWindow()
    : pages_(new QStackedWidget), start_(new StartPage),
      stations_(new FilteredTable(
          tr("stations"), {tr("Station"), tr("Type"), tr("IP Address"), tr("Serial Number"), tr("Tags")})),
      tags_(new FilteredTable(tr("tags"), {tr("Tag"), tr("Class"), tr("Register"), tr("Module"),
                                           tr("Module Type"), tr("Description")})) {
    setObjectName(QStringLiteral("ProjectWindow"));
    setAcceptDrops(true);
    auto* parts = new QSplitter;
    parts->addWidget(stations_);
    parts->addWidget(tags_);
    parts->setStretchFactor(1, 1);
    parts->setSizes({360, 640});
    pages_->addWidget(start_);
    pages_->addWidget(parts);
    setCentralWidget(pages_);
    MakeMenus();
    FillStartPage();
    connect(stations_, &FilteredTable::CurrentChanged, this, &ProjectWindow::ShowTags);
    connect(tags_, &FilteredTable::CurrentChanged, this, &ProjectWindow::Enable);
    connect(tags_, &FilteredTable::Activated, this, &ProjectWindow::ShowUses);
    tags_->View()->setContextMenuPolicy(Qt::ActionsContextMenu);
    tags_->View()->addActions(ofTag_);
    ResizeWithin(*this, {1080, 660});
    restoreGeometry(QSettings().value(QStringLiteral("window")).toByteArray());
    Refresh();
}

QAction* ProjectWindow::Add(QMenu* menu, const char* name, const QString& text, const QKeySequence& keys,
                            void (ProjectWindow::*does)()) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, does);
    return action;
}

void ProjectWindow::MakeMenus() {
    QMenu* project = menuBar()->addMenu(tr("&Project"));
    Add(project, "New", tr("&New..."), QKeySequence::New, &ProjectWindow::AskForNewProject);
    Add(project, "Open", tr("&Open..."), QKeySequence::Open, &ProjectWindow::AskForProject);
    recent_ = project->addMenu(tr("&Recent"));
    connect(recent_, &QMenu::aboutToShow, this, &ProjectWindow::ShowRecent);
    Add(project, "Sample", tr("Make a &sample..."), {}, &ProjectWindow::AskForSample);
    project->addSeparator();
    ofProject_ += Add(project, "Configurator", tr("Start the con&figurator"),
                      QKeySequence(Qt::CTRL | Qt::Key_G), &ProjectWindow::StartConfigurator);
    ofProject_ += Add(project, "Close", tr("&Close"), QKeySequence::Close, &ProjectWindow::CloseProject);
    QAction* quit = project->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu* tags = menuBar()->addMenu(tr("&Tags"));
    ofProject_ += Add(tags, "ImportTags", tr("&Import a table..."), QKeySequence(Qt::CTRL | Qt::Key_I),
                      &ProjectWindow::AskForTable);
    ofProject_ += Add(tags, "ExportTags", tr("&Export to a table..."), QKeySequence(Qt::CTRL | Qt::Key_E),
                      &ProjectWindow::AskForExport);
    tags->addSeparator();
    ofTag_ += Add(tags, "WhereUsed", tr("&Where used..."), QKeySequence(Qt::CTRL | Qt::Key_U),
                  &ProjectWindow::ShowUses);
    ofTag_ += Add(tags, "RenameTag", tr("&Rename..."), QKeySequence(Qt::Key_F2), &ProjectWindow::RenameTag);
    ofTag_ +=
        Add(tags, "MoveTag", tr("&Move to a register..."), QKeySequence(Qt::Key_F6), &ProjectWindow::MoveTag);
    ofTag_ += Add(tags, "RemoveTag", tr("Re&move..."), QKeySequence::Delete, &ProjectWindow::RemoveTag);
    ofProject_ += Add(tags, "Find", tr("&Find"), QKeySequence::Find, &ProjectWindow::Find);

    QMenu* stations = menuBar()->addMenu(tr("&Stations"));
    ofProject_ += Add(stations, "Files", tr("&Files to load and download..."),
                      QKeySequence(Qt::CTRL | Qt::Key_D), &ProjectWindow::ShowFiles);
    ofProject_ += Add(stations, "Refresh", tr("&Read anew"), QKeySequence::Refresh, &ProjectWindow::Refresh);

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    Add(help, "Manual", tr("&Manual"), QKeySequence::HelpContents, &ProjectWindow::ShowManual);
    Add(help, "About", tr("&About"), {}, &ProjectWindow::ShowAbout);
}

void ProjectWindow::FillStartPage() {
    const auto offer = [this](const char* name, const QString& text, const QString& explanation) {
        start_->Offer(findChild<QAction*>(QLatin1String(name)), text, explanation);
    };
    offer("Sample", tr("Make a &sample..."),
          tr("A project of eight stations with their tags, to try everything on."));
    offer("New", tr("&New project..."),
          tr("An empty one. Its stations and tags come from a table of your own: Tags > Import a table."));
    offer("Open", tr("&Open a project..."), tr("One that was made here before."));
    connect(start_, &StartPage::Opened, this, [this](const QString& file) { OpenProject(Whole(file)); });
}

void ProjectWindow::ShowRecent() {
    recent_->clear();
    for (const QString& path : QSettings().value(RecentKey()).toStringList()) {
        connect(recent_->addAction(path), &QAction::triggered, this,
                [this, path] { OpenProject(Whole(path)); });
    }
    if (recent_->isEmpty()) {
        recent_->addAction(tr("none so far"))->setEnabled(false);
    }
}

bool ProjectWindow::OpenProject(const fs::path& file) {
    const bool opened = Attempt(this, [&] {
        CheckProjectPath(file);
        static_cast<void>(Project::Open(file, Access::Read));
        RecordProject(file);
        Remember(file);
    });
    if (opened) {
        Refresh();
        Say(tr("Opened %1. The configurator works on it from its next start: Project > Start the "
               "configurator.")
                .arg(Shown(file)));
    }
    return opened;
}

bool ProjectWindow::MakeProject(const fs::path& file) {
    const bool made = Attempt(this, [&] {
        CheckProjectPath(file);
        MakeFolder(file.parent_path());
        static_cast<void>(Project::Create(file));
    });
    return made && OpenProject(file);
}

bool ProjectWindow::MakeSampleIn(const fs::path& folder) {
    fs::path file = SampleFilesIn(folder).Project;
    if (fs::exists(file) && AskedYes(this, tr("%1 is there already. Open it?").arg(Shown(file)))) {
        return OpenProject(file);
    }
    if (fs::exists(file)) {
        return false;
    }
    const bool made = Attempt(this, [&] { file = MakeSample(folder, Existing::Refuse).Project; });
    return made && OpenProject(file);
}

void ProjectWindow::Refresh() {
    recorded_ = RecordedProject().value_or(fs::path());
    changedAt_ = ChangedAt(recorded_);
    file_ = recorded_;
    setWindowTitle(file_.empty() ? tr("I/O Workshop") : tr("%1 - I/O Workshop").arg(Shown(file_.filename())));
    ShowStations();
    ShowTags();
}

void ProjectWindow::ShowStations() {
    std::vector<QStringList> rows;
    if (!file_.empty()) {
        const bool shown = Attempt(this, [&] {
            Project project = Project::Open(file_, Access::Read);
            for (const Station& station : ListStations(project)) {
                rows.push_back({Shown(station.Name), Shown(station.Type), Shown(station.Address),
                                QString::number(station.SerialNumber),
                                QString::number(CountTags(project, station.Id))});
            }
        });
        file_ = shown ? file_ : fs::path();
    }
    Say(file_.empty() ? tr("No project is open: make one, open one, or make the sample by the menu Project.")
                      : Shown(file_));
    stations_->Show(std::move(rows));
    start_->OfferRecent(file_.empty() ? RecentThatStand() : QStringList());
    pages_->setCurrentIndex(file_.empty() ? 0 : 1);
}

void ProjectWindow::ShowTags() {
    std::vector<QStringList> rows;
    const std::string name = CurrentStation();
    if (!file_.empty() && !name.empty()) {
        Attempt(this, [&] {
            Project project = Project::Open(file_, Access::Read);
            for (const Tag& tag : ListTags(project, StationNamed(project, name).Id)) {
                rows.push_back({Shown(tag.Name), Shown(tag.Class), QString::number(tag.Register),
                                Shown(tag.Module), Shown(tag.ModuleType), Shown(tag.Description)});
            }
        });
    }
    tags_->Show(std::move(rows));
    Enable();
}

void ProjectWindow::Enable() {
    for (QAction* action : ofProject_) {
        action->setEnabled(!file_.empty());
    }
    for (QAction* action : ofTag_) {
        action->setEnabled(!CurrentTag().empty());
    }
}

void ProjectWindow::AskForProject() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a project"), Shown(file_.parent_path()),
                                                      tr("Projects (*.KPJ *.kpj)"));
    if (!path.isEmpty()) {
        OpenProject(Whole(path));
    }
}

void ProjectWindow::AskForNewProject() {
    QString path =
        QFileDialog::getSaveFileName(this, tr("Make a new, empty project"), Shown(file_.parent_path()),
                                     tr("Projects (*.KPJ)"), nullptr, QFileDialog::DontConfirmOverwrite);
    if (!path.isEmpty()) {
        path +=
            path.endsWith(QStringLiteral(".KPJ"), Qt::CaseInsensitive) ? QString() : QStringLiteral(".KPJ");
        MakeProject(Whole(path));
    }
}

void ProjectWindow::AskForSample() {
    FolderQuestion question(
        tr("Make a sample"),
        tr("The sample is the project plant.KPJ with one configured station. Its folder is made "
           "where it is not there yet."),
        tr("&Make the sample"), this);
    question.Propose(UnusedFolder(QStringLiteral("plant")));
    if (question.exec() == QDialog::Accepted) {
        MakeSampleIn(Whole(question.Folder()));
    }
}

void ProjectWindow::CloseProject() {
    Attempt(this, [] { ForgetProject(); });
    Refresh();
}

void ProjectWindow::AskForTable() {
    const QString path = QFileDialog::getOpenFileName(this, tr("A table of tags"), Shown(file_.parent_path()),
                                                      tr("Tables (*.csv *.txt *.tsv);;All files (*)"));
    if (!path.isEmpty()) {
        ImportTable(Whole(path));
    }
}

void ProjectWindow::ImportTable(const fs::path& table) {
    if (file_.empty() && AskedYes(this, tr("No project is open that could take %1 in. Make a new one for it?")
                                            .arg(Shown(table.filename())))) {
        AskForNewProject();
    }
    if (file_.empty()) {
        return Say(tr("Open a project first, to take the table into."));
    }
    ImportDialog dialog(file_, table, this);
    if (dialog.exec() == QDialog::Accepted) {
        Refresh();
        stations_->SelectFirst(dialog.Station());
        Say(dialog.Done());
    }
}

void ProjectWindow::AskForExport() {
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Write stations and tags as a table"),
                                     Shown(file_.parent_path() / "tags.csv"), tr("Tables (*.csv)"));
    if (path.isEmpty()) {
        return;
    }
    const bool written = Attempt(this, [&] {
        Project project = Project::Open(file_, Access::Read);
        ReplaceWhole(Whole(path), std::string(ByteOrderMark) + TagTableText(StationTagsOf(project, ""), ','));
    });
    if (written) {
        Say(tr("Wrote all stations and tags to %1.").arg(path));
    }
}

QString ProjectWindow::UsesOf(const std::string& station, const std::string& tag) const {
    QStringList lines;
    Project project = Project::Open(file_, Access::Read);
    for (const TagUse& use : UsesNaming(TagUsesOf(project, StationNamed(project, station)), tag)) {
        lines += tr("%1, %2%3")
                     .arg(Shown(use.Section), Shown(use.Key), use.Off ? tr(" (the run is off)") : QString());
    }
    return lines.join(QLatin1Char('\n'));
}

void ProjectWindow::ShowUses() {
    const std::string station = CurrentStation();
    const std::string tag = CurrentTag();
    Attempt(this, [&] {
        const QString uses = UsesOf(station, tag);
        const QString text =
            uses.isEmpty()
                ? tr("The configuration of %1 names %2 nowhere.").arg(Shown(station), Shown(tag))
                : tr("The configuration of %1 names %2 at:\n\n%3").arg(Shown(station), Shown(tag), uses);
        QMessageBox::information(this, tr("Where used"), text);
    });
}

bool ProjectWindow::Change(const std::function<std::string(Project&)>& change) {
    std::string done;
    const bool changed = Attempt(this, [&] {
        Project project = Project::Open(file_, Access::Write);
        done = change(project);
    });
    Refresh();
    if (changed) {
        Say(Shown(done));
    }
    return changed;
}

namespace {

// Led by what would no longer fit, so that nobody finds out on Friday.
QString WithUses(const QString& question, const QString& uses) {
    return uses.isEmpty()
               ? question
               : QObject::tr("%1\n\nThe station's configuration names this tag at:\n%2\nThat would no longer "
                             "fit and has to be bound anew.")
                     .arg(question, uses);
}

} // namespace

void ProjectWindow::RenameTag() {
    const EditOfTag edit{CurrentStation(), CurrentTag(), ""};
    Attempt(this, [&] {
        bool given = false;
        const QString uses = UsesOf(edit.Station, edit.Tag);
        const QString name = QInputDialog::getText(
            this, tr("Rename a tag"), WithUses(tr("The new name of %1:").arg(Shown(edit.Tag)), uses),
            QLineEdit::Normal, Shown(edit.Tag), &given);
        if (given && name != Shown(edit.Tag)) {
            const bool renamed = Change([&](Project& project) {
                return workshop::RenameTag(project, {edit.Station, edit.Tag, Typed(name)});
            });
            tags_->SelectFirst(renamed ? name : Shown(edit.Tag));
        }
    });
}

void ProjectWindow::MoveTag() {
    const EditOfTag edit{CurrentStation(), CurrentTag(), ""};
    const QString was = tags_->Current().value(2);
    Attempt(this, [&] {
        bool given = false;
        const QString uses = UsesOf(edit.Station, edit.Tag);
        const QString number = QInputDialog::getText(
            this, tr("Move a tag"), WithUses(tr("The new register of %1:").arg(Shown(edit.Tag)), uses),
            QLineEdit::Normal, was, &given);
        if (given && number != was) {
            Change([&](Project& project) {
                return workshop::MoveTag(project, {edit.Station, edit.Tag, Typed(number)});
            });
        }
    });
}

void ProjectWindow::RemoveTag() {
    const EditOfTag edit{CurrentStation(), CurrentTag(), ""};
    Attempt(this, [&] {
        const QString question = tr("Remove %1 from %2?").arg(Shown(edit.Tag), Shown(edit.Station));
        if (AskedYes(this, WithUses(question, UsesOf(edit.Station, edit.Tag)))) {
            Change([&](Project& project) { return workshop::RemoveTag(project, edit); });
        }
    });
}

void ProjectWindow::ShowFiles() {
    FilesDialog(file_, this).exec();
}

void ProjectWindow::StartConfigurator() {
    const QString program = Configurator();
    if (program.isEmpty() || !QProcess::startDetached(program, {})) {
        QMessageBox::warning(this, tr("I/O Workshop"),
                             tr("The configurator could not be started. Start it from the desktop's menu."));
    }
}

// The configurator's manual, in whatever this desktop shows such pages with.
void ProjectWindow::ShowManual() {
    const QString page =
        QCoreApplication::applicationDirPath() + QStringLiteral("/gfc-manual/bring-in-tags.html");
    if (!QFileInfo::exists(page) || !QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        QMessageBox::information(
            this, tr("I/O Workshop"),
            tr("The manual could not be shown. It opens by F1 in the configurator, too."));
    }
}

void ProjectWindow::ShowAbout() {
    QMessageBox::about(
        this, tr("I/O Workshop"),
        tr("Stands in for the I/O Workshop tool where that is not installed: it keeps projects of stations "
           "and their I/O tags, on which the gas flow computer configurator works.\n\n"
           "The command io-workshop does the same in a terminal."));
}

void ProjectWindow::Find() {
    (stations_->isAncestorOf(focusWidget()) ? stations_ : tags_)->FocusFilter();
}

std::string ProjectWindow::CurrentStation() const {
    return Typed(stations_->Current().value(0));
}

std::string ProjectWindow::CurrentTag() const {
    return Typed(tags_->Current().value(0));
}

void ProjectWindow::Say(const QString& text) {
    statusBar()->showMessage(text);
}

void ProjectWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && event->mimeData()->urls().first().isLocalFile()) {
        event->acceptProposedAction();
    }
}

// Whoever dropped it waits until this has returned: the windows that ask come behind that.
void ProjectWindow::dropEvent(QDropEvent* event) {
    std::vector<fs::path> files;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            files.push_back(Whole(url.toLocalFile()));
        }
    }
    event->acceptProposedAction();
    QTimer::singleShot(0, this, [this, files] {
        for (const fs::path& file : files) {
            Take(file);
        }
    });
}

void ProjectWindow::Take(const fs::path& file) {
    raise();
    activateWindow();
    if (Shown(file.extension()).compare(QStringLiteral(".kpj"), Qt::CaseInsensitive) == 0) {
        OpenProject(file);
    } else {
        ImportTable(file);
    }
}

void ProjectWindow::closeEvent(QCloseEvent* event) {
    QSettings().setValue(QStringLiteral("window"), saveGeometry());
    QMainWindow::closeEvent(event);
}

// Whoever comes back from the configurator or a terminal sees what came of it.
void ProjectWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        const fs::path open = RecordedProject().value_or(fs::path());
        // One that cannot be read is told of once, not each time that its box is closed.
        if (open != recorded_ || ChangedAt(open) != changedAt_) {
            Refresh();
        }
    }
    QMainWindow::changeEvent(event);
}

} // namespace gfc::workshop
