#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

namespace gfc::workshop {

/// Rows of texts under titles.
class TextRows : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit TextRows(QStringList titles, QObject* parent = nullptr)
        : QAbstractTableModel(parent), titles_(std::move(titles)) {}

    void Show(std::vector<QStringList> rows);
    [[nodiscard]] const QStringList& Row(int row) const { return rows_.at(static_cast<std::size_t>(row)); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList titles_;
    std::vector<QStringList> rows_;
};

/// A table with a field above it: shown are the rows that hold each of its words in any column, in any order,
/// whatever their case and accents. A line below says how many of how many.
class FilteredTable : public QWidget {
    Q_OBJECT
public:
    /// The things are named in the line below, as "tags".
    FilteredTable(const QString& things, const QStringList& titles, QWidget* parent = nullptr);

    void Show(std::vector<QStringList> rows);
    /// The texts of the current row; empty where there is none.
    [[nodiscard]] QStringList Current() const;
    [[nodiscard]] std::vector<QStringList> Selected() const;
    /// Makes the first row with that text in its first column the current one.
    bool SelectFirst(const QString& text);
    [[nodiscard]] QTableView* View() const { return view_; }
    void FocusFilter();

Q_SIGNALS:
    void CurrentChanged();
    void Activated();

private:
    void Filter(const QString& text);
    void Count();

    QString things_;
    TextRows* rows_;
    QSortFilterProxyModel* shown_;
    QLineEdit* filter_;
    QTableView* view_;
    QLabel* count_;
};

} // namespace gfc::workshop
