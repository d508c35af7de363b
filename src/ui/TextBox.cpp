#include "ui/TextBox.h"

#include "ui/Form.h"

namespace gfc::ui {

namespace {
constexpr char32_t enter = 13;

// Where that character of the UTF-8 text begins; its end for one that it does not have.
std::size_t PlaceOf(const std::string& text, int character) {
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        const bool begins = (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
        if (begins && character-- == 0)
            break;
    }
    return at;
}
} // namespace

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

void TextBox::Refuse(std::string why) {
    if (why == refusal_)
        return;
    refusal_ = std::move(why);
    Changed();
}

std::string TextBox::Unselected() const {
    return text_.substr(0, PlaceOf(text_, selStart_)) + text_.substr(PlaceOf(text_, selStart_ + selLength_));
}

std::optional<char32_t> TextBox::PersonTypes(char32_t key) {
    if (!PersonActs())
        return std::nullopt;
    const auto alive = Owner().KeepAlive();
    Instead instead{key, {}};
    if (OnKeyPress && !OnKeyPress(key))
        instead = OnRefused && key != enter ? OnRefused(key) : Instead{};
    Refuse(std::move(instead.Why));
    return instead.Key == 0 || instead.Key == enter ? std::nullopt : std::optional(instead.Key);
}

std::string TextBox::PersonPastes(const std::string& text) {
    if (!OnPaste || !PersonActs())
        return {};
    Pasted pasted = OnPaste(text);
    Refuse(std::move(pasted.Why));
    return std::move(pasted.Text);
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
