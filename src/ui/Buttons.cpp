#include "ui/Buttons.h"

#include "ui/Form.h"

namespace gfc::ui {

bool CommandButton::PersonClicks() {
    if (!PersonActs())
        return false;
    Fire(OnClick);
    return true;
}

void CheckBox::SetValue(bool value) {
    if (value == value_)
        return;
    value_ = value;
    Changed();
    Fire(OnClick);
}

bool CheckBox::PersonClicks() {
    if (!PersonActs())
        return false;
    SetValue(!value_);
    return true;
}

void OptionButton::SetValue(bool value) {
    if (value == value_)
        return;
    value_ = value;
    if (value)
        ClearOthers();
    Changed();
    if (value)
        Fire(OnClick);
}

bool OptionButton::PersonPresses() {
    if (!PersonActs())
        return false;
    Fire(OnMouseDown);
    return true;
}

bool OptionButton::PersonClicks() {
    if (!PersonActs())
        return false;
    SetValue(true);
    return true;
}

void OptionButton::ClearOthers() {
    for (Control* control : Owner().Controls()) {
        if (control == this || control->TheKind() != Kind::OptionButton)
            continue;
        if (control->Container() != Container() || control->Page() != Page())
            continue;
        auto* other = static_cast<OptionButton*>(control);
        if (!other->value_)
            continue;
        other->value_ = false;
        other->Changed();
    }
}

} // namespace gfc::ui
