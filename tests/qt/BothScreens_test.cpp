#include "qt/ProbeForm.h"
#include "qt/support/StoryScreen.h"
#include "support/HeadlessScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace gfc::test {

namespace {

using ::testing::ElementsAre;

void AddProbes(HeadlessScreen&) {}
void AddProbes(StoryScreen& screen) {
    screen.AddDesign({"Probe", SetUpProbe});
    screen.AddDesign({"Second", SetUpProbe});
}

} // namespace

// One form, one story, two equal hosts: what happens must be the same, in the same order.
template <class S>
class OnBothScreens : public ::testing::Test {
protected:
    OnBothScreens() { AddProbes(Screen); }

    S Screen;
    std::shared_ptr<ProbeForm> Form = std::make_shared<ProbeForm>(Screen);
    Story& TheStory = Screen.TheStory;

    // The story is told before, and opens the form itself.
    void PlayModal() {
        Story told = TheStory;
        TheStory = Story();
        TheStory.Do("open", [this](Driver&) { Form->ShowModal(); });
        Append(told);
        Screen.PlayOut();
    }
    void Append(Story& told) {
        while (!told.Done()) {
            const auto step = told.Take();
            if (const auto* act = std::get_if<Story::Act>(&step))
                TheStory.Do(act->What, act->Do);
            else if (const auto* box = std::get_if<ExpectedBox>(&step))
                TheStory.Box(box->Title, box->Text, box->TheIcon, box->TheAnswer);
        }
    }
};

using Screens = ::testing::Types<HeadlessScreen, StoryScreen>;
TYPED_TEST_SUITE(OnBothScreens, Screens);

TYPED_TEST(OnBothScreens, clicks_are_reported_in_order) {
    this->TheStory.Click("Probe", "tick")
        .Click("Probe", "two")
        .Click("Probe", "one")
        .Click("Probe", "go")
        .Click("Probe", "tick");
    this->TheStory.SeeChecked("Probe", "one")
        .SeeChecked("Probe", "two", false)
        .SeeChecked("Probe", "tick", false);
    this->TheStory.Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "left number", "ticked", "two pressed",
                                             "two", "one", "go", "not ticked", "unload"));
}

TYPED_TEST(OnBothScreens, a_refused_key_never_reaches_the_field) {
    this->TheStory.Type("Probe", "number", "1a2").SeeText("Probe", "number", "12");
    this->TheStory.Keys("Probe", "number", "\b3").SeeText("Probe", "number", "13");
    this->TheStory.Keys("Probe", "number", "\b\b").SeeText("Probe", "number", "");
    this->TheStory.Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "key 49", "key 97", "key 50", "key 8",
                                             "key 51", "key 8", "key 8", "left number", "unload"));
}

TYPED_TEST(OnBothScreens, a_field_that_fails_its_check_keeps_the_focus_and_swallows_the_click) {
    this->TheStory.Type("Probe", "number", "13").Click("Probe", "go");
    this->TheStory.Box("Check", "Not 13", ui::Icon::Exclamation);
    this->TheStory.Check([](Driver& d) { EXPECT_EQ(d.Focused("Probe"), "number"); });
    this->TheStory.Type("Probe", "number", "7").Click("Probe", "go").Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "key 49", "key 51", "left number", "key 55",
                                             "left number", "go", "unload"));
}

TYPED_TEST(OnBothScreens, every_kind_of_control_waits_for_the_check) {
    auto& story = this->TheStory;
    story.Type("Probe", "number", "13");
    for (const char* control : {"tick", "go", "leave"})
        story.Click("Probe", control).Box("Check", "Not 13", ui::Icon::Exclamation);
    story.Focus("Probe", "words").Box("Check", "Not 13", ui::Icon::Exclamation);
    story.SeeChecked("Probe", "tick", false);
    story.Check([](Driver& d) { EXPECT_EQ(d.Focused("Probe"), "number"); });
    story.Type("Probe", "number", "1").Click("Probe", "leave");
    this->PlayModal();
}

TYPED_TEST(OnBothScreens, choosing_the_same_entry_again_is_a_choice) {
    this->TheStory.Select("Probe", "list", 1).Select("Probe", "list", 1).Select("Probe", "list", 0);
    this->TheStory.SeeText("Probe", "list", "red").Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "left number", "list green", "list green",
                                             "list red", "unload"));
}

TYPED_TEST(OnBothScreens, a_text_that_is_no_entry_is_shown) {
    this->TheStory.Do("set", [this](Driver&) { this->Form->list.SetText("violet"); });
    this->TheStory.SeeText("Probe", "list", "violet")
        .Select("Probe", "list", 2)
        .SeeText("Probe", "list", "blue");
    this->TheStory.Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log,
                ElementsAre("load", "activate", "list violet", "left number", "list blue", "unload"));
}

TYPED_TEST(OnBothScreens, nodes_and_rows_answer_to_clicks) {
    this->TheStory.ClickNode("Probe", "tree", "Root\\Branch\\Leaf").RightClickNode("Probe", "tree", "Root");
    this->TheStory.ClickRow("Probe", "rows", 2).ClickRow("Probe", "rows", 2).Click("Probe", "leave");
    this->PlayModal();
    EXPECT_EQ(this->Form->rows.SelectedRow(), 2);
    EXPECT_THAT(this->Form->Log,
                ElementsAre("load", "activate", "left number", "left", "node Root\\Branch\\Leaf", "node Root",
                            "right", "row 2", "row 2", "unload"));
}

TYPED_TEST(OnBothScreens, headers_turn_the_page_only_where_they_navigate) {
    this->TheStory.SelectTab("Probe", "pane", 1)
        .SelectTab("Probe", "pane", 1)
        .SelectTab("Probe", "fixedPane", 1);
    this->TheStory.SeeVisible("Probe", "inside");
    this->TheStory.Check([](Driver& d) {
        EXPECT_EQ(d.Tab("Probe", "pane"), 1);
        EXPECT_EQ(d.Tab("Probe", "fixedPane"), 0);
    });
    this->TheStory.Do("turn", [this](Driver&) { this->Form->fixedPane.SetTab(1); });
    this->TheStory.Check([](Driver& d) { EXPECT_EQ(d.Tab("Probe", "fixedPane"), 1); })
        .Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "left number", "pane 1", "pane 1",
                                             "fixed pane 0", "fixed pane 1", "unload"));
}

TYPED_TEST(OnBothScreens, menus_say_that_they_open) {
    this->TheStory.Menu("Probe", "menuFirst").Menu("Probe", "menuDeep").Menu("Probe", "menuHelp");
    this->TheStory.Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "menu opens", "first", "menu opens", "deep",
                                             "help", "left number", "unload"));
}

TYPED_TEST(OnBothScreens, a_disabled_menu_entry_is_seen_as_disabled) {
    this->TheStory.Do("disable", [this](Driver&) { this->Form->menuMore.SetEnabled(false); });
    this->TheStory.SeeEnabled("Probe", "menuFirst")
        .SeeEnabled("Probe", "menuDeep", false)
        .Click("Probe", "leave");
    this->PlayModal();
}

TYPED_TEST(OnBothScreens, enter_and_escape_press_their_buttons) {
    this->Form->UseDefaultButtons();
    this->TheStory.Focus("Probe", "words")
        .PressKey("Probe", "Enter")
        .PressKey("Probe", "F1")
        .PressKey("Probe", "Escape");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "left number", "go", "F1", "unload"));
}

TYPED_TEST(OnBothScreens, enter_presses_the_button_that_has_the_focus) {
    this->Form->UseDefaultButtons();
    this->TheStory.Focus("Probe", "leave").PressKey("Probe", "Enter");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "left number", "unload"));
}

TYPED_TEST(OnBothScreens, a_form_without_close_command_is_not_closed) {
    this->Form->RemoveCloseCommand();
    this->TheStory.CloseWindow("Probe").PressKey("Probe", "Escape").SeeShown("Probe").Click("Probe", "leave");
    this->PlayModal();
}

TYPED_TEST(OnBothScreens, closing_a_form_unloads_it) {
    this->TheStory.CloseWindow("Probe").SeeShown("Probe", false);
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "unload"));
}

TYPED_TEST(OnBothScreens, a_form_becomes_active_when_a_modal_form_has_gone_but_not_after_a_box) {
    auto second = std::make_shared<ProbeForm>(this->Screen, "Second");
    this->Form->go.OnClick = [&] {
        second->ShowModal();
        this->Form->Log.emplace_back("back");
        (void)this->Screen.Ask({.Title = "Box", .Text = "Text", .TheButtons = ui::Buttons::YesNo});
    };
    this->TheStory.Click("Probe", "go")
        .Click("Second", "leave")
        .Box("Box", "Text", ui::Icon::None, ui::Answer::No);
    this->TheStory.Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log,
                ElementsAre("load", "activate", "left number", "activate", "back", "unload"));
    EXPECT_THAT(second->Log, ElementsAre("load", "activate", "left number", "unload"));
}

TYPED_TEST(OnBothScreens, a_modal_form_hidden_and_shown_again_in_one_event_stays) {
    this->Form->go.OnClick = [this] {
        this->Form->Hide();
        this->Form->Show();
    };
    this->TheStory.Click("Probe", "go").SeeShown("Probe").Click("Probe", "tick").Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log,
                ElementsAre("load", "activate", "left number", "activate", "ticked", "unload"));
}

TYPED_TEST(OnBothScreens, a_form_may_go_while_a_form_that_it_opened_is_still_open) {
    auto second = std::make_shared<ProbeForm>(this->Screen, "Second");
    std::weak_ptr<ProbeForm> watched = this->Form;
    this->Form->go.OnClick = [&second] { second->ShowModal(); };
    second->go.OnClick = [this, &second] {
        this->Form->Unload();
        this->Form.reset();
        second->Unload();
    };
    this->TheStory.Do("open", [this](Driver&) { this->Form->ShowModal(); });
    this->TheStory.Click("Probe", "go").SeeShown("Probe").Click("Second", "go").SeeShown("Probe", false);
    this->Screen.PlayOut();
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(this->Screen.Ended());
}

TYPED_TEST(OnBothScreens, the_end_of_the_program_leaves_every_loop) {
    auto second = std::make_shared<ProbeForm>(this->Screen, "Second");
    this->Form->go.OnClick = [&second] { second->ShowModal(); };
    second->go.OnClick = [this] { this->Screen.EndProgram(3); };
    this->TheStory.Click("Probe", "go").Click("Second", "go");
    this->PlayModal();
    EXPECT_TRUE(this->Screen.Ended());
    EXPECT_EQ(this->Screen.ExitCode, 3);
    // Nothing opens any more.
    EXPECT_EQ(this->Screen.Ask({.Title = "Late", .Text = "Text", .TheButtons = ui::Buttons::YesNo}),
              ui::Answer::No);
}

TYPED_TEST(OnBothScreens, a_timer_ticks_while_it_is_enabled) {
    this->TheStory.Tick("Probe", "timer").Do("start", [this](Driver&) {
        this->Form->timer.SetEnabled(true);
    });
    this->TheStory.Tick("Probe", "timer").Click("Probe", "leave");
    this->PlayModal();
    EXPECT_THAT(this->Form->Log, ElementsAre("load", "activate", "tick", "left number", "unload"));
}

TYPED_TEST(OnBothScreens, what_the_program_changes_is_seen) {
    this->TheStory.Do("change", [this](Driver&) {
        auto& form = *this->Form;
        form.SetCaption("Other");
        form.title.SetCaption("line\r\nbreak");
        form.words.SetText("text");
        form.go.SetEnabled(false);
        form.group.SetVisible(false);
        form.tick.SetValue(true);
        form.status.SetPanelText(1, "ready");
        form.rows.SetCell(1, 1, "changed");
        form.rows.RemoveRows(2, 1);
        form.tree.SetImage(3, "NoRun");
    });
    this->TheStory.SeeCaption("Probe", "Other").SeeText("Probe", "title", "line\r\nbreak");
    this->TheStory.SeeText("Probe", "words", "text").SeeEnabled("Probe", "go", false);
    this->TheStory.SeeVisible("Probe", "one", false)
        .SeeChecked("Probe", "tick")
        .SeeText("Probe", "status", "ready");
    this->TheStory.Check([](Driver& d) {
        EXPECT_EQ(d.Rows("Probe", "rows"), 2);
        EXPECT_EQ(d.Cell("Probe", "rows", 1, 1), "changed");
        EXPECT_EQ(d.Cell("Probe", "rows", 2, 1), "third");
        EXPECT_EQ(d.NodeImage("Probe", "tree", "Root\\Branch\\Leaf"), "NoRun");
    });
    this->TheStory.Click("Probe", "leave");
    this->PlayModal();
}

} // namespace gfc::test
