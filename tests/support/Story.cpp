#include "support/Story.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

std::string Of(const std::string& form, const std::string& control) {
    return form + "." + control;
}

struct Describer {
    std::string operator()(const Story::Act& act) const { return act.What; }
    std::string operator()(const ExpectedBox& box) const {
        return "answer box '" + box.Title + "': " + box.Text;
    }
    std::string operator()(const ExpectedFileChoice&) const { return "choose a file"; }
    std::string operator()(const ExpectedPrompt& prompt) const {
        return "answer prompt '" + prompt.Title + "'";
    }
};

} // namespace

std::string Describe(const Story::Step& step) {
    return std::visit(Describer{}, step);
}

Story& Story::Do(std::string what, std::function<void(Driver&)> act) {
    steps_.emplace_back(Act{std::move(what), std::move(act)});
    return *this;
}

Story& Story::Box(const std::string& title, const std::string& text, ui::Icon icon, ui::Answer answer) {
    steps_.emplace_back(ExpectedBox{title, text, icon, answer});
    return *this;
}

Story& Story::ChooseFile(std::optional<std::string> path) {
    steps_.emplace_back(ExpectedFileChoice{std::move(path)});
    return *this;
}

Story& Story::Prompt(const std::string& title, const std::string& answer) {
    steps_.emplace_back(ExpectedPrompt{title, answer});
    return *this;
}

Story& Story::Click(const std::string& form, const std::string& control) {
    return Do("click " + Of(form, control), [=](Driver& d) { d.Click(form, control); });
}

Story& Story::Type(const std::string& form, const std::string& control, const std::string& text) {
    return Do("type into " + Of(form, control), [=](Driver& d) { d.Type(form, control, text); });
}

Story& Story::Keys(const std::string& form, const std::string& control, const std::string& keys) {
    return Do("keys into " + Of(form, control), [=](Driver& d) { d.Keys(form, control, keys); });
}

Story& Story::Focus(const std::string& form, const std::string& control) {
    return Do("focus " + Of(form, control), [=](Driver& d) { d.Focus(form, control); });
}

Story& Story::Select(const std::string& form, const std::string& list, int index) {
    return Do("select in " + Of(form, list), [=](Driver& d) { d.Select(form, list, index); });
}

Story& Story::SelectTab(const std::string& form, const std::string& pane, int tab) {
    return Do("select tab of " + Of(form, pane), [=](Driver& d) { d.SelectTab(form, pane, tab); });
}

Story& Story::ClickRow(const std::string& form, const std::string& list, int row) {
    return Do("click row of " + Of(form, list), [=](Driver& d) { d.ClickRow(form, list, row); });
}

Story& Story::OpenRow(const std::string& form, const std::string& list, int row) {
    return Do("open row of " + Of(form, list), [=](Driver& d) { d.OpenRow(form, list, row); });
}

Story& Story::MarkRow(const std::string& form, const std::string& list, int row) {
    return Do("mark row of " + Of(form, list), [=](Driver& d) { d.MarkRow(form, list, row); });
}

Story& Story::ClickNode(const std::string& form, const std::string& tree, const std::string& path) {
    return Do("click node " + path + " of " + Of(form, tree),
              [=](Driver& d) { d.ClickNode(form, tree, path); });
}

Story& Story::RightClickNode(const std::string& form, const std::string& tree, const std::string& path) {
    return Do("right-click node " + path, [=](Driver& d) { d.RightClickNode(form, tree, path); });
}

Story& Story::Menu(const std::string& form, const std::string& entry) {
    return Do("menu " + Of(form, entry), [=](Driver& d) { d.Menu(form, entry); });
}

Story& Story::PressKey(const std::string& form, const std::string& key) {
    return Do("press " + key + " in " + form, [=](Driver& d) { d.PressKey(form, key); });
}

Story& Story::CloseWindow(const std::string& form) {
    return Do("close window " + form, [=](Driver& d) { d.CloseWindow(form); });
}

Story& Story::Tick(const std::string& form, const std::string& timer) {
    return Do("tick " + Of(form, timer), [=](Driver& d) { d.Tick(form, timer); });
}

Story& Story::SeeText(const std::string& form, const std::string& control, const std::string& text) {
    return Check([=](Driver& d) { EXPECT_EQ(d.Text(form, control), text) << Of(form, control); });
}

Story& Story::SeeCaption(const std::string& form, const std::string& caption) {
    return Check([=](Driver& d) { EXPECT_EQ(d.Caption(form), caption) << form; });
}

Story& Story::SeeShown(const std::string& form, bool shown) {
    return Check([=](Driver& d) { EXPECT_EQ(d.IsShown(form), shown) << form; });
}

Story& Story::SeeEnabled(const std::string& form, const std::string& control, bool enabled) {
    return Check([=](Driver& d) { EXPECT_EQ(d.Enabled(form, control), enabled) << Of(form, control); });
}

Story& Story::SeeVisible(const std::string& form, const std::string& control, bool visible) {
    return Check([=](Driver& d) { EXPECT_EQ(d.Visible(form, control), visible) << Of(form, control); });
}

Story& Story::SeeChecked(const std::string& form, const std::string& control, bool checked) {
    return Check([=](Driver& d) { EXPECT_EQ(d.Checked(form, control), checked) << Of(form, control); });
}

} // namespace gfc::test
