#include "ui/TabbedPane.h"

#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"

#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace gfc::qt {

namespace {

class TabbedPaneRenderer final : public WidgetRenderer<ui::TabbedPane, QTabWidget> {
public:
    TabbedPaneRenderer(FormWindow& window, ui::TabbedPane& control, QTabWidget& widget)
        : WidgetRenderer(window, control, widget), bar_(*widget.tabBar()) {
        // The bar alone is a stop of the Tab key: the widget around it would lead back to the bar, and what
        // comes after both would never be reached.
        widget.setFocusProxy(nullptr);
        widget.setFocusPolicy(Qt::NoFocus);
        bar_.installEventFilter(this);
        QObject::connect(&widget, &QTabWidget::currentChanged, this, [this](int tab) { Select(tab); });
    }

    [[nodiscard]] QWidget* FocusWidget() const override { return &bar_; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return Press(static_cast<QMouseEvent*>(event)->position().toPoint());
        case QEvent::KeyPress:
            return !control_.HeadersNavigate() && IsArrow(static_cast<QKeyEvent*>(event)->key());
        case QEvent::Wheel:
            event->ignore();
            return true;
        default:
            return QObject::eventFilter(watched, event);
        }
    }

private:
    static bool IsArrow(int key) {
        return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
    }

    // The header of the page that shows, and any header where they do not navigate, is only a click: the bar
    // would say nothing of the one, and turn the page for the other.
    bool Press(QPoint at) {
        const int tab = bar_.tabAt(at);
        if (tab < 0 || (control_.HeadersNavigate() && tab != control_.Tab()))
            return false;
        Select(tab);
        return true;
    }

    void Select(int tab) {
        Act([this, tab] { (void)control_.PersonSelects(tab); });
    }

    void RefreshContent() override {
        for (int tab = 0; tab < std::min(widget_.count(), control_.Tabs()); ++tab)
            if (const QString text = ToQt(control_.TabCaption(tab)); widget_.tabText(tab) != text)
                widget_.setTabText(tab, text);
        if (widget_.currentIndex() != control_.Tab())
            widget_.setCurrentIndex(control_.Tab());
    }

    QTabBar& bar_;
};

} // namespace

RendererPtr RenderTabbedPane(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<TabbedPaneRenderer, ui::TabbedPane, QTabWidget>(window, control, widget);
}

} // namespace gfc::qt
