#pragma once

#include "support/Driver.h"
#include "ui/Form.h"

namespace gfc::test {

class HeadlessScreen;

class HeadlessDriver : public Driver {
public:
    explicit HeadlessDriver(HeadlessScreen& screen) : screen_(screen) {}

    void Click(const std::string& form, const std::string& control) override;
    void Keys(const std::string& form, const std::string& control, const std::string& keys) override;
    void Type(const std::string& form, const std::string& control, const std::string& text) override;
    void Focus(const std::string& form, const std::string& control) override;
    void Select(const std::string& form, const std::string& list, int index) override;
    void SelectTab(const std::string& form, const std::string& pane, int tab) override;
    void ClickRow(const std::string& form, const std::string& list, int row) override;
    void OpenRow(const std::string& form, const std::string& list, int row) override;
    void MarkRow(const std::string& form, const std::string& list, int row) override;
    void ClickNode(const std::string& form, const std::string& tree, const std::string& path) override;
    void RightClickNode(const std::string& form, const std::string& tree, const std::string& path) override;
    void Menu(const std::string& form, const std::string& entry) override;
    void PressKey(const std::string& form, const std::string& key) override;
    void CloseWindow(const std::string& form) override;
    void Tick(const std::string& form, const std::string& timer) override;

    bool IsShown(const std::string& form) override;
    std::string Caption(const std::string& form) override;
    bool Visible(const std::string& form, const std::string& control) override;
    bool Enabled(const std::string& form, const std::string& control) override;
    std::string Text(const std::string& form, const std::string& control) override;
    bool Checked(const std::string& form, const std::string& control) override;
    int Rows(const std::string& form, const std::string& list) override;
    std::string Cell(const std::string& form, const std::string& list, int row, int column) override;
    std::string NodeImage(const std::string& form, const std::string& tree, const std::string& path) override;
    int Tab(const std::string& form, const std::string& pane) override;
    std::string Focused(const std::string& form) override;

private:
    // Null, with a failure reported, if there is no such form or control.
    ui::Form* FormOf(const std::string& form);
    ui::Control* ControlOf(const std::string& form, const std::string& control);
    template <class C>
    C* Of(const std::string& form, const std::string& control);
    void OpenMenusAbove(ui::Control& entry);
    static void PressEnter(ui::Form& window);

    HeadlessScreen& screen_;
};

} // namespace gfc::test
