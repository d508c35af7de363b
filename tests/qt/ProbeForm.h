#pragma once

#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Furniture.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/Menu.h"
#include "ui/Screen.h"
#include "ui/TabbedPane.h"
#include "ui/TextBox.h"
#include "ui/Tree.h"

#include <string>
#include <vector>

class QWidget;

namespace gfc::test {

// A form with a control of each kind, that writes down what happens to it.
class ProbeForm : public ui::Form {
public:
    explicit ProbeForm(ui::Screen& screen, std::string name = "Probe");

    ui::MenuEntry menuMain{*this, "menuMain", "&Main"};
    ui::MenuEntry menuFirst{menuMain, "menuFirst", "First"};
    ui::MenuEntry menuLine{menuMain, "menuLine", "-"};
    ui::MenuEntry menuMore{menuMain, "menuMore", "More"};
    ui::MenuEntry menuDeep{menuMore, "menuDeep", "Deep"};
    ui::MenuEntry menuHelp{*this, "menuHelp", "&Help"};

    ui::Label title{*this, "title", "A title"};
    // Takes digits only; the text "13" is refused when the field is left.
    ui::TextBox number{*this, "number"};
    ui::TextBox words{*this, "words"};
    ui::CheckBox tick{*this, "tick", "Tick"};
    ui::Frame group{*this, "group", "Group"};
    ui::OptionButton one{group, "one", "One"};
    ui::OptionButton two{group, "two", "Two"};
    ui::DropDownList list{*this, "list"};
    ui::Tree tree{*this, "tree"};
    ui::ListView rows{*this, "rows"};
    ui::TabbedPane pane{*this, "pane", {"Left", "Right"}};
    ui::TextBox inside{pane.OnPage(1), "inside"};
    ui::TabbedPane fixedPane{*this, "fixedPane", {"First", "Second"}};
    ui::CommandButton go{*this, "go", "Go"};
    ui::CommandButton leave{*this, "leave", "Leave"};
    ui::StatusBar status{*this, "status"};
    ui::Timer timer{*this, "timer", 60'000};

    std::vector<std::string> Log;
    bool HasHelp = true; // F1 is its own
    void UseDefaultButtons();
    using ui::Form::TheScreen;

protected:
    void Load() override { Log.emplace_back("load"); }
    void Unloading() override { Log.emplace_back("unload"); }
    void Activate() override { Log.emplace_back("activate"); }
    bool KeyDown(ui::Key key) override;

private:
    void Fill();
    void Connect();
    void ConnectLists();
    void CheckNumber();
    void Note(const std::string& what) { Log.push_back(what); }
};

// Stands in for the probe's design file.
void SetUpProbe(QWidget& content);

} // namespace gfc::test
