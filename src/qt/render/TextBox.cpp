#include "ui/TextBox.h"

#include "qt/render/LineEditKeys.h"
#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Form.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

namespace gfc::qt {

namespace {

class TextBoxRenderer final : public WidgetRenderer<ui::TextBox, QLineEdit> {
public:
    TextBoxRenderer(FormWindow& window, ui::TextBox& control, QLineEdit& widget)
        : WidgetRenderer(window, control, widget),
          keys_(widget, [this](char32_t key) { return Press(key); }) {
        widget.installEventFilter(this);
        keys_.TakePasted = [this](const QString& text) { return Paste(text); };
        keys_.EnterIsForTheField = control.Owner().DefaultButton() == nullptr;
        QObject::connect(&widget, &QLineEdit::textEdited, this, [this] { Edit(); });
        QObject::connect(&widget, &QLineEdit::selectionChanged, this, [this] { NoteSelection(); });
        QObject::connect(&widget, &QLineEdit::cursorPositionChanged, this, [this] { NoteSelection(); });
    }

    // What is expected, above what the tip says of the key that leads here.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &widget_ || event->type() != QEvent::ToolTip || window_.Form() == nullptr)
            return QObject::eventFilter(watched, event);
        const QString hint = Hint();
        if (hint.isEmpty())
            return false;
        const QString key = widget_.toolTip();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           key.isEmpty() ? hint : hint + QLatin1Char('\n') + key, &widget_);
        return true;
    }

private:
    [[nodiscard]] QString Hint() const { return control_.HintOf ? ToQt(control_.HintOf()) : QString(); }

    // A key may end the form's life, or move the focus: the character is for the field only if it still has
    // it.
    std::optional<char32_t> Press(char32_t key) {
        const FormWindow::InEvent going(window_);
        std::optional<char32_t> taken;
        Act([this, key, &taken] { taken = control_.PersonTypes(key); });
        return window_.Form() != nullptr ? taken : std::nullopt;
    }

    std::optional<QString> Paste(const QString& text) {
        if (!control_.OnPaste)
            return std::nullopt;
        const FormWindow::InEvent going(window_);
        std::string taken;
        Act([this, &text, &taken] { taken = control_.PersonPastes(FromQt(text)); });
        return window_.Form() != nullptr ? ToQt(taken) : QString();
    }

    void Edit() {
        NoteSelection();
        Act([this] { control_.PersonEdits(FromQt(widget_.text())); });
    }

    void NoteSelection() {
        if (window_.Form() == nullptr || window_.IsWriting())
            return;
        const bool any = widget_.hasSelectedText();
        start_ = any ? widget_.selectionStart() : widget_.cursorPosition();
        length_ = any ? widget_.selectionLength() : 0;
        control_.NoteSelection(start_, length_);
    }

    void RefreshContent() override {
        if (const QString text = ToQt(control_.Text()); widget_.text() != text)
            widget_.setText(text);
        RefreshSelection();
        RefreshRefusal();
        const QBrush face = widget_.palette().brush(QPalette::Window);
        if (faceColoured_ == control_.FaceColoured())
            return;
        faceColoured_ = control_.FaceColoured();
        QPalette palette;
        if (faceColoured_)
            palette.setBrush(QPalette::Base, face);
        widget_.setPalette(palette);
    }

    // A bubble under the field, gone with the next key; a screen reader has it as the field's description.
    void RefreshRefusal() {
        const QString why = ToQt(control_.Refusal());
        if (why == widget_.accessibleDescription())
            return;
        widget_.setAccessibleDescription(why);
        if (why.isEmpty())
            return QToolTip::hideText();
        constexpr int shown = 8000; // milliseconds, for who types nothing more
        QToolTip::showText(widget_.mapToGlobal(QPoint(0, widget_.height() / 2)), why, &widget_, {}, shown);
    }

    void RefreshSelection() {
        if (start_ == control_.SelStart() && length_ == control_.SelLength())
            return;
        start_ = control_.SelStart();
        length_ = control_.SelLength();
        if (length_ > 0)
            widget_.setSelection(start_, length_);
        else
            widget_.setCursorPosition(start_);
    }

    LineEditKeys keys_;
    int start_ = 0;
    int length_ = 0;
    bool faceColoured_ = false;
};

} // namespace

RendererPtr RenderTextBox(FormWindow& window, ui::Control& control, QWidget* widget) {
    return Fitting<TextBoxRenderer, ui::TextBox, QLineEdit>(window, control, widget);
}

} // namespace gfc::qt
