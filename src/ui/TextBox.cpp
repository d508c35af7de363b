#include "ui/TextBox.h"

#include "ui/Form.h"

namespace gfc::ui {

namespace {
constexpr char32_t enter = 13;
}

void TextBox::SetText(std::string text) {
    if (text == text_)
        return;
    text_ = std::move(text);
    Changed();
}

void TextBox::Select(int start, int length) {
    selStart_ = start;
    selLength_ = length;
    Changed();
}

void TextBox::SetFaceColoured(bool faceColoured) {
    if (faceColoured == faceColoured_)
        return;
    faceColoured_ = faceColoured;
    Changed();
}

bool TextBox::PersonPresses(char32_t key) {
    if (!PersonActs())
        return false;
    const auto alive = Owner().KeepAlive();
    const bool taken = OnKeyPress ? OnKeyPress(key) : true;
    return taken && key != enter;
}

void TextBox::PersonEdits(std::string text) {
    if (text == text_)
        return;
    text_ = std::move(text);
    Changed();
    Fire(OnEdited);
}

void TextBox::NoteSelection(int start, int length) {
    selStart_ = start;
    selLength_ = length;
}

} // namespace gfc::ui
