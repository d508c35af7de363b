#include "ui/ListView.h"

#include "qt/render/KeptProperties.h"
#include "qt/render/Renderers.h"
#include "qt/render/RowsModel.h"
#include "qt/render/ViewRenderer.h"
#include "ui/CheckableList.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

namespace gfc::qt {

namespace {

// Columns are as wide as what stands in the first rows asks for; no list is measured to its end.
constexpr int measuredRows = 200;

class ListViewRenderer final : public ViewRenderer<ui::ListView, QTableView>, private ui::RowsObserver {
public:
    ListViewRenderer(FormWindow& window, ui::ListView& control, QTableView& widget)
        : ViewRenderer(window, control, widget), openable_(dynamic_cast<ui::OpenableList*>(&control)),
          checkable_(dynamic_cast<ui::CheckableList*>(&control)), model_(control, checkable_ != nullptr) {
        SetUpView();
        RefreshSorting();
        // The list may have been filled before its window came to be.
        SetWidths();
        control.SetRowsObserver(this);
    }
    ~ListViewRenderer() override { widget_.setModel(nullptr); }

    void Release() override {
        control_.SetRowsObserver(nullptr);
        const FormWindow::Writing writing(window_);
        model_.Release();
    }

    // The row as text, its cells parted as spreadsheets take them.
    bool eventFilter(QObject* watched, QEvent* event) override {
        // Widths of an earlier start have come.
        if (watched == &widget_ && event->type() == QEvent::DynamicPropertyChange && !settingWidths_)
            SetWidths();
        if (watched != &widget_ || event->type() != QEvent::KeyPress ||
            !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
            return ViewRenderer::eventFilter(watched, event);
        if (const int row = control_.SelectedRow(); row > 0)
            QGuiApplication::clipboard()->setText(TextOf(row));
        return true;
    }

private:
    [[nodiscard]] QString TextOf(int row) const {
        QStringList cells;
        for (const std::string& cell : control_.At(row))
            cells += ToQt(cell);
        return cells.join(QLatin1Char('\t'));
    }

    void SetUpView() {
        widget_.setModel(&model_);
        FollowPerson();
        widget_.setSelectionBehavior(QAbstractItemView::SelectRows);
        widget_.setShowGrid(false);
        widget_.setWordWrap(false);
        // Names of one plant begin and end in what parts them.
        widget_.setTextElideMode(Qt::ElideMiddle);
        widget_.setTabKeyNavigation(false);
        widget_.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        widget_.horizontalHeader()->setHighlightSections(false);
        widget_.horizontalHeader()->setSectionsClickable(false);
        widget_.horizontalHeader()->setSortIndicatorClearable(true);
        widget_.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        QObject::connect(widget_.horizontalHeader(), &QHeaderView::sectionResized, this,
                         [this](int column, int, int width) { NoteWidth(column, width); });
        widget_.horizontalHeader()->setStretchLastSection(true);
        widget_.horizontalHeader()->setResizeContentsPrecision(measuredRows);
        QHeaderView& rows = *widget_.verticalHeader();
        rows.hide();
        rows.setSectionResizeMode(QHeaderView::Fixed);
        rows.setDefaultSectionSize(widget_.fontMetrics().height() + 6);
    }

    [[nodiscard]] int ItemAt(const QModelIndex& at) const override { return model_.RowOf(at); }
    // In the column in which the arrow keys stand.
    [[nodiscard]] QModelIndex IndexOf(int row) const override {
        return model_.IndexOf(row, std::max(0, widget_.currentIndex().column()));
    }
    [[nodiscard]] int Selected() const override { return control_.SelectedRow(); }
    void ClickItem(int row) override { (void)control_.PersonClicksRow(row); }
    void OpenItem(int row) override {
        openable_ == nullptr ? ClickItem(row) : void(openable_->PersonOpensRow(row));
    }

    // The whole cell is the box, so that nobody has to aim. The second press of a double click opens the row,
    // and is one more on a box. The second button takes the row before it opens its menu.
    void TakePress(QMouseEvent& event) override {
        const QModelIndex at = widget_.indexAt(event.position().toPoint());
        const int row = at.isValid() ? ItemAt(at) : 0;
        const bool left = event.button() == Qt::LeftButton;
        const bool onBox = checkable_ != nullptr && at.column() == 0 && left;
        const bool twice = event.type() == QEvent::MouseButtonDblClick && left;
        // What draws the box would keep a press on it to itself, and the view would not know of it.
        if (onBox && row > 0)
            Click(row);
        else
            ViewRenderer::TakePress(event);
        if (event.button() == Qt::RightButton)
            return AskForMenu();
        if (row == 0 || window_.Form() == nullptr || Selected() != row)
            return;
        if (onBox)
            MarkItem(row);
        else if (twice && openable_ != nullptr)
            Open(row);
    }

    bool TakeOwnKey(QKeyEvent& key) override {
        if (SortByKey(key))
            return true;
        if (checkable_ == nullptr || key.key() != Qt::Key_Space)
            return false;
        if (const int row = Selected(); row > 0)
            MarkItem(row);
        return true;
    }

    // The keyboard's click on a heading: Ctrl and the number of the column.
    bool SortByKey(const QKeyEvent& key) {
        const int column = key.key() - Qt::Key_1;
        if (key.modifiers() != Qt::ControlModifier || !widget_.isSortingEnabled() || column < 0 ||
            column >= std::min(9, model_.columnCount()))
            return false;
        QHeaderView& header = *widget_.horizontalHeader();
        const bool same = header.sortIndicatorSection() == column;
        const bool up = same && header.sortIndicatorOrder() == Qt::AscendingOrder;
        if (same && !up)
            header.setSortIndicator(-1, Qt::AscendingOrder);
        else
            header.setSortIndicator(column, up ? Qt::DescendingOrder : Qt::AscendingOrder);
        return true;
    }

    // A list that shows something else now may be sorted, or not any more; the order that was asked for is
    // remembered.
    void RefreshSorting() {
        const bool sorts = openable_ != nullptr && openable_->SortsByHeading;
        QHeaderView& header = *widget_.horizontalHeader();
        if (widget_.isSortingEnabled() == sorts)
            return;
        widget_.setSortingEnabled(sorts);
        header.setSectionsClickable(sorts);
        header.setSortIndicatorShown(sorts);
    }

    void MarkItem(int row) {
        Act([this, row] { (void)checkable_->PersonMarksRow(row); });
    }

    // The keyboard's way to what the second mouse button does.
    bool TakeMenuRequest(QContextMenuEvent& event) override {
        if (event.reason() == QContextMenuEvent::Keyboard)
            AskForMenu();
        return true;
    }

    void AskForMenu() {
        if (window_.Form() != nullptr && control_.OnMenu)
            Act([this] { (void)control_.PersonAsksForMenu(control_.SelectedRow()); });
    }

    void RowsReset() override {
        const FormWindow::Writing writing(window_);
        RefreshSorting();
        model_.Reset();
        SetWidths();
        // Before the selected row is gone to: the view would reckon by the rows that it had.
        widget_.doItemsLayout();
        RefreshContent();
    }
    void RowsAdded(int first, int last) override {
        const FormWindow::Writing writing(window_);
        model_.Added(first, last);
        if (first <= measuredRows)
            SetWidths();
        RefreshContent();
    }
    void RowsRemoved(int first, int last) override {
        const FormWindow::Writing writing(window_);
        model_.Removed(first, last);
        RefreshContent();
    }
    void RowsChanged(int first, int last) override { model_.Altered(first, last); }
    void SelectionChanged() override {
        const FormWindow::Writing writing(window_);
        RefreshContent();
    }

    void SetWidths() {
        settingWidths_ = true;
        const auto& columns = control_.Columns();
        const QVariantMap made = widget_.property(WidthsOfPerson).toMap();
        for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
            const auto& column = columns[static_cast<std::size_t>(i)];
            const int width = made.value(ToQt(column.Heading)).toInt();
            widget_.setColumnWidth(i, width > 0 ? width : WidthOf(i, column.Width));
        }
        settingWidths_ = false;
    }

    // By the heading, since other columns may stand there at another time. The last column takes what is
    // left.
    void NoteWidth(int column, int width) {
        if (settingWidths_ || window_.IsWriting() || QGuiApplication::mouseButtons() == Qt::NoButton ||
            column + 1 >= model_.columnCount())
            return;
        settingWidths_ = true;
        QVariantMap made = widget_.property(WidthsOfPerson).toMap();
        made[model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()] = width;
        widget_.setProperty(WidthsOfPerson, made);
        settingWidths_ = false;
    }

    // Some room to the next column, and no heading cut, however few characters are asked for.
    [[nodiscard]] int WidthOf(int column, int characters) const {
        const QAbstractItemView& view = widget_;
        const int letter = widget_.fontMetrics().averageCharWidth();
        const int asked = characters > 0 ? characters * letter : view.sizeHintForColumn(column);
        return std::max(widget_.horizontalHeader()->sectionSizeHint(column), asked + 2 * letter);
    }

    ui::OpenableList* openable_;   // null for a table whose rows lead nowhere
    ui::CheckableList* checkable_; // null for one whose rows cannot be marked
    RowsModel model_;
    bool settingWidths_ = false;
};

} // namespace

RendererPtr RenderListView(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<ListViewRenderer, ui::ListView, QTableView>(window, control, widget);
}

} // namespace gfc::qt
