#include "workshop/window/FilteredTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace gfc::workshop {

namespace {

// Letters without case and accents: what is left of their parts once the marks are taken off.
QString Plain(const QString& text) {
    QString plain;
    for (const QChar sign : text.normalized(QString::NormalizationForm_D)) {
        if (sign.category() != QChar::Mark_NonSpacing) {
            plain += sign.toCaseFolded();
        }
    }
    return plain;
}

class WordFilter : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void Look(const QString& text) {
        words_ = Plain(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        invalidateFilter();
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& /*parent*/) const override {
        if (words_.isEmpty()) {
            return true;
        }
        const QString all = Plain(static_cast<TextRows*>(sourceModel())->Row(row).join(QLatin1Char('\n')));
        return std::all_of(words_.begin(), words_.end(),
                           [&](const QString& word) { return all.contains(word); });
    }
    // Numbers by their size, all else by its letters.
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override {
        bool numbers = true;
        bool also = true;
        const int a = left.data().toString().toInt(&numbers);
        const int b = right.data().toString().toInt(&also);
        return numbers && also ? a < b : QSortFilterProxyModel::lessThan(left, right);
    }

private:
    QStringList words_;
};

} // namespace

void TextRows::Show(std::vector<QStringList> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int TextRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TextRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(titles_.size());
}

QVariant TextRows::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return Row(index.row()).value(index.column());
    }
    return {};
}

QVariant TextRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return titles_.value(section);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

FilteredTable::FilteredTable(const QString& things, const QStringList& titles, QWidget* parent)
    : QWidget(parent), things_(things), rows_(new TextRows(titles, this)), shown_(new WordFilter(this)),
      filter_(new QLineEdit), view_(new QTableView), count_(new QLabel) {
    shown_->setSourceModel(rows_);
    shown_->setSortCaseSensitivity(Qt::CaseInsensitive);
    view_->setModel(shown_);
    view_->setObjectName(things);
    view_->setAccessibleName(things);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setTextElideMode(Qt::ElideMiddle);
    view_->setSortingEnabled(true);
    view_->sortByColumn(-1, Qt::AscendingOrder); // as the project has them, until a heading is clicked
    view_->verticalHeader()->hide();
    view_->verticalHeader()->setDefaultSectionSize(view_->fontMetrics().height() + 6);
    view_->horizontalHeader()->setStretchLastSection(true);
    view_->setTabKeyNavigation(false);
    filter_->setObjectName(things + QStringLiteral("Filter"));
    filter_->setPlaceholderText(tr("Filter the %1: words in any order").arg(things));
    filter_->setClearButtonEnabled(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 0);
    layout->addWidget(filter_);
    layout->addWidget(view_);
    layout->addWidget(count_);
    connect(filter_, &QLineEdit::textChanged, this, &FilteredTable::Filter);
    connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FilteredTable::CurrentChanged);
    connect(view_, &QTableView::activated, this, &FilteredTable::Activated);
    auto* copy = new QShortcut(QKeySequence::Copy, view_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, [this] {
        QStringList lines;
        for (const QStringList& row : Selected()) {
            lines += row.join(QLatin1Char('\t'));
        }
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    });
}

void FilteredTable::Show(std::vector<QStringList> rows) {
    const QString was = Current().value(0);
    rows_->Show(std::move(rows));
    if (was.isEmpty() || !SelectFirst(was)) {
        view_->setCurrentIndex(shown_->index(0, 0));
    }
    view_->resizeColumnsToContents();
    Count();
}

QStringList FilteredTable::Current() const {
    const QModelIndex at = shown_->mapToSource(view_->currentIndex());
    return at.isValid() ? rows_->Row(at.row()) : QStringList();
}

std::vector<QStringList> FilteredTable::Selected() const {
    std::vector<QStringList> rows;
    for (const QModelIndex& at : view_->selectionModel()->selectedRows()) {
        rows.push_back(rows_->Row(shown_->mapToSource(at).row()));
    }
    return rows;
}

bool FilteredTable::SelectFirst(const QString& text) {
    for (int row = 0; row < shown_->rowCount(); ++row) {
        if (shown_->index(row, 0).data().toString() == text) {
            view_->setCurrentIndex(shown_->index(row, 0));
            return true;
        }
    }
    return false;
}

void FilteredTable::FocusFilter() {
    filter_->setFocus();
    filter_->selectAll();
}

void FilteredTable::Filter(const QString& text) {
    static_cast<WordFilter*>(shown_)->Look(text);
    if (!view_->currentIndex().isValid()) {
        view_->setCurrentIndex(shown_->index(0, 0));
    }
    Count();
}

void FilteredTable::Count() {
    const int shown = shown_->rowCount();
    const int all = rows_->rowCount();
    const QString things = all == 1 ? things_.chopped(1) : things_; // a thing, and things
    count_->setText(shown == all ? tr("%1 %2").arg(all).arg(things)
                                 : tr("%1 of %2 %3").arg(shown).arg(all).arg(things));
}

} // namespace gfc::workshop
