#include "forms/program/UserIDForm.h"

#include "services/Funciones_III.h"

namespace gfc::forms {

namespace {
constexpr const char* caption = "Gas Flow Computer, V1.6.1";
constexpr char32_t enter = 13;
constexpr char32_t firstPrintable = 32;

std::string WithoutBlanksAround(const std::string& text) {
    constexpr const char* blanks = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    return begin == std::string::npos ? std::string()
                                      : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}
} // namespace

UserIDForm::UserIDForm(Program& program) : ProgramForm(program, "UserIDForm", caption) {
    Text1.OnKeyPress = [this](char32_t key) { return KeyTaken(key); };
    // No number, so that a comma is not taken for a point here.
    Text1.OnRefused = [](char32_t key) {
        return ui::TextBox::Instead{0,
                                    key < firstPrintable ? std::string() : std::string(services::UserIdRule)};
    };
    Text1.OnPaste = [](const std::string& text) {
        const std::string id = WithoutBlanksAround(text);
        const bool fits = id.empty() || services::IsUserId(id);
        return fits ? ui::TextBox::Pasted{id, {}}
                    : ui::TextBox::Pasted{{}, std::string(services::UserIdRule)};
    };
    Command1.OnClick = [this] { Accept(); };
    Command2.OnClick = [this] { Cancel(); };
}

void UserIDForm::Load() {
    RemoveCloseCommand();
    Text1.SetText({});
    SetCaption(caption);
    Text1.SetFocus();
}

bool UserIDForm::KeyTaken(char32_t key) {
    if (key != enter)
        return services::KeyAllowed(key);
    Accept();
    return false;
}

void UserIDForm::Accept() {
    session_.UserIdCancelled = false;
    if (Text1.Text().empty()) {
        program_.Screen.Ask({.Title = "Orm Gas Flow Computer",
                             .Text = "Please enter your User ID",
                             .TheIcon = ui::Icon::Exclamation});
        return;
    }
    session_.Station.UserId = Text1.Text();
    Hide();
}

void UserIDForm::Cancel() {
    session_.UserIdCancelled = true;
    Unload();
}

} // namespace gfc::forms
