#pragma once

#include "qt/render/Dragging.h"
#include "qt/render/WidgetRenderer.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <utility>

namespace gfc::qt {

// What lists and trees share: once an event has been worked off, what is highlighted is what the control has
// selected, so that whatever is done next is done to what a person sees.
//
// The view works each event off by itself, and what came of it counts at once: keys and clicks that wait
// behind the event must find the control as the screen shows it. But it counts only when the view has left
// its own handling, since a click may well rebuild all that the view shows.
//
// A press takes what is under the pointer, with the first and with the second button. Until the button is let
// go of, the pointer may go where it likes: nothing is chosen by dragging, nor by where the button comes up.
// What was chosen may be dragged to where the form lets it fall. The other buttons do nothing.
template <class C, class V>
class ViewRenderer : public WidgetRenderer<C, V> {
public:
    using WidgetRenderer<C, V>::WidgetRenderer;

    [[nodiscard]] QWidget* MouseWidget() const override { return widget_.viewport(); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (window_.Form() == nullptr || passing_)
            return false;
        const FormWindow::InEvent going(window_);
        return watched == &widget_ ? TakeAtView(*event) : TakeAtViewport(*event);
    }

protected:
    using WidgetRenderer<C, V>::window_;
    using WidgetRenderer<C, V>::control_;
    using WidgetRenderer<C, V>::widget_;

    // Rows or nodes are counted from 1; 0 is none, as is the index that is not valid.
    [[nodiscard]] virtual int ItemAt(const QModelIndex& at) const = 0;
    [[nodiscard]] virtual QModelIndex IndexOf(int item) const = 0;
    [[nodiscard]] virtual int Selected() const = 0;
    virtual void ClickItem(int item) = 0;
    // Enter on an item, or a double click.
    virtual void OpenItem(int item) { ClickItem(item); }
    // A key of its own, before the view sees it; false for one that it does not know.
    virtual bool TakeOwnKey(QKeyEvent&) { return false; }

    // To be called once the view has its model.
    void FollowPerson() {
        widget_.setSelectionMode(QAbstractItemView::SingleSelection);
        widget_.setEditTriggers(QAbstractItemView::NoEditTriggers);
        widget_.viewport()->installEventFilter(this);
        widget_.installEventFilter(this);
        QObject::connect(&widget_, &V::pressed, this,
                         [this](const QModelIndex& at) { pressed_ = ItemAt(at); });
        // A screen reader selects by none of the events.
        QObject::connect(widget_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
                         [this] { FollowLater(); });
    }

    void Click(int item) {
        this->Act([this, item] { ClickItem(item); });
    }
    void Open(int item) {
        this->Act([this, item] { OpenItem(item); });
    }

    // A press of the first or the second button, the second press of a double click too.
    virtual void TakePress(QMouseEvent& event) {
        pressed_ = 0;
        Pass(*widget_.viewport(), event);
        const int item = std::exchange(pressed_, 0);
        item > 0 ? Click(item) : Restore();
        dragging_.Cancel();
        if (item > 0 && event.button() == Qt::LeftButton && window_.Form() != nullptr)
            dragging_.Press(event.globalPosition().toPoint());
    }

    virtual bool TakeMenuRequest(QContextMenuEvent&) { return false; }

    void RefreshContent() override {
        const int selected = Selected();
        if (Highlighted() == selected && ItemAt(widget_.currentIndex()) == selected)
            return;
        selected > 0 ? widget_.setCurrentIndex(IndexOf(selected)) : widget_.selectionModel()->clear();
    }

private:
    bool TakeAtView(QEvent& event) {
        switch (event.type()) {
        case QEvent::KeyPress:
            return TakeKey(static_cast<QKeyEvent&>(event));
        case QEvent::FocusIn:
            // The view would make its first row the current one.
            Pass(widget_, event);
            Restore();
            return true;
        case QEvent::FocusOut:
            dragging_.Cancel();
            return false;
        case QEvent::ContextMenu:
            return TakeMenuRequest(static_cast<QContextMenuEvent&>(event));
        default:
            return false;
        }
    }

    bool TakeAtViewport(QEvent& event) {
        switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (const auto button = static_cast<QMouseEvent&>(event).button();
                button == Qt::LeftButton || button == Qt::RightButton)
                TakePress(static_cast<QMouseEvent&>(event));
            return true;
        case QEvent::MouseMove:
            if (static_cast<QMouseEvent&>(event).buttons() == Qt::NoButton)
                return false;
            dragging_.Move(static_cast<QMouseEvent&>(event).globalPosition().toPoint());
            return true;
        case QEvent::MouseButtonRelease:
            TakeRelease(static_cast<QMouseEvent&>(event));
            return true;
        case QEvent::ContextMenu:
            return TakeMenuRequest(static_cast<QContextMenuEvent&>(event));
        default:
            return false;
        }
    }

    void TakeRelease(QMouseEvent& event) {
        const Dragging::Drop drop = dragging_.Release(event.globalPosition().toPoint());
        Pass(*widget_.viewport(), event);
        if (drop.Onto != nullptr)
            this->Act([this, drop] { (void)drop.Onto->PersonDrops(control_, drop.Item); });
        Restore();
    }

    bool TakeKey(QKeyEvent& key) {
        // Escape, and whatever else would choose another row or node under way.
        if (dragging_.Cancel())
            return true;
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
            return TakeEnter();
        if (TakeOwnKey(key))
            return true;
        Pass(widget_, key);
        Follow();
        return true;
    }

    // The keyboard's click on what the arrows have left, or on the first of all; the form's where there is
    // none.
    bool TakeEnter() {
        const int item = Selected() > 0 ? Selected() : ItemAt(widget_.model()->index(0, 0));
        if (item > 0)
            Open(item);
        return item > 0;
    }

    // To the view, past this filter.
    void Pass(QObject& to, QEvent& event) {
        struct Opened : V {
            using V::viewportEvent;
        };
        passing_ = true;
        if (&to == &widget_)
            to.event(&event);
        else
            (widget_.*(&Opened::viewportEvent))(&event);
        passing_ = false;
    }

    [[nodiscard]] int Highlighted() const {
        const QItemSelection selection = widget_.selectionModel()->selection();
        return selection.isEmpty() ? 0 : ItemAt(selection.first().topLeft());
    }

    void Follow() {
        if (window_.Form() == nullptr)
            return;
        const int item = Highlighted();
        item > 0 && item != Selected() ? Click(item) : Restore();
    }

    void FollowLater() {
        if (!passing_ && !window_.IsWriting())
            QTimer::singleShot(0, this, [this] { Follow(); });
    }

    void Restore() {
        if (window_.Form() == nullptr)
            return;
        const FormWindow::Writing writing(window_);
        RefreshContent();
    }

    Dragging dragging_{window_, control_};
    int pressed_ = 0; // what the view has said to be pressed
    bool passing_ = false;
};

} // namespace gfc::qt
