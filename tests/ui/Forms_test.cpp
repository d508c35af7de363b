#include "support/HeadlessScreen.h"
#include "ui/Buttons.h"
#include "ui/Form.h"

#include <gtest/gtest.h>

#include <vector>

using namespace gfc;

namespace {

class Counting : public ui::Form {
public:
    explicit Counting(ui::Screen& screen) : ui::Form(screen, "Counting") {}

    ui::CommandButton Close{*this, "Close"};
    int Loads = 0;
    int Activations = 0;
    std::vector<ui::Key> Keys;
    int Unloads = 0;
    bool LeavesAtLoad = false;

protected:
    void Load() override {
        ++Loads;
        if (LeavesAtLoad)
            Unload();
    }
    void Unloading() override { ++Unloads; }
    void Activate() override { ++Activations; }
    bool KeyDown(ui::Key key) override {
        Keys.push_back(key);
        return true;
    }
};

class Forms : public ::testing::Test {
protected:
    test::HeadlessScreen screen_;
    std::shared_ptr<Counting> form_ = std::make_shared<Counting>(screen_);
};

} // namespace

TEST_F(Forms, first_touch_loads_once_and_hiding_keeps_the_state) {
    form_->EnsureLoaded();
    form_->Show();
    form_->Hide();
    form_->Show();
    EXPECT_EQ(form_->Loads, 1);
    EXPECT_TRUE(form_->IsShown());
    form_->Unload();
    form_->Unload();
    EXPECT_EQ(form_->Unloads, 1);
    EXPECT_FALSE(form_->IsShown());
}

TEST_F(Forms, unloading_what_was_never_loaded_runs_no_event) {
    form_->Unload();
    EXPECT_EQ(form_->Loads, 0);
    EXPECT_EQ(form_->Unloads, 0);
}

TEST_F(Forms, form_that_unloads_itself_inside_its_event_lives_until_it_has_returned) {
    std::weak_ptr<Counting> watch = form_;
    bool aliveAfterUnload = false;
    form_->Close.OnClick = [form = form_.get(), &watch, &aliveAfterUnload] {
        form->Unload();
        aliveAfterUnload = !watch.expired() && form->IsUnloaded();
    };
    form_->SetOnGone([this] { form_.reset(); });
    form_->Show();
    form_->Close.PersonClicks();
    EXPECT_TRUE(aliveAfterUnload);
    EXPECT_TRUE(watch.expired());
}

TEST_F(Forms, modal_form_blocks_until_it_has_gone) {
    form_->Close.OnClick = [this] { form_->Unload(); };
    screen_.TheStory.SeeShown("Counting").Click("Counting", "Close");
    form_->ShowModal();
    EXPECT_TRUE(screen_.TheStory.Done());
    EXPECT_TRUE(form_->IsUnloaded());
}

TEST_F(Forms, modal_form_hidden_and_shown_again_within_one_event_stays_modal) {
    int clicks = 0;
    form_->Close.OnClick = [this, &clicks] {
        form_->Hide();
        if (++clicks < 2)
            form_->Show();
    };
    screen_.TheStory.Click("Counting", "Close").SeeShown("Counting").Click("Counting", "Close");
    form_->ShowModal();
    EXPECT_EQ(clicks, 2);
    EXPECT_FALSE(form_->IsUnloaded());
}

TEST_F(Forms, form_that_leaves_at_load_is_never_shown) {
    form_->LeavesAtLoad = true;
    form_->ShowModal();
    EXPECT_TRUE(screen_.FormsShown.empty());
}

TEST_F(Forms, form_that_goes_at_its_load_is_not_touched_any_more) {
    const std::weak_ptr<Counting> watch = form_;
    form_->LeavesAtLoad = true;
    form_->SetOnGone([this] { form_.reset(); });
    Counting& form = *form_;
    form.Show();
    EXPECT_TRUE(watch.expired());
}

TEST_F(Forms, form_without_a_close_command_is_not_closed_by_its_window) {
    form_->Show();
    form_->RemoveCloseCommand();
    EXPECT_FALSE(form_->PersonCloses());
    EXPECT_TRUE(form_->IsShown());
}

TEST_F(Forms, form_with_a_close_command_is_unloaded_by_it) {
    form_->Show();
    EXPECT_TRUE(form_->PersonCloses());
    EXPECT_EQ(form_->Unloads, 1);
}

TEST_F(Forms, abandoned_form_loses_its_window_without_an_event) {
    form_->Show();
    form_->Abandon();
    form_->Unload();
    EXPECT_EQ(form_->Unloads, 0);
    EXPECT_EQ(screen_.FormNamed("Counting"), nullptr);
}

TEST_F(Forms, form_that_has_gone_does_not_come_back) {
    form_->Show();
    form_->Unload();
    form_->Activations = 0;
    form_->Abandon();
    form_->EnsureLoaded();
    form_->Show();
    form_->ShowModal();
    form_->Activated();
    EXPECT_EQ(form_->Loads, 1);
    EXPECT_EQ(form_->Unloads, 1);
    EXPECT_EQ(form_->Activations, 0);
    EXPECT_FALSE(form_->IsShown());
}

TEST_F(Forms, form_that_went_before_its_load_is_never_loaded) {
    form_->Unload();
    form_->EnsureLoaded();
    form_->Show();
    EXPECT_EQ(form_->Loads, 0);
    EXPECT_TRUE(screen_.FormsShown.empty());
}

TEST_F(Forms, form_is_activated_only_while_it_is_loaded) {
    form_->Activated();
    EXPECT_EQ(form_->Activations, 0);
    form_->Show();
    EXPECT_EQ(form_->Activations, 1) << "by its screen";
    form_->Activated();
    EXPECT_EQ(form_->Activations, 2);
}

TEST_F(Forms, disabled_form_takes_no_key_and_is_not_closed) {
    form_->Show();
    form_->SetEnabled(false);
    EXPECT_FALSE(form_->PersonPresses(ui::Key::F1));
    EXPECT_FALSE(form_->PersonCloses());
    EXPECT_TRUE(form_->Keys.empty());
    form_->SetEnabled(true);
    EXPECT_TRUE(form_->PersonPresses(ui::Key::F1));
    EXPECT_EQ(form_->Keys, std::vector<ui::Key>{ui::Key::F1});
    EXPECT_TRUE(form_->PersonCloses());
}

TEST_F(Forms, form_whose_window_is_shown_again_keeps_its_focus) {
    ui::CommandButton other(*form_, "Other");
    form_->Show();
    EXPECT_EQ(form_->FocusedControl(), &form_->Close);
    other.SetFocus();
    form_->Hide();
    form_->Show();
    EXPECT_EQ(form_->FocusedControl(), &other);
}
