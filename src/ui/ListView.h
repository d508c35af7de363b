#pragma once

#include "ui/DragPlace.h"

#include <optional>
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
class ListView : public DragPlace {
public:
    using Row = std::vector<std::string>;
    struct Column {
        std::string Heading;
        int Width = 0; // in characters; 0 for as wide as needed
    };

    ListView(Place place, std::string name) : DragPlace(place, Kind::ListView, std::move(name)) {}

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
    // In front of the row; Count() + 1 adds them at the end.
    void InsertRows(int row, std::vector<Row> rows);
    void SetCell(int row, int column, std::string text);
    void RemoveRows(int first, int count);
    void ClearRows();
    // Gives each row the bare number of its place as its text.
    void Renumber();
    // Gives each row a text that follows from its place.
    void NumberRows(const std::function<std::string(int row)>& textOf);

    // Only these rows, ascending, are to be seen; their numbers and all that counts rows stay those of the
    // whole list. Whoever changes the rows afterwards says anew which are shown.
    void ShowRows(std::vector<int> rows);
    void ShowAllRows();
    [[nodiscard]] bool ShowsAllRows() const { return !shown_; }
    [[nodiscard]] int ShownCount() const;
    // The row at a place among the shown ones, counted from 1, and the other way round; 0 for none.
    [[nodiscard]] int RowAtPlace(int place) const;
    [[nodiscard]] int PlaceOfRow(int row) const;
    // The first shown row from this one on; 0 for none.
    [[nodiscard]] int ShownFrom(int row) const;

    // More about a row than its cells say; empty for no more.
    std::function<std::string(int row)> HintOf;

    // 0 for none.
    [[nodiscard]] int SelectedRow() const { return selected_; }
    void SelectRow(int row);
    // A person clicked a row.
    std::function<void(int row)> OnRowClick;
    bool PersonClicksRow(int row);
    // A person asks for the menu of a row, which is clicked first; 0 where there is none.
    std::function<void(int row)> OnMenu;
    bool PersonAsksForMenu(int row);

    void SetRowsObserver(RowsObserver* observer) { observer_ = observer; }

private:
    [[nodiscard]] int ShownBehind(int row) const;

    std::vector<Column> columns_;
    std::vector<Row> rows_;
    std::optional<std::vector<int>> shown_;
    RowsObserver* observer_ = nullptr;
    int selected_ = 0;
};

} // namespace gfc::ui
