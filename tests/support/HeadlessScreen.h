#pragma once

#include "support/Story.h"
#include "ui/Exchange.h"
#include "ui/Form.h"
#include "ui/Screen.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace gfc::test {

// The program's other window: forms are shown to the story instead of to a person. A question that the story
// does not expect, a modal form that nobody leaves, and steps left over are failures.
class HeadlessScreen : public ui::Screen, public ui::Exchange {
public:
    HeadlessScreen();
    ~HeadlessScreen() override;

    Story TheStory;
    [[nodiscard]] Driver& Hands() { return *driver_; }
    // Takes steps until no window is shown, the story is over or the program has ended: the program's main
    // loop.
    void RunToEnd();
    // Takes all remaining steps, for a test in which the story follows an act.
    void PlayOut();

    // What happened besides windows and boxes, in order.
    std::vector<std::pair<std::string, int>> HelpOpened;
    std::vector<std::pair<std::string, ui::WindowState>> TextsViewed;
    std::vector<ui::Box> BoxesShown;
    std::vector<ui::FileChoice> FileChoices;
    std::vector<ui::TargetChoice> TargetChoices;
    std::string Copied;                  // what was copied last
    std::vector<std::string> Prompts;    // the texts above the fields
    std::vector<std::string> FormsShown; // names in the order of showing
    ui::MenuEntry* LastPopUp = nullptr;
    int ExitCode = 0;
    bool ViewerWorks = true;
    int BusyNow = 0; // so many works are under way, one within the other
    // Called with each box before it is answered, for what changes outside meanwhile.
    std::function<void(const ui::Box&)> OnBox;
    // Called at each moment that the program waits, for what changes outside it meanwhile; without it the
    // story goes on there.
    std::function<void()> OnWait;

    // The loaded form of that name; null if there is none.
    [[nodiscard]] ui::Form* FormNamed(const std::string& name) const;

    void Appear(ui::Form& form) override;
    void RunModal(ui::Form& form) override;
    void Disappear(ui::Form& form) override;
    void Discard(ui::Form& form) override;
    ui::Answer Ask(const ui::Box& box) override;
    std::optional<std::string> ChooseFile(const ui::FileChoice& choice) override;
    // Answered by the story as a choice of a file is.
    std::optional<std::string> ChooseTarget(const ui::TargetChoice& choice) override;
    void CopyText(const std::string& text) override { Copied = text; }
    std::string AskText(const std::string& title, const std::string& prompt) override;
    void PopUp(ui::MenuEntry& menu) override { LastPopUp = &menu; }
    void OpenHelp(const std::string& file, int context) override { HelpOpened.emplace_back(file, context); }
    bool ViewText(const std::string& path, ui::WindowState state) override;
    void DoEvents() override {}
    void WaitAMoment() override;
    void Busy(const std::function<void()>& work) override;
    void EndProgram(int exitCode) override;
    [[nodiscard]] bool Ended() const override { return ended_; }

private:
    // False if there was no step to take.
    bool TakeStep();
    std::optional<std::string> ChosenPath(const std::string& title);
    void Note(ui::Form& form);

    std::unique_ptr<Driver> driver_;
    std::vector<ui::Form*> shown_;
    bool ended_ = false;
};

} // namespace gfc::test
