#pragma once

#include "workshop/import/TagImport.h"

#include <QDateTime>
#include <QDialog>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressDialog;
class QPushButton;
class QTableWidget;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

namespace gfc::workshop {

/// A table of tags on its way into the project: at the left what is said of it, column by column, at the
/// right what would come of that. Nothing is changed before Import.
class ImportDialog : public QDialog {
    Q_OBJECT
public:
    ImportDialog(std::filesystem::path project, std::filesystem::path table, QWidget* parent = nullptr);

    /// What was done, once it was; empty else.
    [[nodiscard]] QString Done() const { return done_; }
    /// The first station that the table brought something for.
    [[nodiscard]] QString Station() const { return changed_; }

    /// Asks first where something was said of the table that is not kept.
    void reject() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QWidget* MakeWishes();
    [[nodiscard]] QWidget* MakePreview();
    [[nodiscard]] ImportRequest Request() const;
    void TakeWishes(const TableWishes& wishes);
    void Later();
    void Preview();
    void ShowTitles(const Heading& titles);
    void ShowPlan(const ImportPlan& plan);
    void ShowBroken(const ImportPlan& plan);
    void Import();
    void Keep();
    void OfferColumns(int row, const std::string& theirs);
    [[nodiscard]] static Progress Watched(QProgressDialog& told);
    void ReadTable(const Progress& progress);

    std::filesystem::path project_;
    std::filesystem::path table_;
    std::optional<CsvTable> read_; ///< as read with readAs_
    std::string readAs_;
    QDateTime readAt_; ///< when the table was changed last before that
    std::vector<std::string> shownTitles_;
    TableWishes columns_; ///< the columns that a person named, also of titles that this table lacks
    bool said_ = false;   ///< since the mapping was chosen or kept
    QString done_;
    QString changed_;

    QComboBox* mapping_ = nullptr;
    QTableWidget* titles_ = nullptr;
    QLineEdit* station_ = nullptr;
    QLineEdit* module_ = nullptr;
    QLineEdit* moduleType_ = nullptr;
    QComboBox* direction_ = nullptr;
    QLineEdit* registerBase_ = nullptr;
    QLineEdit* encoding_ = nullptr;
    QCheckBox* ignoreUnknown_ = nullptr;
    QCheckBox* replace_ = nullptr;
    QTreeWidget* preview_ = nullptr;
    QLabel* verdict_ = nullptr;
    QPushButton* import_ = nullptr;
    QTimer* later_ = nullptr;
};

} // namespace gfc::workshop
