#include "qt/ProbeForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

namespace gfc::test {

ProbeForm::ProbeForm(ui::Screen& screen, std::string name) : Form(screen, std::move(name), "Probe window") {
    Fill();
    Connect();
    ConnectLists();
}

void ProbeForm::UseDefaultButtons() {
    SetDefaultButton(go);
    SetCancelButton(leave);
}

void ProbeForm::Fill() {
    for (const char* entry : {"red", "green", "blue"})
        list.AddEntry(entry);
    const int root = tree.Add(0, "root", "Root", "Carpeta", "CarpetaOpen");
    const int branch = tree.Add(root, "branch", "Branch", "StationConfig");
    tree.Add(branch, "leaf", "Leaf", "Run");
    rows.AddColumns({{"Number", 4}, {"Name"}});
    rows.AddRows({{"1", "first"}, {"2", "second"}, {"3", "third"}});
    fixedPane.SetHeadersNavigate(false);
}

void ProbeForm::Connect() {
    number.OnKeyPress = [this](char32_t key) {
        Note("key " + std::to_string(key));
        return (key >= U'0' && key <= U'9') || key == 8;
    };
    number.OnLostFocus = [this] { CheckNumber(); };
    words.OnEdited = [this] { Note("words " + words.Text()); };
    tick.OnClick = [this] { Note(tick.Value() ? "ticked" : "not ticked"); };
    one.OnClick = [this] { Note("one"); };
    two.OnClick = [this] { Note("two"); };
    two.OnMouseDown = [this] { Note("two pressed"); };
    go.OnClick = [this] { Note("go"); };
    leave.OnClick = [this] { Unload(); };
    timer.OnTimer = [this] { Note("tick"); };
}

void ProbeForm::ConnectLists() {
    list.OnClick = [this] { Note("list " + list.Text()); };
    tree.OnNodeClick = [this](int node) { Note("node " + tree.FullPath(node)); };
    tree.OnMouseDown = [this](ui::MouseButton button) {
        Note(button == ui::MouseButton::Left ? "left" : "right");
    };
    rows.OnRowClick = [this](int row) { Note("row " + std::to_string(row)); };
    pane.OnClick = [this] { Note("pane " + std::to_string(pane.Tab())); };
    fixedPane.OnClick = [this] { Note("fixed pane " + std::to_string(fixedPane.Tab())); };
    menuMain.OnClick = [this] { Note("menu opens"); };
    menuFirst.OnClick = [this] { Note("first"); };
    menuDeep.OnClick = [this] { Note("deep"); };
    menuHelp.OnClick = [this] { Note("help"); };
}

void ProbeForm::CheckNumber() {
    Note("left number");
    if (number.Text() != "13")
        return;
    TheScreen().Ask({.Title = "Check", .Text = "Not 13", .TheIcon = ui::Icon::Exclamation});
    number.Select(0, 2);
    number.SetFocus();
}

bool ProbeForm::KeyDown(ui::Key key) {
    if (key != ui::Key::F1 || !HasHelp)
        return false;
    Note("F1");
    return true;
}

namespace {

template <class W>
W* Put(QWidget& place, const char* name) {
    auto* widget = new W;
    widget->setObjectName(name);
    place.layout()->addWidget(widget);
    return widget;
}

void PutPages(QTabWidget& tabs) {
    for (const char* title : {"", ""}) {
        auto* page = new QWidget;
        page->setObjectName("layoutPage");
        new QVBoxLayout(page);
        tabs.addTab(page, title);
    }
}

} // namespace

void SetUpProbe(QWidget& content) {
    new QVBoxLayout(&content);
    Put<QLabel>(content, "title");
    Put<QLineEdit>(content, "number");
    Put<QLineEdit>(content, "words");
    Put<QCheckBox>(content, "tick");
    auto* group = Put<QGroupBox>(content, "group");
    new QVBoxLayout(group);
    Put<QRadioButton>(*group, "one");
    Put<QRadioButton>(*group, "two");
    Put<QComboBox>(content, "list");
    Put<QTreeView>(content, "tree");
    Put<QTableView>(content, "rows");
    auto* pane = Put<QTabWidget>(content, "pane");
    PutPages(*pane);
    Put<QLineEdit>(*pane->widget(1), "inside");
    PutPages(*Put<QTabWidget>(content, "fixedPane"));
    Put<QPushButton>(content, "go");
    Put<QPushButton>(content, "leave");
    Put<QStatusBar>(content, "status");
}

} // namespace gfc::test
