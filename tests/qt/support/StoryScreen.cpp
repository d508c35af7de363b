#include "qt/support/StoryScreen.h"

#include "qt/Texts.h"
#include "qt/support/DialogAnswers.h"
#include "ui/Form.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

constexpr int stuckAfter = 20'000; // milliseconds without a step
constexpr int patience = 20;       // idle moments before a question that was expected counts as not asked

std::string Shown(const QDialog& dialog) {
    const auto* box = qobject_cast<const QMessageBox*>(&dialog);
    return qt::FromQt(dialog.windowTitle()) + "': " + (box == nullptr ? "" : qt::FromQt(box->text()));
}

// True if the dialog is of that kind and the step is its answer.
template <class D, class E>
bool Answers(WindowDriver& hands, QDialog& dialog, const Story::Step& step) {
    auto* itself = qobject_cast<D*>(&dialog);
    const auto* expected = std::get_if<E>(&step);
    if (itself != nullptr && expected != nullptr)
        Answer(hands, *itself, *expected);
    return itself != nullptr && expected != nullptr;
}

} // namespace

// While one lives, a step is being taken at the present loop level.
class StoryScreen::Step {
public:
    explicit Step(std::vector<int>& steps) : steps_(steps) {
        steps_.push_back(QThread::currentThread()->loopLevel());
    }
    ~Step() { steps_.pop_back(); }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

private:
    std::vector<int>& steps_;
};

StoryScreen::StoryScreen(std::unique_ptr<WindowDriver> hands) : driver_(std::move(hands)) {}

StoryScreen::~StoryScreen() {
    // A failure ends the program early; any other end must come where the story has it.
    if (!TheStory.Done() && !::testing::Test::HasFailure())
        ADD_FAILURE() << "the story was not played out; next: " << Describe(*TheStory.Peek());
}

void StoryScreen::RunToEnd() {
    Play(true);
}

void StoryScreen::PlayOut() {
    Play(false);
}

void StoryScreen::Play(bool whileShown) {
    whileShown_ = whileShown;
    QEventLoop loop;
    base_ = &loop;
    sinceProgress_.start();
    IdleSoon();
    loop.exec();
    base_ = nullptr;
}

// Each moment has a timer of its own: one timer does not come again while what it has started goes on.
void StoryScreen::IdleSoon() {
    QTimer::singleShot(1, &playing_, [this] {
        if (base_ == nullptr)
            return;
        IdleSoon();
        Idle();
    });
}

// A step that is being taken goes on before the next one, unless it has opened a loop of its own.
bool StoryScreen::InsideAStep() const {
    return !steps_.empty() && QThread::currentThread()->loopLevel() <= steps_.back();
}

void StoryScreen::Idle() {
    CheckProgress();
    if (InsideAStep())
        return;
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        return driver_->Ready() ? Meet(*dialog) : void();
    const bool atBase = steps_.empty();
    if (atBase && (Ended() || TheStory.Done() || (whileShown_ && !AnyShown())))
        return base_->quit();
    if (Ended())
        return;
    if (!TheStory.Done())
        return driver_->Ready() ? TakeStep() : void();
    ADD_FAILURE() << "the story ends while "
                  << (FormsShown.empty() ? std::string("a window") : FormsShown.back()) << " stands open";
    EndProgram(-1);
}

void StoryScreen::CheckProgress() {
    if (!sinceProgress_.hasExpired(stuckAfter))
        return;
    sinceProgress_.start();
    ADD_FAILURE() << "the story does not go on; step " << TheStory.Position()
                  << " next: " << (TheStory.Done() ? std::string("the end") : Describe(*TheStory.Peek()));
    EndProgram(-1);
    if (base_ != nullptr)
        base_->quit();
}

bool StoryScreen::Waited() {
    return ++idleTicks_ > patience;
}

void StoryScreen::TakeStep() {
    if (const auto* act = std::get_if<Story::Act>(TheStory.Peek()))
        return TakeAct(*act);
    if (!Waited())
        return;
    const auto position = TheStory.Position();
    ADD_FAILURE() << "the story expects what the program did not ask; step " << position << ": "
                  << Describe(TheStory.Take());
}

void StoryScreen::TakeAct(const Story::Act&) {
    const auto position = TheStory.Position();
    const auto step = TheStory.Take();
    SCOPED_TRACE("step " + std::to_string(position) + ": " + Describe(step));
    idleTicks_ = 0;
    sinceProgress_.start();
    if (BeforeStep)
        BeforeStep();
    {
        const Step going(steps_);
        std::get<Story::Act>(step).Do(*driver_);
    }
    // What follows the first failure tells nothing.
    if (::testing::Test::HasFailure())
        EndProgram(-1);
}

void StoryScreen::Meet(QDialog& dialog) {
    const auto* next = TheStory.Peek();
    const auto step = next == nullptr ? std::optional<Story::Step>() : std::optional<Story::Step>(*next);
    SCOPED_TRACE("step " + std::to_string(TheStory.Position()));
    idleTicks_ = 0;
    sinceProgress_.start();
    if (BeforeStep)
        BeforeStep();
    if (step && !std::holds_alternative<Story::Act>(*step))
        (void)TheStory.Take();
    const Step going(steps_);
    if (step && (Answers<QMessageBox, ExpectedBox>(*driver_, dialog, *step) ||
                 Answers<QFileDialog, ExpectedFileChoice>(*driver_, dialog, *step) ||
                 Answers<QInputDialog, ExpectedPrompt>(*driver_, dialog, *step)))
        return;
    ADD_FAILURE() << "nobody expected '" << Shown(dialog)
                  << "\nnext: " << (step ? Describe(*step) : "the end");
    dialog.reject();
}

void StoryScreen::Appear(ui::Form& form) {
    FormsShown.push_back(form.Name());
    QtScreen::Appear(form);
}

void StoryScreen::RunModal(ui::Form& form) {
    FormsShown.push_back(form.Name());
    QtScreen::RunModal(form);
}

void StoryScreen::OpenHelp(const std::string& file, int context) {
    HelpOpened.emplace_back(file, context);
}

bool StoryScreen::ViewText(const std::string& path, ui::WindowState state) {
    TextsViewed.emplace_back(path, state);
    return true;
}

void StoryScreen::WaitAMoment() {
    if (OnWait)
        return OnWait();
    QtScreen::WaitAMoment();
    if (!Ended() && !TheStory.Done())
        return TakeStep();
    ADD_FAILURE() << "the program waits for something that the test does not provide";
    EndProgram(-1);
}

void StoryScreen::EndProgram(int exitCode) {
    ExitCode = exitCode;
    QtScreen::EndProgram(exitCode);
}

} // namespace gfc::test
