#include "ui/ListView.h"

#include <algorithm>
#include <iterator>

namespace gfc::ui {

void ListView::AddColumns(std::vector<Column> columns) {
    columns_.insert(columns_.end(), std::make_move_iterator(columns.begin()),
                    std::make_move_iterator(columns.end()));
    Changed();
    if (observer_ != nullptr)
        observer_->RowsReset();
}

void ListView::ClearColumns() {
    if (columns_.empty())
        return;
    columns_.clear();
    Changed();
    if (observer_ != nullptr)
        observer_->RowsReset();
}

const std::string& ListView::Cell(int row, int column) const {
    static const std::string nothing;
    const Row& cells = At(row);
    return column < static_cast<int>(cells.size()) ? cells[static_cast<std::size_t>(column)] : nothing;
}

void ListView::AddRow(Row row) {
    rows_.push_back(std::move(row));
    if (observer_ != nullptr)
        observer_->RowsAdded(Count(), Count());
}

void ListView::AddRows(std::vector<Row> rows) {
    if (rows.empty())
        return;
    const int first = Count() + 1;
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
    if (observer_ != nullptr)
        observer_->RowsAdded(first, Count());
}

void ListView::InsertRows(int row, std::vector<Row> rows) {
    if (rows.empty() || row < 1 || row > Count() + 1)
        return;
    const int last = row + static_cast<int>(rows.size()) - 1;
    rows_.insert(rows_.begin() + (row - 1), std::make_move_iterator(rows.begin()),
                 std::make_move_iterator(rows.end()));
    if (selected_ >= row)
        selected_ += last - row + 1;
    if (observer_ != nullptr)
        observer_->RowsAdded(row, last);
}

void ListView::ShowRows(std::vector<int> rows) {
    if (shown_ == rows)
        return;
    shown_ = std::move(rows);
    if (observer_ != nullptr)
        observer_->RowsReset();
}

void ListView::ShowAllRows() {
    if (!shown_)
        return;
    shown_.reset();
    if (observer_ != nullptr)
        observer_->RowsReset();
}

int ListView::ShownCount() const {
    return shown_ ? static_cast<int>(shown_->size()) : Count();
}

int ListView::RowAtPlace(int place) const {
    if (place < 1 || place > ShownCount())
        return 0;
    const int row = shown_ ? (*shown_)[static_cast<std::size_t>(place - 1)] : place;
    return row <= Count() ? row : 0;
}

int ListView::PlaceOfRow(int row) const {
    return row >= 1 && ShownFrom(row) == row ? ShownCount() - ShownBehind(row) : 0;
}

int ListView::ShownFrom(int row) const {
    if (!shown_)
        return row >= 1 && row <= Count() ? row : 0;
    const auto found = std::ranges::lower_bound(*shown_, row);
    return found == shown_->end() || *found > Count() ? 0 : *found;
}

int ListView::ShownBehind(int row) const {
    if (!shown_)
        return Count() - row;
    return static_cast<int>(shown_->end() - std::ranges::upper_bound(*shown_, row));
}

void ListView::SetCell(int row, int column, std::string text) {
    Row& cells = rows_.at(static_cast<std::size_t>(row - 1));
    if (column >= static_cast<int>(cells.size()))
        cells.resize(static_cast<std::size_t>(column) + 1);
    cells[static_cast<std::size_t>(column)] = std::move(text);
    if (observer_ != nullptr)
        observer_->RowsChanged(row, row);
}

void ListView::RemoveRows(int first, int count) {
    count = std::min(count, Count() - first + 1);
    if (first < 1 || count < 1)
        return;
    rows_.erase(rows_.begin() + (first - 1), rows_.begin() + (first - 1 + count));
    // The row itself stays selected, whatever its number is now.
    if (selected_ >= first + count)
        selected_ -= count;
    else if (selected_ >= first)
        selected_ = 0;
    if (observer_ != nullptr)
        observer_->RowsRemoved(first, first + count - 1);
}

void ListView::ClearRows() {
    if (rows_.empty())
        return;
    rows_.clear();
    selected_ = 0;
    if (observer_ != nullptr)
        observer_->RowsReset();
}

void ListView::Renumber() {
    NumberRows([](int row) { return std::to_string(row); });
}

void ListView::NumberRows(const std::function<std::string(int row)>& textOf) {
    for (int row = 1; row <= Count(); ++row) {
        Row& cells = rows_[static_cast<std::size_t>(row - 1)];
        if (cells.empty())
            cells.emplace_back();
        cells.front() = textOf(row);
    }
    if (observer_ != nullptr && Count() > 0)
        observer_->RowsChanged(1, Count());
}

void ListView::SelectRow(int row) {
    const int wanted = row >= 1 && row <= Count() ? row : 0;
    if (wanted == selected_)
        return;
    selected_ = wanted;
    if (observer_ != nullptr)
        observer_->SelectionChanged();
}

bool ListView::PersonClicksRow(int row) {
    if (row < 1 || PlaceOfRow(row) == 0 || !PersonActs())
        return false;
    SelectRow(row);
    Fire([this, row] {
        if (OnRowClick)
            OnRowClick(row);
    });
    return true;
}

bool ListView::PersonAsksForMenu(int row) {
    if (row > 0 ? !PersonClicksRow(row) : !PersonActs())
        return false;
    Fire([this, row] {
        if (OnMenu)
            OnMenu(row);
    });
    return true;
}

} // namespace gfc::ui
