#pragma once

#include "ui/Screen.h"

namespace gfc::bench {

// A screen on which nothing is seen and nobody answers: what stands below the window, by itself.
class QuietScreen : public ui::Screen {
public:
    void Appear(ui::Form&) override {}
    void RunModal(ui::Form&) override {}
    void Disappear(ui::Form&) override {}
    void Discard(ui::Form&) override {}
    ui::Answer Ask(const ui::Box&) override { return ui::Answer::Ok; }
    std::optional<std::string> ChooseFile(const ui::FileChoice&) override { return std::nullopt; }
    std::string AskText(const std::string&, const std::string&) override { return {}; }
    void PopUp(ui::MenuEntry&) override {}
    void OpenHelp(const std::string&, int) override {}
    bool ViewText(const std::string&, ui::WindowState) override { return false; }
    void DoEvents() override {}
    void WaitAMoment() override {}
    void Busy(const std::function<void()>& work) override { work(); }
    void EndProgram(int) override {}
    [[nodiscard]] bool Ended() const override { return false; }
};

} // namespace gfc::bench
