#include "ui/Tree.h"

#include "qt/Texts.h"
#include "qt/render/KeptProperties.h"
#include "qt/render/Renderers.h"
#include "qt/render/TreeModel.h"
#include "qt/render/ViewRenderer.h"

#include <QHeaderView>
#include <QTimer>
#include <QTreeView>

#include <set>

namespace gfc::qt {

namespace {

class TreeRenderer final : public ViewRenderer<ui::Tree, QTreeView>, private ui::TreeObserver {
public:
    TreeRenderer(FormWindow& window, ui::Tree& control, QTreeView& widget)
        : ViewRenderer(window, control, widget), model_(control) {
        widget.setModel(&model_);
        widget.setHeaderHidden(true);
        widget.setUniformRowHeights(true);
        // Names of one plant begin and end in what parts them.
        widget.setTextElideMode(Qt::ElideMiddle);
        FollowPerson();
        SetUpNotes();
        control.SetTreeObserver(this);
        for (int node = 1; node <= control.Count(); ++node)
            RefreshBranch(node);
        QObject::connect(&widget, &QTreeView::expanded, this,
                         [this](const QModelIndex& at) { NoteBranch(at, true); });
        QObject::connect(&widget, &QTreeView::collapsed, this,
                         [this](const QModelIndex& at) { NoteBranch(at, false); });
    }
    ~TreeRenderer() override { widget_.setModel(nullptr); }

    void Release() override {
        control_.SetTreeObserver(nullptr);
        const FormWindow::Writing writing(window_);
        model_.Release();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &widget_ && event->type() == QEvent::DynamicPropertyChange &&
            static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == PathToChoose)
            QTimer::singleShot(0, this, [this] { ChooseKeptNode(); });
        return ViewRenderer::eventFilter(watched, event);
    }

private:
    // As a click on it, once the window shows; not where a person was faster, or the node has gone.
    void ChooseKeptNode() {
        if (window_.Form() == nullptr || control_.SelectedNode() != 0)
            return;
        const int node = control_.FindPath(FromQt(widget_.property(PathToChoose).toString()));
        if (node == 0)
            return;
        for (int parent = control_.At(node).Parent; parent > 0; parent = control_.At(parent).Parent)
            control_.SetExpanded(parent, true);
        Click(node);
    }

    // The nodes take what they need, and their notes the rest.
    void SetUpNotes() {
        if (!control_.HasNotes())
            return;
        widget_.header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
        widget_.header()->setStretchLastSection(true);
    }

    [[nodiscard]] int ItemAt(const QModelIndex& at) const override { return TreeModel::NodeOf(at); }
    [[nodiscard]] QModelIndex IndexOf(int node) const override { return model_.IndexOf(node); }
    [[nodiscard]] int Selected() const override { return control_.SelectedNode(); }
    void ClickItem(int node) override { (void)control_.PersonClicks(node); }

    void Press(ui::MouseButton button) {
        if (window_.Form() != nullptr)
            Act([this, button] { (void)control_.PersonPresses(button); });
    }

    // The second button takes the node before it opens its menu.
    void TakePress(QMouseEvent& event) override {
        if (event.button() == Qt::LeftButton)
            Press(ui::MouseButton::Left);
        if (window_.Form() != nullptr)
            ViewRenderer::TakePress(event);
        if (event.button() == Qt::RightButton)
            Press(ui::MouseButton::Right);
    }

    // The keyboard's way to what the second mouse button does.
    bool TakeMenuRequest(QContextMenuEvent& event) override {
        if (event.reason() == QContextMenuEvent::Keyboard)
            Press(ui::MouseButton::Right);
        return true;
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
        if (pictured_ > 0 && widget_.property(KeepsNode).toBool())
            widget_.setProperty(SelectedPath, ToQt(control_.FullPath(pictured_)));
        RefreshContent();
    }
    void ScrollTo(int node) override {
        const FormWindow::Writing writing(window_);
        widget_.scrollTo(model_.IndexOf(node));
    }

    TreeModel model_;
    std::set<std::string> opened_; // paths
    int pictured_ = 0;
};

} // namespace

RendererPtr RenderTree(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<TreeRenderer, ui::Tree, QTreeView>(window, control, widget);
}

} // namespace gfc::qt
