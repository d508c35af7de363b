#pragma once

#include "ui/ListView.h"

#include <QAbstractTableModel>

#include <vector>

namespace gfc::qt {

// A list's rows as the table view reads them: straight from the control, nothing is copied. The control tells
// of a change after it has made it, so the number of rows that the view knows of is kept here.
class RowsModel final : public QAbstractTableModel {
public:
    // With marks the first column is one of check boxes.
    explicit RowsModel(const ui::ListView& list, bool marks = false) : list_(&list), marks_(marks) {
        Reset();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Shows the rows in the order of a column's texts, where the list lets itself be sorted; -1 for its own
    // order. It stays in force until another is asked for.
    void sort(int column, Qt::SortOrder order) override;

    // Rows are counted from 1, as in the control; 0 and the invalid index stand for each other. A row that
    // the list does not show has none.
    [[nodiscard]] int RowOf(const QModelIndex& at) const;
    [[nodiscard]] QModelIndex IndexOf(int row, int column) const;

    void Reset();
    void Added(int first, int last);
    void Removed(int first, int last);
    void Altered(int first, int last);
    // The control has gone: there is nothing to read any more.
    void Release();

private:
    // Of a row that the list marks; none for another.
    [[nodiscard]] QVariant ColourOf(int row) const;
    [[nodiscard]] Qt::CheckState MarkOf(int row) const;

    [[nodiscard]] bool IsSorted() const { return !rowAt_.empty(); }
    // An order is asked for, and the list lets itself be sorted.
    [[nodiscard]] bool CanBeSorted() const;
    void PutInOrder();

    const ui::ListView* list_;
    bool marks_;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    std::vector<int> rowAt_;   // the row at each place; empty for the list's own order
    std::vector<int> placeOf_; // the other way round, from 0; -1 for a row that is not shown
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace gfc::qt
