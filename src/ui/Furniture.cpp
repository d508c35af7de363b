#include "ui/Furniture.h"

namespace gfc::ui {

void StatusBar::SetPanelText(int panel, std::string text) {
    if (panel > Panels())
        panels_.resize(static_cast<std::size_t>(panel));
    auto& old = panels_.at(static_cast<std::size_t>(panel - 1));
    if (old == text)
        return;
    old = std::move(text);
    Changed();
}

void StatusBar::MakePanel1AsWideAs(const Control& control) {
    likeWidth_ = &control;
    Changed();
}

void Timer::Tick() {
    if (Enabled())
        Fire(OnTimer);
}

} // namespace gfc::ui
