#include "qt/render/RowsModel.h"

#include "qt/Texts.h"
#include "qt/render/ItemRole.h"
#include "qt/render/NaturalOrder.h"
#include "ui/CheckableList.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace gfc::qt {

namespace {

// Each on its ground at more than 4.5 to 1.
constexpr QColor markOnLight(0xb0, 0x00, 0x20);
constexpr QColor markOnDark(0xff, 0x9a, 0x9a);

} // namespace

QVariant RowsModel::ColourOf(int row) const {
    const auto* openable = dynamic_cast<const ui::OpenableList*>(list_);
    if (openable == nullptr || !openable->IsMarked || !openable->IsMarked(row))
        return {};
    const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    return dark ? markOnDark : markOnLight;
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int RowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

Qt::ItemFlags RowsModel::flags(const QModelIndex& index) const {
    const auto flags = QAbstractTableModel::flags(index);
    return marks_ && index.isValid() && index.column() == 0 ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    const int row = RowOf(index);
    if (row == 0)
        return {};
    if (marks_ && index.column() == 0 && role != ItemRole)
        return role == Qt::CheckStateRole ? QVariant(MarkOf(row)) : QVariant();
    if (role == Qt::ForegroundRole)
        return ColourOf(row);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != ItemRole)
        return {};
    if (role == ItemRole)
        return row;
    const std::string hint = role == Qt::ToolTipRole && list_->HintOf ? list_->HintOf(row) : std::string();
    return ToQt(hint.empty() ? list_->Cell(row, index.column()) : hint);
}

Qt::CheckState RowsModel::MarkOf(int row) const {
    return list_->Cell(row, 0) == ui::CheckableList::Mark ? Qt::Checked : Qt::Unchecked;
}

int RowsModel::RowOf(const QModelIndex& at) const {
    if (list_ == nullptr || !at.isValid())
        return 0;
    if (!IsSorted())
        return list_->RowAtPlace(at.row() + 1);
    const auto place = static_cast<std::size_t>(at.row());
    return place < rowAt_.size() && rowAt_[place] <= list_->Count() ? rowAt_[place] : 0;
}

QModelIndex RowsModel::IndexOf(int row, int column) const {
    if (list_ == nullptr || row < 1)
        return {};
    const auto at = static_cast<std::size_t>(row);
    const int place = !IsSorted() ? list_->PlaceOfRow(row) - 1 : at < placeOf_.size() ? placeOf_[at] : -1;
    return place < 0 || place >= rows_ ? QModelIndex() : index(place, column);
}

// What was selected stays selected, wherever it stands then.
void RowsModel::sort(int column, Qt::SortOrder order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> rows;
    for (const QModelIndex& at : before)
        rows.push_back(RowOf(at));
    sortColumn_ = column;
    sortOrder_ = order;
    PutInOrder();
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after << IndexOf(rows[static_cast<std::size_t>(i)], before[i].column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

bool RowsModel::CanBeSorted() const {
    const auto* openable = dynamic_cast<const ui::OpenableList*>(list_);
    return openable != nullptr && openable->SortsByHeading && sortColumn_ >= 0 && sortColumn_ < columns_;
}

void RowsModel::PutInOrder() {
    rowAt_.clear();
    placeOf_.clear();
    if (!CanBeSorted())
        return;
    struct Line {
        QString Text;
        int Row;
    };
    std::vector<Line> lines;
    for (int place = 1; place <= rows_; ++place)
        if (const int row = list_->RowAtPlace(place); row > 0)
            lines.push_back({ToQt(list_->Cell(row, sortColumn_)), row});
    const bool up = sortOrder_ == Qt::AscendingOrder;
    std::ranges::stable_sort(lines, [up](const Line& left, const Line& right) {
        return up ? CompareNaturally(left.Text, right.Text) < 0 : CompareNaturally(right.Text, left.Text) < 0;
    });
    placeOf_.assign(static_cast<std::size_t>(list_->Count()) + 1, -1);
    for (const Line& line : lines) {
        placeOf_[static_cast<std::size_t>(line.Row)] = static_cast<int>(rowAt_.size());
        rowAt_.push_back(line.Row);
    }
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (list_ == nullptr || orientation != Qt::Horizontal || section >= columns_)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return ToQt(list_->Columns()[static_cast<std::size_t>(section)].Heading);
}

void RowsModel::Reset() {
    beginResetModel();
    rows_ = list_ == nullptr ? 0 : list_->ShownCount();
    columns_ = list_ == nullptr ? 0 : static_cast<int>(list_->Columns().size());
    PutInOrder();
    endResetModel();
}

void RowsModel::Added(int first, int last) {
    if (!list_->ShowsAllRows() || CanBeSorted())
        return Reset();
    beginInsertRows({}, first - 1, last - 1);
    rows_ += last - first + 1;
    endInsertRows();
}

void RowsModel::Removed(int first, int last) {
    if (!list_->ShowsAllRows() || CanBeSorted())
        return Reset();
    beginRemoveRows({}, first - 1, last - 1);
    rows_ -= last - first + 1;
    endRemoveRows();
}

void RowsModel::Altered(int first, int last) {
    // Of a list that is filtered or sorted all of it may be another row's.
    if (list_ != nullptr && (!list_->ShowsAllRows() || IsSorted()))
        first = 1, last = rows_;
    if (rows_ > 0 && columns_ > 0)
        Q_EMIT dataChanged(index(first - 1, 0), index(last - 1, columns_ - 1));
}

void RowsModel::Release() {
    list_ = nullptr;
    Reset();
}

} // namespace gfc::qt
