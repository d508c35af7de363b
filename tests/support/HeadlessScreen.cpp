#include "support/HeadlessScreen.h"

#include "support/HeadlessDriver.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

HeadlessScreen::HeadlessScreen() : driver_(std::make_unique<HeadlessDriver>(*this)) {}

HeadlessScreen::~HeadlessScreen() {
    // A failure ends the program early; any other end must come where the story has it.
    if (!TheStory.Done() && !::testing::Test::HasFailure())
        ADD_FAILURE() << "the story was not played out; next: " << Describe(*TheStory.Peek());
}

ui::Form* HeadlessScreen::FormNamed(const std::string& name) const {
    const auto found = std::find_if(shown_.rbegin(), shown_.rend(),
                                    [&name](const ui::Form* form) { return form->Name() == name; });
    return found == shown_.rend() ? nullptr : *found;
}

void HeadlessScreen::Note(ui::Form& form) {
    FormsShown.push_back(form.Name());
    if (std::find(shown_.begin(), shown_.end(), &form) == shown_.end())
        shown_.push_back(&form);
}

void HeadlessScreen::Appear(ui::Form& form) {
    Note(form);
    form.Activated();
}

void HeadlessScreen::RunModal(ui::Form& form) {
    Note(form);
    form.Activated();
    while (form.IsShown() && !ended_) {
        if (TakeStep())
            continue;
        ADD_FAILURE() << "the story ends while " << form.Name() << " stands open";
        EndProgram(-1);
    }
    // Whoever shines through again is the active window now.
    if (!ended_ && !shown_.empty() && shown_.back()->IsShown())
        shown_.back()->Activated();
}

void HeadlessScreen::Disappear(ui::Form& form) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
}

void HeadlessScreen::Discard(ui::Form& form) {
    Disappear(form);
}

ui::Answer HeadlessScreen::Ask(const ui::Box& box) {
    BoxesShown.push_back(box);
    if (OnBox)
        OnBox(box);
    const auto [first, fallback] = ui::AnswersOf(box.TheButtons);
    if (ended_)
        return fallback;
    const auto* next = TheStory.Peek();
    if (next == nullptr || !std::holds_alternative<ExpectedBox>(*next)) {
        ADD_FAILURE() << "nobody expected the box '" << box.Title << "': " << box.Text
                      << "\nnext: " << (next == nullptr ? "the end" : Describe(*next));
        return fallback;
    }
    const auto expected = std::get<ExpectedBox>(TheStory.Take());
    EXPECT_EQ(box.Title, expected.Title);
    if (!expected.Text.empty()) {
        EXPECT_EQ(box.Text, expected.Text);
    }
    EXPECT_EQ(static_cast<int>(box.TheIcon), static_cast<int>(expected.TheIcon)) << "icon of " << box.Text;
    EXPECT_TRUE(expected.TheAnswer == first || expected.TheAnswer == fallback) << "buttons of " << box.Text;
    return expected.TheAnswer;
}

std::optional<std::string> HeadlessScreen::ChooseFile(const ui::FileChoice& choice) {
    FileChoices.push_back(choice);
    return ChosenPath(choice.Title);
}

std::optional<std::string> HeadlessScreen::ChooseTarget(const ui::TargetChoice& choice) {
    TargetChoices.push_back(choice);
    return ChosenPath(choice.Title);
}

std::optional<std::string> HeadlessScreen::ChosenPath(const std::string& title) {
    const auto* next = TheStory.Peek();
    if (next == nullptr || !std::holds_alternative<ExpectedFileChoice>(*next)) {
        ADD_FAILURE() << "nobody expected the file choice '" << title << "'";
        return std::nullopt;
    }
    return std::get<ExpectedFileChoice>(TheStory.Take()).Path;
}

std::string HeadlessScreen::AskText(const std::string& title, const std::string& prompt) {
    Prompts.push_back(prompt);
    const auto* next = TheStory.Peek();
    if (next == nullptr || !std::holds_alternative<ExpectedPrompt>(*next)) {
        ADD_FAILURE() << "nobody expected the prompt '" << title << "'";
        return {};
    }
    const auto expected = std::get<ExpectedPrompt>(TheStory.Take());
    EXPECT_EQ(title, expected.Title);
    return expected.Answer;
}

bool HeadlessScreen::ViewText(const std::string& path, ui::WindowState state) {
    TextsViewed.emplace_back(path, state);
    return ViewerWorks;
}

void HeadlessScreen::WaitAMoment() {
    if (OnWait)
        return OnWait();
    if (TakeStep())
        return;
    ADD_FAILURE() << "the program waits for something that the test does not provide";
    EndProgram(-1);
}

void HeadlessScreen::Busy(const std::function<void()>& work) {
    ++BusyNow;
    work();
    --BusyNow;
}

void HeadlessScreen::EndProgram(int exitCode) {
    ExitCode = exitCode;
    ended_ = true;
}

bool HeadlessScreen::TakeStep() {
    if (TheStory.Done())
        return false;
    const auto position = TheStory.Position();
    const auto step = TheStory.Take();
    const auto* act = std::get_if<Story::Act>(&step);
    SCOPED_TRACE("step " + std::to_string(position) + ": " + Describe(step));
    if (act == nullptr)
        ADD_FAILURE() << "the story expects what the program did not ask";
    else
        act->Do(*driver_);
    // What follows the first failure tells nothing.
    if (::testing::Test::HasFailure())
        EndProgram(-1);
    return true;
}

void HeadlessScreen::RunToEnd() {
    while (!ended_ && !shown_.empty() && TakeStep())
        continue;
}

void HeadlessScreen::PlayOut() {
    while (!ended_ && TakeStep())
        continue;
}

} // namespace gfc::test
