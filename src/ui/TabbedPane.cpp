#include "ui/TabbedPane.h"

namespace gfc::ui {

void TabbedPane::SetTabCaption(int tab, std::string caption) {
    auto& old = captions_.at(static_cast<std::size_t>(tab));
    if (old == caption)
        return;
    old = std::move(caption);
    Changed();
}

void TabbedPane::SetTab(int tab) {
    if (tab == tab_ || tab < 0 || tab >= Tabs())
        return;
    tab_ = tab;
    Changed();
    Fire(OnClick);
}

bool TabbedPane::PersonSelects(int tab) {
    if (tab < 0 || tab >= Tabs() || !PersonActs())
        return false;
    if (headersNavigate_ && tab != tab_) {
        SetTab(tab);
        return true;
    }
    // The window may have moved on its own: it is told to show what holds.
    Changed();
    Fire(OnClick);
    return true;
}

} // namespace gfc::ui
