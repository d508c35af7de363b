#include "ui/DropDownList.h"

#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"

#include <QComboBox>
#include <QEvent>

namespace gfc::qt {

namespace {

class DropDownListRenderer final : public WidgetRenderer<ui::DropDownList, QComboBox> {
public:
    DropDownListRenderer(FormWindow& window, ui::DropDownList& control, QComboBox& widget)
        : WidgetRenderer(window, control, widget) {
        widget.clear();
        // A shown text that is no entry is as good a text as any other.
        QPalette palette = widget.palette();
        palette.setBrush(QPalette::PlaceholderText, palette.buttonText());
        widget.setPalette(palette);
        widget.installEventFilter(this);
        QObject::connect(&widget, &QComboBox::activated, this,
                         [this](int entry) { Act([this, entry] { (void)control_.PersonSelects(entry); }); });
    }

    // The wheel turns the page and never the choice.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel)
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }

private:
    void RefreshContent() override {
        RefreshEntries();
        const bool noEntry = control_.ListIndex() == ui::DropDownList::None;
        const QString shown = noEntry ? ToQt(control_.Text()) : QString();
        if (widget_.placeholderText() != shown)
            widget_.setPlaceholderText(shown);
        if (widget_.currentIndex() != control_.ListIndex())
            widget_.setCurrentIndex(control_.ListIndex());
    }

    void RefreshEntries() {
        const auto& entries = control_.Entries();
        const int count = static_cast<int>(entries.size());
        while (widget_.count() > count)
            widget_.removeItem(widget_.count() - 1);
        for (int i = 0; i < count; ++i) {
            const QString text = ToQt(entries[static_cast<std::size_t>(i)]);
            if (i >= widget_.count())
                widget_.addItem(text);
            else if (widget_.itemText(i) != text)
                widget_.setItemText(i, text);
        }
    }
};

} // namespace

RendererPtr RenderDropDownList(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<DropDownListRenderer, ui::DropDownList, QComboBox>(window, control, widget);
}

} // namespace gfc::qt
