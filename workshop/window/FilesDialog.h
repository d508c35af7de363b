#pragma once

#include <QDialog>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

class QLabel;
class QPushButton;

namespace gfc::workshop {

class FilteredTable;
struct PlantErrors;

/// The files that a download brings to the stations, and the download itself into a folder that stands for
/// them.
class FilesDialog : public QDialog {
    Q_OBJECT
public:
    explicit FilesDialog(std::filesystem::path project, QWidget* parent = nullptr);

    /// Checks the plant first, where gfc-audit stands beside this program, and asks what is to become of the
    /// stations with errors.
    void DownloadTo(const std::filesystem::path& folder);

private:
    void ShowFiles();
    void AskForFolder();
    [[nodiscard]] std::optional<std::set<std::string>> LeftOut(const PlantErrors& errors);

    std::filesystem::path project_;
    FilteredTable* files_;
    QPushButton* download_;
    QLabel* outcome_;
};

} // namespace gfc::workshop
