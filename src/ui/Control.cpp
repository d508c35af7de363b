#include "ui/Control.h"

#include "ui/Form.h"
#include "ui/TabbedPane.h"

namespace gfc::ui {

Place::Place(Control& container) : Owner(&container.Owner()), Container(&container) {}

Place::Place(TabbedPane& pane, int page) : Owner(&pane.Owner()), Container(&pane), Page(page) {}

Control::Control(Place place, Kind kind, std::string name, std::string caption)
    : kind_(kind), place_(place), name_(std::move(name)), caption_(std::move(caption)) {
    place_.Owner->Add(*this);
}

void Control::SetCaption(std::string caption) {
    if (caption == caption_)
        return;
    caption_ = std::move(caption);
    Changed();
}

void Control::SetVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    Changed();
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    Changed();
}

bool Control::Shown() const {
    if (!visible_)
        return false;
    const Control* container = place_.Container;
    if (container == nullptr)
        return true;
    if (place_.Page >= 0 && static_cast<const TabbedPane*>(container)->Tab() != place_.Page)
        return false;
    return container->Shown();
}

bool Control::Usable() const {
    if (!enabled_ || !visible_)
        return false;
    const Control* container = place_.Container;
    return Shown() && (container == nullptr ? Owner().Enabled() : container->Usable());
}

bool Control::TakesFocus() const {
    switch (kind_) {
    case Kind::TextBox:
    case Kind::CommandButton:
    case Kind::CheckBox:
    case Kind::OptionButton:
    case Kind::DropDownList:
    case Kind::Tree:
    case Kind::ListView:
    case Kind::TabbedPane:
        return true;
    default:
        return false;
    }
}

void Control::SetFocus() {
    Owner().SetFocus(*this);
}

void Control::Changed() {
    Owner().ControlChanged(*this);
}

void Control::Fire(const std::function<void()>& event) {
    if (!event)
        return;
    const auto alive = Owner().KeepAlive();
    // A copy, since the event may give the control another one.
    const auto running = event;
    running();
}

bool Control::PersonActs() {
    return Usable() && (!TakesFocus() || Owner().MoveFocus(*this));
}

} // namespace gfc::ui
