#include "ui/Form.h"

#include "ui/Screen.h"
#include "ui/TextBox.h"

#include <algorithm>

namespace gfc::ui {

Form::Form(Screen& screen, std::string name, std::string caption)
    : screen_(screen), name_(std::move(name)), caption_(std::move(caption)) {}

void Form::SetCaption(std::string caption) {
    if (caption == caption_)
        return;
    caption_ = std::move(caption);
    FormChanged();
}

void Form::SetEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    FormChanged();
}

void Form::EnsureLoaded() {
    if (loaded_ || unloaded_)
        return;
    loaded_ = true;
    const auto alive = KeepAlive();
    Load();
}

void Form::Show() {
    const auto alive = KeepAlive();
    EnsureLoaded();
    // A load may end in unloading the form: then there is nothing left to show.
    if (unloaded_ || shown_)
        return;
    shown_ = true;
    FocusFirst();
    screen_.Appear(*this);
}

void Form::ShowModal() {
    const auto alive = KeepAlive();
    EnsureLoaded();
    if (unloaded_)
        return;
    shown_ = true;
    FocusFirst();
    screen_.RunModal(*this);
}

void Form::Hide() {
    if (!shown_)
        return;
    shown_ = false;
    screen_.Disappear(*this);
}

void Form::Unload() {
    if (unloaded_)
        return;
    unloaded_ = true;
    const auto alive = KeepAlive();
    if (loaded_)
        Unloading();
    Hide();
    screen_.Discard(*this);
    if (onGone_)
        onGone_();
}

void Form::Abandon() {
    if (unloaded_)
        return;
    unloaded_ = true;
    shown_ = false;
    screen_.Discard(*this);
}

void Form::RemoveCloseCommand() {
    hasCloseCommand_ = false;
    FormChanged();
}

bool Form::PersonCloses() {
    if (!hasCloseCommand_ || !enabled_)
        return false;
    const auto alive = KeepAlive();
    CloseAsked();
    return true;
}

bool Form::PersonPresses(Key key) {
    const auto alive = KeepAlive();
    return enabled_ && KeyDown(key);
}

void Form::Activated() {
    const auto alive = KeepAlive();
    if (loaded_ && !unloaded_)
        Activate();
}

Control* Form::Find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [name](const Control* control) { return control->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::SetFocus(Control& control) {
    focused_ = &control;
    if (observer_ != nullptr)
        observer_->FocusMoved(control);
}

// A window that appears has the focus on the first control that can take it, if nothing else was said.
void Form::FocusFirst() {
    if (focused_ != nullptr)
        return;
    const auto first = std::find_if(controls_.begin(), controls_.end(), [](const Control* control) {
        return control->TakesFocus() && control->Usable();
    });
    if (first != controls_.end())
        SetFocus(**first);
}

bool Form::MoveFocus(Control& control) {
    if (focused_ == &control)
        return true;
    const auto alive = KeepAlive();
    auto* left = dynamic_cast<TextBox*>(focused_);
    focused_ = &control;
    // The check of the field that was left may give the focus back to it, or to another one.
    if (left != nullptr)
        left->LoseFocus();
    if (focused_ != &control || unloaded_)
        return false;
    if (observer_ != nullptr)
        observer_->FocusMoved(control);
    return true;
}

void Form::Add(Control& control) {
    controls_.push_back(&control);
}

void Form::ControlChanged(Control& control) {
    if (observer_ != nullptr)
        observer_->ControlChanged(control);
}

void Form::FormChanged() {
    if (observer_ != nullptr)
        observer_->FormChanged();
}

} // namespace gfc::ui
