#include "ui/ListView.h"

#include "qt/render/Renderers.h"
#include "qt/render/RowsModel.h"
#include "qt/render/WidgetRenderer.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTableView>
#include <QTimer>

#include <algorithm>

namespace gfc::qt {

namespace {

// Columns are as wide as what stands in the first rows asks for; no list is measured to its end.
constexpr int measuredRows = 200;

class ListViewRenderer final : public WidgetRenderer<ui::ListView, QTableView>, private ui::RowsObserver {
public:
    ListViewRenderer(FormWindow& window, ui::ListView& control, QTableView& widget)
        : WidgetRenderer(window, control, widget), model_(control) {
        SetUpView();
        // The list may have been filled before its window came to be.
        SetWidths();
        control.SetRowsObserver(this);
        widget.viewport()->installEventFilter(this);
        widget.installEventFilter(this);
        QObject::connect(&widget, &QTableView::clicked, this,
                         [this](const QModelIndex& at) { Click(at.row() + 1); });
        QObject::connect(widget.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                         [this](const QModelIndex& at) { MoveByKey(at); });
    }
    ~ListViewRenderer() override { widget_.setModel(nullptr); }

    void Release() override {
        control_.SetRowsObserver(nullptr);
        const FormWindow::Writing writing(window_);
        model_.Release();
    }

    [[nodiscard]] QWidget* MouseWidget() const override { return widget_.viewport(); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress)
            return watched == &widget_ && PressKey(*static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
            mouseDown_ = true;
        else if (event->type() == QEvent::MouseButtonRelease)
            QTimer::singleShot(0, this, [this] { mouseDown_ = false; });
        return QObject::eventFilter(watched, event);
    }

private:
    void SetUpView() {
        widget_.setModel(&model_);
        widget_.setSelectionBehavior(QAbstractItemView::SelectRows);
        widget_.setSelectionMode(QAbstractItemView::SingleSelection);
        widget_.setEditTriggers(QAbstractItemView::NoEditTriggers);
        widget_.setShowGrid(false);
        widget_.setWordWrap(false);
        widget_.setTabKeyNavigation(false);
        widget_.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        widget_.horizontalHeader()->setHighlightSections(false);
        widget_.horizontalHeader()->setStretchLastSection(true);
        widget_.horizontalHeader()->setResizeContentsPrecision(measuredRows);
        QHeaderView& rows = *widget_.verticalHeader();
        rows.hide();
        rows.setSectionResizeMode(QHeaderView::Fixed);
        rows.setDefaultSectionSize(widget_.fontMetrics().height() + 6);
    }

    void Click(int row) {
        Act([this, row] { (void)control_.PersonClicksRow(row); });
    }

    // Enter is the keyboard's click on the row that the arrows have left.
    bool PressKey(const QKeyEvent& key) {
        const QModelIndex at = widget_.currentIndex();
        if ((key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) || !at.isValid())
            return false;
        const FormWindow::InEvent going(window_);
        Click(at.row() + 1);
        return true;
    }

    // Once the view's own event has ended: the click may well empty the list. A row that the view only makes
    // its current one, as it does when it gets the focus, is not clicked.
    void MoveByKey(const QModelIndex& at) {
        if (mouseDown_ || window_.IsWriting() || !widget_.selectionModel()->isSelected(at))
            return;
        const int row = at.row() + 1;
        QTimer::singleShot(0, this, [this, row] {
            if (window_.Form() != nullptr)
                Click(row);
        });
    }

    void RefreshContent() override {
        const int selected = control_.SelectedRow();
        const QModelIndex current = widget_.currentIndex();
        if (selected == (current.isValid() ? current.row() + 1 : 0) &&
            widget_.selectionModel()->hasSelection() == (selected > 0))
            return;
        if (selected > 0)
            widget_.selectRow(selected - 1);
        else
            widget_.setCurrentIndex({}), widget_.clearSelection();
    }

    void RowsReset() override {
        const FormWindow::Writing writing(window_);
        model_.Reset();
        SetWidths();
        RefreshContent();
    }
    void RowsAdded(int first, int last) override {
        const FormWindow::Writing writing(window_);
        model_.Added(first, last);
        if (first <= measuredRows)
            SetWidths();
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
        const auto& columns = control_.Columns();
        for (int i = 0; i < static_cast<int>(columns.size()); ++i)
            widget_.setColumnWidth(i, WidthOf(i, columns[static_cast<std::size_t>(i)].Width));
    }

    // Some room to the next column, and no heading cut, however few characters are asked for.
    [[nodiscard]] int WidthOf(int column, int characters) const {
        const QAbstractItemView& view = widget_;
        const int letter = widget_.fontMetrics().averageCharWidth();
        const int asked = characters > 0 ? characters * letter : view.sizeHintForColumn(column);
        return std::max(widget_.horizontalHeader()->sectionSizeHint(column), asked + 2 * letter);
    }

    RowsModel model_;
    bool mouseDown_ = false;
};

} // namespace

RendererPtr RenderListView(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<ListViewRenderer, ui::ListView, QTableView>(window, control, widget);
}

} // namespace gfc::qt
