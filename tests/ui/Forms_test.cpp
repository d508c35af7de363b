#include "support/HeadlessScreen.h"
#include "ui/Buttons.h"
#include "ui/Form.h"

#include <gtest/gtest.h>

using namespace gfc;

namespace {

class Counting : public ui::Form {
public:
    explicit Counting(ui::Screen& screen) : ui::Form(screen, "Counting") {}

    ui::CommandButton Close{*this, "Close"};
    int Loads = 0;
    int Unloads = 0;
    bool LeavesAtLoad = false;

protected:
    void Load() override {
        ++Loads;
        if (LeavesAtLoad)
            Unload();
    }
    void Unloading() override { ++Unloads; }
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
