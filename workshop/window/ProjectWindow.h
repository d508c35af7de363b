#pragma once

#include "workshop/store/Project.h"
#include "workshop/store/Tags.h"

#include <QDateTime>
#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <optional>

class QAction;
class QMenu;
class QStackedWidget;

namespace gfc::workshop {

class FilteredTable;
class StartPage;

/// One project: its stations, the tags of the chosen one, and all that io-workshop does with them, by the
/// same store and rules. The project that it shows is the open one, which the configurator works on.
class ProjectWindow : public QMainWindow {
    Q_OBJECT
public:
    ProjectWindow();

    /// Shows this project and makes it the open one; says why where it cannot.
    bool OpenProject(const std::filesystem::path& file);
    bool MakeProject(const std::filesystem::path& file);
    bool MakeSampleIn(const std::filesystem::path& folder);
    /// Offers the table for import into the shown project.
    void ImportTable(const std::filesystem::path& table);
    /// Reads the project anew, since others work on it too.
    void Refresh();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeMenus();
    void FillStartPage();
    QAction* Add(QMenu* menu, const char* name, const QString& text, const QKeySequence& keys,
                 void (ProjectWindow::*does)());
    void ShowRecent();
    void Enable();
    void ShowStations();
    void ShowTags();

    void AskForProject();
    void AskForNewProject();
    void AskForSample();
    void CloseProject();
    void AskForTable();
    void AskForExport();
    void RenameTag();
    void MoveTag();
    void RemoveTag();
    void ShowUses();
    void ShowFiles();
    void StartConfigurator();
    void ShowManual();
    void ShowAbout();
    void Find();

    [[nodiscard]] std::string CurrentStation() const;
    [[nodiscard]] std::string CurrentTag() const;
    /// Where the station's configuration names the tag, one line for each; empty where it does not.
    [[nodiscard]] QString UsesOf(const std::string& station, const std::string& tag) const;
    /// A file that was dropped: a project is opened, a table offered for import.
    void Take(const std::filesystem::path& file);
    void Say(const QString& text);
    /// False where it was refused, which was told.
    bool Change(const std::function<std::string(Project&)>& change);

    std::filesystem::path file_; ///< what is shown; empty for none
    std::filesystem::path
        recorded_; ///< what was open when that was read, though it may not have been readable
    QDateTime changedAt_;
    QStackedWidget* pages_; ///< the start page, and the tables
    StartPage* start_;
    FilteredTable* stations_;
    FilteredTable* tags_;
    QMenu* recent_ = nullptr;
    QList<QAction*> ofProject_;
    QList<QAction*> ofTag_;
};

} // namespace gfc::workshop
