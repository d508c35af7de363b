#include "forms/program/UserIDForm.h"

#include "services/Funciones_III.h"

namespace gfc::forms {

namespace {
constexpr const char* caption = "Gas Flow Computer, V1.6.1";
constexpr char32_t enter = 13;
} // namespace

UserIDForm::UserIDForm(Program& program) : ProgramForm(program, "UserIDForm", caption) {
    Text1.OnKeyPress = [this](char32_t key) { return KeyTaken(key); };
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
