#pragma once

#include "ui/Control.h"

#include <vector>

namespace gfc::ui {

// Told of changes row by row, so that a list of a hundred thousand rows is never rebuilt for one of them.
class RowsObserver {
public:
    virtual ~RowsObserver() = default;
    virtual void RowsReset() = 0;
    virtual void RowsAdded(int first, int last) = 0;
    virtual void RowsRemoved(int first, int last) = 0;
    virtual void RowsChanged(int first, int last) = 0;
    virtual void SelectionChanged() = 0;
};

// A table of texts. Rows are counted from 1, as its users count them; column 0 is the row's own text.
class ListView : public Control {
public:
    using Row = std::vector<std::string>;
    struct Column {
        std::string Heading;
        int Width = 0; // in characters; 0 for as wide as needed
    };

    ListView(Place place, std::string name) : Control(place, Kind::ListView, std::move(name)) {}

    [[nodiscard]] const std::vector<Column>& Columns() const { return columns_; }
    // All at once: a window lays its table out anew for each call.
    void AddColumns(std::vector<Column> columns);
    void ClearColumns();

    [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] const Row& At(int row) const { return rows_.at(static_cast<std::size_t>(row - 1)); }
    // The empty text for a cell that the row does not have.
    [[nodiscard]] const std::string& Cell(int row, int column) const;
    void AddRow(Row row);
    void AddRows(std::vector<Row> rows);
    void SetCell(int row, int column, std::string text);
    void RemoveRows(int first, int count);
    void ClearRows();
    // Gives each row the bare number of its place as its text.
    void Renumber();

    // 0 for none.
    [[nodiscard]] int SelectedRow() const { return selected_; }
    void SelectRow(int row);
    // A person clicked a row.
    std::function<void(int row)> OnRowClick;
    bool PersonClicksRow(int row);

    void SetRowsObserver(RowsObserver* observer) { observer_ = observer; }

private:
    std::vector<Column> columns_;
    std::vector<Row> rows_;
    RowsObserver* observer_ = nullptr;
    int selected_ = 0;
};

} // namespace gfc::ui
