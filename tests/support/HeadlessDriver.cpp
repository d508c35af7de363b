#include "support/HeadlessDriver.h"

#include "services/Utf8.h"
#include "support/HeadlessScreen.h"
#include "ui/Buttons.h"
#include "ui/CheckableList.h"
#include "ui/DropDownList.h"
#include "ui/Furniture.h"
#include "ui/ListView.h"
#include "ui/Menu.h"
#include "ui/TabbedPane.h"
#include "ui/TextBox.h"
#include "ui/Tree.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

// Characters of a UTF-8 text, as the keyboard gives them.
std::vector<std::string> Characters(const std::string& text) {
    std::vector<std::string> characters;
    for (const char byte : text) {
        const bool continues = (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        if (continues && !characters.empty())
            characters.back() += byte;
        else
            characters.emplace_back(1, byte);
    }
    return characters;
}

char32_t CodeOf(const std::string& character) {
    const auto first = static_cast<unsigned char>(character.front());
    if (first < 0x80U)
        return first;
    char32_t code = first & (0xFFU >> (character.size() + 1));
    for (std::size_t i = 1; i < character.size(); ++i)
        code = (code << 6U) | (static_cast<unsigned char>(character[i]) & 0x3FU);
    return code;
}

void DropLast(std::string& text) {
    auto characters = Characters(text);
    if (!characters.empty())
        text.resize(text.size() - characters.back().size());
}

void PressInto(ui::TextBox& field, const std::string& character) {
    const auto taken = field.PersonTypes(CodeOf(character));
    if (!taken)
        return;
    std::string text = field.Text();
    if (character == "\b")
        DropLast(text);
    else
        services::AppendUtf8(text, *taken);
    field.PersonEdits(text);
    const int length = static_cast<int>(Characters(text).size());
    field.NoteSelection(length, 0);
}

} // namespace

ui::Form* HeadlessDriver::FormOf(const std::string& form) {
    ui::Form* found = screen_.FormNamed(form);
    if (found == nullptr)
        ADD_FAILURE() << "no window " << form << " is shown";
    return found;
}

ui::Control* HeadlessDriver::ControlOf(const std::string& form, const std::string& control) {
    ui::Form* window = FormOf(form);
    ui::Control* found = window == nullptr ? nullptr : window->Find(control);
    if (window != nullptr && found == nullptr)
        ADD_FAILURE() << form << " has no control " << control;
    return found;
}

template <class C>
C* HeadlessDriver::Of(const std::string& form, const std::string& control) {
    ui::Control* found = ControlOf(form, control);
    auto* wanted = dynamic_cast<C*>(found);
    if (found != nullptr && wanted == nullptr)
        ADD_FAILURE() << form << "." << control << " is of another kind";
    return wanted;
}

void HeadlessDriver::Click(const std::string& form, const std::string& control) {
    ui::Control* found = ControlOf(form, control);
    if (found == nullptr)
        return;
    const auto alive = found->Owner().KeepAlive();
    const bool usable = found->Usable();
    EXPECT_TRUE(usable) << form << "." << control << " cannot be clicked: visible " << found->Shown()
                        << ", enabled " << found->Enabled();
    if (auto* button = dynamic_cast<ui::CommandButton*>(found))
        button->PersonClicks();
    else if (auto* box = dynamic_cast<ui::CheckBox*>(found))
        box->PersonClicks();
    else if (auto* option = dynamic_cast<ui::OptionButton*>(found)) {
        option->PersonPresses();
        option->PersonClicks();
    } else if (auto* entry = dynamic_cast<ui::MenuEntry*>(found))
        entry->PersonClicks();
    else
        ADD_FAILURE() << form << "." << control << " is nothing to click";
}

void HeadlessDriver::Keys(const std::string& form, const std::string& control, const std::string& keys) {
    auto* field = Of<ui::TextBox>(form, control);
    if (field == nullptr)
        return;
    const auto alive = field->Owner().KeepAlive();
    EXPECT_TRUE(field->Usable()) << form << "." << control << " cannot be typed into";
    for (const auto& character : Characters(keys))
        PressInto(*field, character);
}

void HeadlessDriver::Type(const std::string& form, const std::string& control, const std::string& text) {
    auto* field = Of<ui::TextBox>(form, control);
    if (field == nullptr)
        return;
    EXPECT_TRUE(field->Usable()) << form << "." << control << " cannot be typed into";
    if (!field->PersonEnters())
        return;
    field->PersonEdits({});
    Keys(form, control, text);
}

void HeadlessDriver::Focus(const std::string& form, const std::string& control) {
    if (ui::Control* found = ControlOf(form, control); found != nullptr) {
        EXPECT_TRUE(found->Usable() && found->TakesFocus())
            << form << "." << control << " cannot have the focus";
        (void)found->Owner().MoveFocus(*found);
    }
}

void HeadlessDriver::Select(const std::string& form, const std::string& list, int index) {
    if (auto* found = Of<ui::DropDownList>(form, list)) {
        EXPECT_TRUE(found->PersonSelects(index))
            << form << "." << list << " does not let entry " << index << " be chosen";
    }
}

void HeadlessDriver::SelectTab(const std::string& form, const std::string& pane, int tab) {
    if (auto* found = Of<ui::TabbedPane>(form, pane)) {
        EXPECT_TRUE(found->PersonSelects(tab)) << form << "." << pane;
    }
}

void HeadlessDriver::ClickRow(const std::string& form, const std::string& list, int row) {
    if (auto* found = Of<ui::ListView>(form, list)) {
        EXPECT_TRUE(found->PersonClicksRow(row)) << form << "." << list << " row " << row;
    }
}

void HeadlessDriver::OpenRow(const std::string& form, const std::string& list, int row) {
    if (auto* found = Of<ui::OpenableList>(form, list)) {
        EXPECT_TRUE(found->PersonOpensRow(row)) << form << "." << list << " row " << row;
    }
}

void HeadlessDriver::MarkRow(const std::string& form, const std::string& list, int row) {
    if (auto* found = Of<ui::CheckableList>(form, list)) {
        EXPECT_TRUE(found->PersonMarksRow(row)) << form << "." << list << " row " << row;
    }
}

void HeadlessDriver::ClickNode(const std::string& form, const std::string& tree, const std::string& path) {
    if (auto* found = Of<ui::Tree>(form, tree)) {
        (void)found->PersonPresses(ui::MouseButton::Left);
        EXPECT_TRUE(found->PersonClicks(found->FindPath(path))) << form << "." << tree << " node " << path;
    }
}

void HeadlessDriver::RightClickNode(const std::string& form, const std::string& tree,
                                    const std::string& path) {
    if (auto* found = Of<ui::Tree>(form, tree)) {
        EXPECT_TRUE(found->PersonClicks(found->FindPath(path))) << form << "." << tree << " node " << path;
        (void)found->PersonPresses(ui::MouseButton::Right);
    }
}

void HeadlessDriver::OpenMenusAbove(ui::Control& entry) {
    if (entry.Container() == nullptr)
        return;
    OpenMenusAbove(*entry.Container());
    if (auto* menu = dynamic_cast<ui::MenuEntry*>(entry.Container()))
        menu->PersonClicks();
}

void HeadlessDriver::Menu(const std::string& form, const std::string& entry) {
    auto* found = Of<ui::MenuEntry>(form, entry);
    if (found == nullptr)
        return;
    const auto alive = found->Owner().KeepAlive();
    OpenMenusAbove(*found);
    EXPECT_TRUE(found->Usable()) << form << "." << entry << " cannot be chosen";
    found->PersonClicks();
}

// Enter presses the button that has the focus, before the one that it presses elsewhere.
void HeadlessDriver::PressEnter(ui::Form& window) {
    auto* focused = dynamic_cast<ui::CommandButton*>(window.FocusedControl());
    if (ui::CommandButton* button = focused == nullptr ? window.DefaultButton() : focused)
        button->PersonClicks();
}

void HeadlessDriver::PressKey(const std::string& form, const std::string& key) {
    ui::Form* window = FormOf(form);
    if (window == nullptr)
        return;
    const auto alive = window->KeepAlive();
    if (key == "F1")
        (void)window->PersonPresses(ui::Key::F1);
    else if (key == "Escape" && !window->PersonPresses(ui::Key::Escape) && window->CancelButton() != nullptr)
        window->CancelButton()->PersonClicks();
    else if (key == "Enter" && !window->PersonPresses(ui::Key::Enter))
        PressEnter(*window);
}

void HeadlessDriver::CloseWindow(const std::string& form) {
    if (ui::Form* window = FormOf(form); window != nullptr)
        (void)window->PersonCloses();
}

void HeadlessDriver::Tick(const std::string& form, const std::string& timer) {
    if (auto* found = Of<ui::Timer>(form, timer))
        found->Tick();
}

bool HeadlessDriver::IsShown(const std::string& form) {
    return screen_.FormNamed(form) != nullptr;
}

std::string HeadlessDriver::Caption(const std::string& form) {
    const ui::Form* window = FormOf(form);
    return window == nullptr ? std::string() : window->Caption();
}

bool HeadlessDriver::Visible(const std::string& form, const std::string& control) {
    const ui::Control* found = ControlOf(form, control);
    return found != nullptr && found->Shown();
}

bool HeadlessDriver::Enabled(const std::string& form, const std::string& control) {
    const ui::Control* found = ControlOf(form, control);
    if (found == nullptr)
        return false;
    // As a window shows it: enabled by itself and by all that it stands in.
    for (const ui::Control* at = found; at != nullptr; at = at->Container())
        if (!at->Enabled())
            return false;
    return true;
}

std::string HeadlessDriver::Text(const std::string& form, const std::string& control) {
    const ui::Control* found = ControlOf(form, control);
    if (found == nullptr)
        return {};
    if (const auto* field = dynamic_cast<const ui::TextBox*>(found))
        return field->Text();
    if (const auto* list = dynamic_cast<const ui::DropDownList*>(found))
        return list->Text();
    if (const auto* bar = dynamic_cast<const ui::StatusBar*>(found))
        return bar->PanelText(1);
    return found->Caption();
}

bool HeadlessDriver::Checked(const std::string& form, const std::string& control) {
    const ui::Control* found = ControlOf(form, control);
    if (const auto* box = dynamic_cast<const ui::CheckBox*>(found))
        return box->Value();
    if (const auto* option = dynamic_cast<const ui::OptionButton*>(found))
        return option->Value();
    ADD_FAILURE() << form << "." << control << " cannot be checked";
    return false;
}

int HeadlessDriver::Rows(const std::string& form, const std::string& list) {
    const auto* found = Of<ui::ListView>(form, list);
    return found == nullptr ? -1 : found->Count();
}

std::string HeadlessDriver::Cell(const std::string& form, const std::string& list, int row, int column) {
    const auto* found = Of<ui::ListView>(form, list);
    return found == nullptr || row < 1 || row > found->Count() ? std::string("no such row")
                                                               : found->Cell(row, column);
}

std::string HeadlessDriver::NodeImage(const std::string& form, const std::string& tree,
                                      const std::string& path) {
    const auto* found = Of<ui::Tree>(form, tree);
    const int node = found == nullptr ? 0 : found->FindPath(path);
    return node == 0 ? std::string("no such node") : found->At(node).Image;
}

int HeadlessDriver::Tab(const std::string& form, const std::string& pane) {
    const auto* found = Of<ui::TabbedPane>(form, pane);
    return found == nullptr ? -1 : found->Tab();
}

std::string HeadlessDriver::Focused(const std::string& form) {
    const ui::Form* window = FormOf(form);
    return window == nullptr || window->FocusedControl() == nullptr ? std::string()
                                                                    : window->FocusedControl()->Name();
}

} // namespace gfc::test
