#include "ui/Tree.h"

#include "qt/render/Renderers.h"
#include "qt/render/TreeModel.h"
#include "qt/render/WidgetRenderer.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QTreeView>

#include <set>

namespace gfc::qt {

namespace {

class TreeRenderer final : public WidgetRenderer<ui::Tree, QTreeView>, private ui::TreeObserver {
public:
    TreeRenderer(FormWindow& window, ui::Tree& control, QTreeView& widget)
        : WidgetRenderer(window, control, widget), model_(control) {
        widget.setModel(&model_);
        widget.setHeaderHidden(true);
        widget.setUniformRowHeights(true);
        widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
        widget.setSelectionMode(QAbstractItemView::SingleSelection);
        control.SetTreeObserver(this);
        for (int node = 1; node <= control.Count(); ++node)
            RefreshBranch(node);
        Connect();
    }
    ~TreeRenderer() override { widget_.setModel(nullptr); }

    void Release() override {
        control_.SetTreeObserver(nullptr);
        const FormWindow::Writing writing(window_);
        model_.Release();
    }

    [[nodiscard]] QWidget* MouseWidget() const override { return widget_.viewport(); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return PressMouse(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            QTimer::singleShot(0, this, [this] { mouseDown_ = false; });
            return false;
        case QEvent::KeyPress:
            return watched == &widget_ && PressKey(*static_cast<QKeyEvent*>(event));
        case QEvent::ContextMenu:
            return AskMenu(*static_cast<QContextMenuEvent*>(event));
        default:
            return QObject::eventFilter(watched, event);
        }
    }

private:
    void Connect() {
        widget_.viewport()->installEventFilter(this);
        widget_.installEventFilter(this);
        QObject::connect(&widget_, &QTreeView::clicked, this,
                         [this](const QModelIndex& at) { Click(TreeModel::NodeOf(at)); });
        QObject::connect(widget_.selectionModel(), &QItemSelectionModel::currentChanged, this,
                         [this](const QModelIndex& at) { MoveByKey(at); });
        QObject::connect(&widget_, &QTreeView::expanded, this,
                         [this](const QModelIndex& at) { NoteBranch(at, true); });
        QObject::connect(&widget_, &QTreeView::collapsed, this,
                         [this](const QModelIndex& at) { NoteBranch(at, false); });
    }

    void Click(int node) {
        Act([this, node] { (void)control_.PersonClicks(node); });
    }

    void Press(ui::MouseButton button) {
        Act([this, button] { (void)control_.PersonPresses(button); });
    }

    // The second button takes the node under the pointer and may open its menu; the view need not know.
    bool PressMouse(const QMouseEvent& event) {
        const FormWindow::InEvent going(window_);
        if (event.button() == Qt::RightButton) {
            const int node = TreeModel::NodeOf(widget_.indexAt(event.position().toPoint()));
            if (node > 0)
                Click(node);
            if (window_.Form() != nullptr)
                Press(ui::MouseButton::Right);
            return true;
        }
        mouseDown_ = true;
        if (event.button() == Qt::LeftButton)
            Press(ui::MouseButton::Left);
        return false;
    }

    // Enter is the keyboard's click on the node that the arrows have left.
    bool PressKey(const QKeyEvent& key) {
        const int node = TreeModel::NodeOf(widget_.currentIndex());
        if ((key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) || node == 0)
            return false;
        const FormWindow::InEvent going(window_);
        Click(node);
        return true;
    }

    // The keyboard's way to what the second mouse button does.
    bool AskMenu(const QContextMenuEvent& event) {
        if (event.reason() == QContextMenuEvent::Keyboard)
            Press(ui::MouseButton::Right);
        return true;
    }

    // Once the view's own event has ended: the click may well rebuild the tree. A node that the view only
    // makes its current one, as it does when it gets the focus, is not clicked.
    void MoveByKey(const QModelIndex& at) {
        if (mouseDown_ || window_.IsWriting() || !widget_.selectionModel()->isSelected(at))
            return;
        const int node = TreeModel::NodeOf(at);
        QTimer::singleShot(0, this, [this, node] {
            if (window_.Form() != nullptr)
                Click(node);
        });
    }

    // Also if the view did it by itself, to bring a node into sight.
    void NoteBranch(const QModelIndex& at, bool expanded) {
        if (window_.Form() == nullptr)
            return;
        control_.NoteExpanded(TreeModel::NodeOf(at), expanded);
        const std::string path = control_.FullPath(TreeModel::NodeOf(at));
        if (expanded)
            opened_.insert(path);
        else
            opened_.erase(path);
    }

    void RefreshContent() override {
        const QModelIndex wanted = model_.IndexOf(control_.SelectedNode());
        if (widget_.currentIndex() == wanted && widget_.selectionModel()->hasSelection() == wanted.isValid())
            return;
        widget_.setCurrentIndex(wanted);
        if (!wanted.isValid())
            widget_.clearSelection();
    }

    void RefreshBranch(int node) {
        const QModelIndex at = model_.IndexOf(node);
        if (widget_.isExpanded(at) != control_.At(node).Expanded)
            widget_.setExpanded(at, control_.At(node).Expanded);
    }

    void TreeReset() override {
        const FormWindow::Writing writing(window_);
        pictured_ = 0;
        model_.Reset();
    }
    void NodeAdded(int node) override {
        const FormWindow::Writing writing(window_);
        model_.Added(node);
        // A rebuilt tree shows the branches open that were open before.
        if (opened_.contains(control_.FullPath(node)))
            control_.NoteExpanded(node, true);
        RefreshBranch(node);
    }
    void NodeChanged(int node) override {
        const FormWindow::Writing writing(window_);
        model_.Altered(node);
        RefreshBranch(node);
    }
    // The pictures of both nodes may be others now.
    void SelectionChanged() override {
        const FormWindow::Writing writing(window_);
        model_.Altered(std::exchange(pictured_, control_.SelectedNode()));
        model_.Altered(pictured_);
        RefreshContent();
    }
    void ScrollTo(int node) override {
        const FormWindow::Writing writing(window_);
        widget_.scrollTo(model_.IndexOf(node));
    }

    TreeModel model_;
    std::set<std::string> opened_; // paths
    int pictured_ = 0;
    bool mouseDown_ = false;
};

} // namespace

RendererPtr RenderTree(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<TreeRenderer, ui::Tree, QTreeView>(window, control, widget);
}

} // namespace gfc::qt
