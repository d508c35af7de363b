#pragma once

#include "ui/Control.h"

#include <optional>

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
    // Asked about a key that OnKeyPress refused.
    struct Instead {
        char32_t Key = 0; // taken in its place; 0 for none
        std::string Why;  // why there is none, in words; empty for a key that goes without a word
    };
    std::function<Instead(char32_t)> OnRefused;
    // Asked about a text that is pasted, which is taken as a whole or not at all. Without it each of its
    // characters is asked about.
    struct Pasted {
        std::string Text;
        std::string Why; // it was not taken, in words; empty for one that was
    };
    std::function<Pasted(const std::string& text)> OnPaste;
    // What is expected of the text, for a tip; asked when it is to be shown, empty for nothing.
    std::function<std::string()> HintOf;
    // The focus has gone to another control of the form; the handler may take it back.
    std::function<void()> OnLostFocus;
    // A person has changed the text.
    std::function<void()> OnEdited;

    // Why the key or the text that came last was refused; empty once there is another.
    [[nodiscard]] const std::string& Refusal() const { return refusal_; }
    // The text without what is selected in it.
    [[nodiscard]] std::string Unselected() const;

    // The character that reaches the field; none where the key is refused. Enter never does.
    [[nodiscard]] std::optional<char32_t> PersonTypes(char32_t key);
    // True if the key itself may reach the field.
    [[nodiscard]] bool PersonPresses(char32_t key) { return PersonTypes(key) == key; }
    // What of the text reaches the field, where OnPaste is there to say so.
    [[nodiscard]] std::string PersonPastes(const std::string& text);
    // A person's editing has left the field with this text.
    void PersonEdits(std::string text);
    // The selection as the window has it; nothing is reported back.
    void NoteSelection(int start, int length);
    void LoseFocus() { Fire(OnLostFocus); }
    bool PersonEnters() { return PersonActs(); }

private:
    void Refuse(std::string why);

    std::string text_;
    std::string refusal_;
    int selStart_ = 0;
    int selLength_ = 0;
    bool faceColoured_ = false;
};

} // namespace gfc::ui
