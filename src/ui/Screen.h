#pragma once

#include <functional>
#include <optional>
#include <string>

namespace gfc::ui {

class Form;
class MenuEntry;

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { Ok, YesNo, RetryClose };
enum class Answer { Ok, Yes, No, Retry, Close };

struct Answers {
    Answer First; // what the box offers first
    Answer Last;  // what closing it without an answer counts as
};

[[nodiscard]] constexpr Answers AnswersOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Buttons::RetryClose:
        return {Answer::Retry, Answer::Close};
    case Buttons::Ok:
        break;
    }
    return {Answer::Ok, Answer::Ok};
}

// A modal box. Lines of the text are separated by line breaks or carriage returns.
struct Box {
    std::string Title;
    std::string Text;
    Icon TheIcon = Icon::None;
    Buttons TheButtons = Buttons::Ok;
    // Whose work a Yes would throw away, as the station's: a line of its own below the text, and the answer
    // that Enter gives is No. Empty where nothing is lost.
    std::string AtStake = {};
    // The box has a help button that opens HelpFile at this number; 0 for none.
    int HelpContext = 0;
    std::string HelpFile = {};
};

struct FileChoice {
    std::string Title;
    std::string FilterName; // "Project File (*.KPJ)"
    std::string Pattern;    // "*.KPJ"
};

enum class WindowState { Normal, Maximised };

// All that a form asks of the world it is shown in. A window system and a test are two equal hosts.
class Screen {
public:
    virtual ~Screen() = default;

    // The calls of a form about itself; use Form::Show, ShowModal, Hide and Unload.
    virtual void Appear(Form& form) = 0;
    // Shows the form and returns once Form::IsShown has become false, or the program has ended.
    virtual void RunModal(Form& form) = 0;
    virtual void Disappear(Form& form) = 0;
    virtual void Discard(Form& form) = 0;

    // Blocks until answered. Closing a box without an answer counts as its last button.
    virtual Answer Ask(const Box& box) = 0;
    // Nothing on cancel.
    virtual std::optional<std::string> ChooseFile(const FileChoice& choice) = 0;
    // The empty text on cancel.
    virtual std::string AskText(const std::string& title, const std::string& prompt) = 0;
    virtual void PopUp(MenuEntry& menu) = 0;
    // Context help by number; 0 opens the contents page.
    virtual void OpenHelp(const std::string& file, int context) = 0;
    // Opens a text file for reading in the machine's viewer, not waited for; false if none could be started.
    virtual bool ViewText(const std::string& path, WindowState state) = 0;
    // Lets pending paint events run.
    virtual void DoEvents() = 0;
    // Waits some milliseconds with the windows painting, a busy pointer and the processor idle. Of what a
    // person does only the closing of a window is taken; all else is dropped.
    virtual void WaitAMoment() = 0;
    // Does the work behind a busy pointer: for what other programs may take seconds over.
    virtual void Busy(const std::function<void()>& work) = 0;
    // Ends the program: every modal loop returns, no window opens any more.
    virtual void EndProgram(int exitCode) = 0;
    [[nodiscard]] virtual bool Ended() const = 0;
};

} // namespace gfc::ui
