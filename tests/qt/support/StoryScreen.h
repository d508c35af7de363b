#pragma once

#include "qt/QtScreen.h"
#include "qt/support/WindowDriver.h"
#include "support/Story.h"

#include <QElapsedTimer>
#include <QObject>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QDialog;
class QEventLoop;

namespace gfc::test {

// Plays a story before the real windows: the next step is taken whenever the innermost event loop has nothing
// else to do. A box, a file choice or a prompt is answered by its real buttons; one that nobody expected is a
// failure, and so is a story that does not go on.
class StoryScreen : public qt::QtScreen {
public:
    // With mouse and keys, unless told otherwise.
    explicit StoryScreen(std::unique_ptr<WindowDriver> hands = std::make_unique<WindowDriver>());
    ~StoryScreen() override;

    Story TheStory;
    [[nodiscard]] Driver& Hands() { return *driver_; }
    // Takes steps until no window is shown, the story is over or the program has ended.
    void RunToEnd();
    // Takes all remaining steps, for a test in which the story follows an act.
    void PlayOut();

    std::vector<std::pair<std::string, int>> HelpOpened;
    std::vector<std::pair<std::string, ui::WindowState>> TextsViewed;
    std::vector<std::string> FormsShown; // names in the order of showing
    int ExitCode = 0;
    // Called at each moment that the program waits, for what changes outside it meanwhile; without it the
    // story goes on there.
    std::function<void()> OnWait;
    // Called with the windows as they stand before each step.
    std::function<void()> BeforeStep;

    void Appear(ui::Form& form) override;
    void RunModal(ui::Form& form) override;
    void OpenHelp(const std::string& file, int context) override;
    bool ViewText(const std::string& path, ui::WindowState state) override;
    void WaitAMoment() override;
    void EndProgram(int exitCode) override;

private:
    class Step;
    void Play(bool whileShown);
    void IdleSoon();
    // Something may be done now, by whichever loop runs.
    void Idle();
    [[nodiscard]] bool InsideAStep() const;
    void TakeStep();
    void TakeAct(const Story::Act& act);
    void Meet(QDialog& dialog);
    [[nodiscard]] bool Waited();
    void CheckProgress();

    std::unique_ptr<WindowDriver> driver_;
    QObject playing_; // lives as long as what is to be done at an idle moment may be
    QElapsedTimer sinceProgress_;
    QEventLoop* base_ = nullptr;
    std::vector<int> steps_; // the loop levels at which steps are being taken
    int idleTicks_ = 0;
    bool whileShown_ = false;
};

} // namespace gfc::test
