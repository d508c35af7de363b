#pragma once

#include "ui/Control.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::ui {

class CommandButton;
class Screen;

enum class Key { F1, Enter, Escape };

// Told of every change, so that a window can follow its form.
class FormObserver {
public:
    virtual ~FormObserver() = default;
    virtual void ControlChanged(Control& control) = 0;
    virtual void FormChanged() = 0;
    virtual void FocusMoved(Control& control) = 0;
};

// A form is what a window contains and decides, with no toolkit in it.
//
// Its life: made unloaded; the first use of it as a window (EnsureLoaded, Show, ShowModal) runs Load once;
// hiding keeps its state; Unload throws the state away. A form lives until the event that it is in has
// returned.
class Form : public std::enable_shared_from_this<Form> {
public:
    Form(Screen& screen, std::string name, std::string caption = {});
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

    void EnsureLoaded();
    [[nodiscard]] bool IsLoaded() const { return loaded_; }
    [[nodiscard]] bool IsUnloaded() const { return unloaded_; }
    [[nodiscard]] bool IsShown() const { return shown_; }
    void Show();
    // Returns when the form was hidden or unloaded.
    void ShowModal();
    void Hide();
    // Runs Unloading, takes the window away and tells OnGone; a second call does nothing.
    void Unload();

    // Takes the window away without any event: what the form stands in is going.
    void Abandon();

    // A form without a close command is left by its own buttons only.
    void RemoveCloseCommand();
    [[nodiscard]] bool HasCloseCommand() const { return hasCloseCommand_; }
    // A person used the window's close command; false if the form has none. What becomes of it the form says.
    bool PersonCloses();
    // A person pressed a key that no control has used; true if the form made use of it.
    bool PersonPresses(Key key);
    // The window has become the active one.
    void Activated();

    // The button that Enter presses, and the one that Escape presses; null for none.
    [[nodiscard]] CommandButton* DefaultButton() const { return defaultButton_; }
    [[nodiscard]] CommandButton* CancelButton() const { return cancelButton_; }

    // The controls in the order in which they are declared, which is the tab order.
    [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
    // Null if the form has no such control.
    [[nodiscard]] Control* Find(std::string_view name) const;

    [[nodiscard]] Control* FocusedControl() const { return focused_; }
    // By program: no check of the field that is left.
    void SetFocus(Control& control);
    // By a person: the field that is left runs its check. False if the focus went elsewhere than to the
    // control.
    bool MoveFocus(Control& control);

    void SetObserver(FormObserver* observer) { observer_ = observer; }
    void SetOnGone(std::function<void()> onGone) { onGone_ = std::move(onGone); }
    [[nodiscard]] std::shared_ptr<Form> KeepAlive() { return weak_from_this().lock(); }

protected:
    // Runs once, before the window appears.
    virtual void Load() {}
    virtual void Unloading() {}
    virtual void Activate() {}
    virtual bool KeyDown(Key) { return false; }
    // A person used the window's close command.
    virtual void CloseAsked() { Unload(); }

    void SetDefaultButton(CommandButton& button) { defaultButton_ = &button; }
    void SetCancelButton(CommandButton& button) { cancelButton_ = &button; }
    [[nodiscard]] Screen& TheScreen() const { return screen_; }

private:
    friend class Control;
    friend class Screen;
    void Add(Control& control);
    void ControlChanged(Control& control);
    void FormChanged();
    void FocusFirst();

    Screen& screen_;
    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    CommandButton* defaultButton_ = nullptr;
    CommandButton* cancelButton_ = nullptr;
    FormObserver* observer_ = nullptr;
    std::function<void()> onGone_;
    bool enabled_ = true;
    bool hasCloseCommand_ = true;
    bool loaded_ = false;
    bool unloaded_ = false;
    bool shown_ = false;
};

} // namespace gfc::ui
