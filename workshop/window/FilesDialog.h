#pragma once

#include <QDialog>

#include <filesystem>

class QLabel;
class QPushButton;

namespace gfc::workshop {

class FilteredTable;

/// The files that a download brings to the stations, and the download itself into a folder that stands for
/// them.
class FilesDialog : public QDialog {
    Q_OBJECT
public:
    explicit FilesDialog(std::filesystem::path project, QWidget* parent = nullptr);

    /// Checks the plant first, where gfc-audit stands beside this program, and asks where it finds errors.
    void DownloadTo(const std::filesystem::path& folder);

private:
    void ShowFiles();
    void AskForFolder();

    std::filesystem::path project_;
    FilteredTable* files_;
    QPushButton* download_;
    QLabel* outcome_;
};

} // namespace gfc::workshop
