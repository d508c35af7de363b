#pragma once

#include "ui/Screen.h"

#include <string>

namespace gfc::test {

// The hands and eyes of a person before the program, given a form's name and a control's name ("CheckRun_0"
// for an item of an array). One driver works on the forms alone, the other on real windows with real clicks
// and keys. Every act fails the test if a person could not do it: a control that is hidden, disabled or not
// there.
class Driver {
public:
    virtual ~Driver() = default;

    virtual void Click(const std::string& form, const std::string& control) = 0;
    // Keys into a field, one by one, behind what it holds; "\b" is Backspace, "\r" is Enter.
    virtual void Keys(const std::string& form, const std::string& control, const std::string& keys) = 0;
    // Takes the focus into the field, selects all of it and types over it.
    virtual void Type(const std::string& form, const std::string& control, const std::string& text) = 0;
    // Takes the focus to the control, so that the field left runs its check.
    virtual void Focus(const std::string& form, const std::string& control) = 0;
    virtual void Select(const std::string& form, const std::string& list, int index) = 0;
    virtual void SelectTab(const std::string& form, const std::string& pane, int tab) = 0;
    virtual void ClickRow(const std::string& form, const std::string& list, int row) = 0;
    // Double-clicks a row, or presses Enter on it.
    virtual void OpenRow(const std::string& form, const std::string& list, int row) = 0;
    // Presses the check box of a row.
    virtual void MarkRow(const std::string& form, const std::string& list, int row) = 0;
    // path: the node's texts from the root down, joined by backslashes.
    virtual void ClickNode(const std::string& form, const std::string& tree, const std::string& path) = 0;
    virtual void RightClickNode(const std::string& form, const std::string& tree,
                                const std::string& path) = 0;
    // A menu entry by its name, through the menu in which it stands.
    virtual void Menu(const std::string& form, const std::string& entry) = 0;
    virtual void PressKey(const std::string& form, const std::string& key) = 0; // "F1", "Escape", "Enter"
    virtual void CloseWindow(const std::string& form) = 0;
    virtual void Tick(const std::string& form, const std::string& timer) = 0;

    [[nodiscard]] virtual bool IsShown(const std::string& form) = 0;
    [[nodiscard]] virtual std::string Caption(const std::string& form) = 0;
    [[nodiscard]] virtual bool Visible(const std::string& form, const std::string& control) = 0;
    [[nodiscard]] virtual bool Enabled(const std::string& form, const std::string& control) = 0;
    // A label's, button's, frame's or field's text, the selected entry of a list.
    [[nodiscard]] virtual std::string Text(const std::string& form, const std::string& control) = 0;
    [[nodiscard]] virtual bool Checked(const std::string& form, const std::string& control) = 0;
    [[nodiscard]] virtual int Rows(const std::string& form, const std::string& list) = 0;
    [[nodiscard]] virtual std::string Cell(const std::string& form, const std::string& list, int row,
                                           int column) = 0;
    // The texts of a tree's nodes in order of addition, each as its full path.
    [[nodiscard]] virtual std::string NodeImage(const std::string& form, const std::string& tree,
                                                const std::string& path) = 0;
    [[nodiscard]] virtual int Tab(const std::string& form, const std::string& pane) = 0;
    [[nodiscard]] virtual std::string Focused(const std::string& form) = 0;
};

} // namespace gfc::test
