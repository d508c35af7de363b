#pragma once

#include "ui/Control.h"

namespace gfc::ui {

// A one-line field.
class TextBox : public Control {
public:
    TextBox(Place place, std::string name, std::string text = {})
        : Control(place, Kind::TextBox, std::move(name)), text_(std::move(text)) {}

    [[nodiscard]] const std::string& Text() const { return text_; }
    void SetText(std::string text);
    // Both in characters from the start of the text.
    [[nodiscard]] int SelStart() const { return selStart_; }
    [[nodiscard]] int SelLength() const { return selLength_; }
    void Select(int start, int length);
    // The field shows the colour of a button face instead of its own.
    [[nodiscard]] bool FaceColoured() const { return faceColoured_; }
    void SetFaceColoured(bool faceColoured);

    // Asked for each character typed or pasted, Backspace (8) and Enter (13) included; false drops it.
    // Without it every character but Enter is taken.
    std::function<bool(char32_t)> OnKeyPress;
    // The focus has gone to another control of the form; the handler may take it back.
    std::function<void()> OnLostFocus;
    // A person has changed the text.
    std::function<void()> OnEdited;

    // True if the key may reach the field; Enter never does.
    [[nodiscard]] bool PersonPresses(char32_t key);
    // A person's editing has left the field with this text.
    void PersonEdits(std::string text);
    // The selection as the window has it; nothing is reported back.
    void NoteSelection(int start, int length);
    void LoseFocus() { Fire(OnLostFocus); }
    bool PersonEnters() { return PersonActs(); }

private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
    bool faceColoured_ = false;
};

} // namespace gfc::ui
