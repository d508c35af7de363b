#pragma once

#include <functional>
#include <string>

namespace gfc::ui {

class Form;
class Control;
class TabbedPane;

// The closed set of control kinds; a window renders each with one renderer.
enum class Kind {
    Label,
    TextBox,
    CommandButton,
    CheckBox,
    OptionButton,
    DropDownList,
    Frame,
    Tree,
    ListView,
    TabbedPane,
    StatusBar,
    MenuEntry,
    Timer,
    ImageList
};

// Where a control stands: directly on a form, inside another control, or on a page of a tabbed pane.
struct Place {
    Place(Form& form) : Owner(&form) {}
    Place(Control& container);
    Place(TabbedPane& pane, int page);

    Form* Owner;
    Control* Container = nullptr;
    int Page = -1;
};

// What every control has. The control is the single truth: a window only shows it and reports what a person
// did.
class Control {
public:
    Control(Place place, Kind kind, std::string name, std::string caption = {});
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    [[nodiscard]] Kind TheKind() const { return kind_; }
    // Items of an array bear their index: "CheckRun_0".
    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] Form& Owner() const { return *place_.Owner; }
    [[nodiscard]] Control* Container() const { return place_.Container; }
    [[nodiscard]] int Page() const { return place_.Page; }

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    // The control's own flags, without regard to what it stands in.
    [[nodiscard]] bool Visible() const { return visible_; }
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void SetVisible(bool visible);
    void SetEnabled(bool enabled);
    // True if a person can see it, and use it: own flags and those of everything it stands in.
    [[nodiscard]] bool Shown() const;
    [[nodiscard]] bool Usable() const;
    // True for the kinds that the input focus can rest on.
    [[nodiscard]] bool TakesFocus() const;
    void SetFocus();

protected:
    // Tells the window that something about this control is different now.
    void Changed();
    // Runs an event with its form kept alive: a form may unload itself inside its own event.
    void Fire(const std::function<void()>& event);
    // A person is about to act on this control. False if he cannot, or if the field he leaves holds him back.
    [[nodiscard]] bool PersonActs();

private:
    Kind kind_;
    Place place_;
    std::string name_;
    std::string caption_;
    bool visible_ = true;
    bool enabled_ = true;
};

} // namespace gfc::ui
