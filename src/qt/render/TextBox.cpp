#include "ui/TextBox.h"

#include "qt/render/LineEditKeys.h"
#include "qt/render/Renderers.h"
#include "qt/render/WidgetRenderer.h"
#include "ui/Form.h"

#include <QLineEdit>

namespace gfc::qt {

namespace {

class TextBoxRenderer final : public WidgetRenderer<ui::TextBox, QLineEdit> {
public:
    TextBoxRenderer(FormWindow& window, ui::TextBox& control, QLineEdit& widget)
        : WidgetRenderer(window, control, widget),
          keys_(widget, [this](char32_t key) { return Press(key); }) {
        keys_.EnterIsForTheField = control.Owner().DefaultButton() == nullptr;
        QObject::connect(&widget, &QLineEdit::textEdited, this, [this] { Edit(); });
        QObject::connect(&widget, &QLineEdit::selectionChanged, this, [this] { NoteSelection(); });
        QObject::connect(&widget, &QLineEdit::cursorPositionChanged, this, [this] { NoteSelection(); });
    }

private:
    // A key may end the form's life, or move the focus: the character is for the field only if it still has
    // it.
    bool Press(char32_t key) {
        const FormWindow::InEvent going(window_);
        bool taken = false;
        Act([this, key, &taken] { taken = control_.PersonPresses(key); });
        return taken && window_.Form() != nullptr;
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
        const QBrush face = widget_.palette().brush(QPalette::Window);
        if (faceColoured_ == control_.FaceColoured())
            return;
        faceColoured_ = control_.FaceColoured();
        QPalette palette;
        if (faceColoured_)
            palette.setBrush(QPalette::Base, face);
        widget_.setPalette(palette);
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
