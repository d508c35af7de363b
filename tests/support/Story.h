#pragma once

#include "support/Driver.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace gfc::test {

// A box that the story expects, and its answer. A text left empty matches any text.
struct ExpectedBox {
    std::string Title;
    std::string Text;
    ui::Icon TheIcon = ui::Icon::None;
    ui::Answer TheAnswer = ui::Answer::Ok;
};

struct ExpectedFileChoice {
    std::optional<std::string> Path;
};

struct ExpectedPrompt {
    std::string Title;
    std::string Answer;
};

// What a person does and sees, top-down. A step that opens a modal window is simply followed by the steps
// inside it: whichever modal loop runs takes the next step. The same story runs on any driver.
class Story {
public:
    struct Act {
        std::string What;
        std::function<void(Driver&)> Do;
    };
    using Step = std::variant<Act, ExpectedBox, ExpectedFileChoice, ExpectedPrompt>;

    Story& Do(std::string what, std::function<void(Driver&)> act);
    // Looks and compares; nothing is done.
    Story& Check(std::function<void(Driver&)> check) { return Do("check", std::move(check)); }
    Story& Box(const std::string& title, const std::string& text, ui::Icon icon,
               ui::Answer answer = ui::Answer::Ok);
    Story& ChooseFile(std::optional<std::string> path);
    Story& Prompt(const std::string& title, const std::string& answer);

    Story& Click(const std::string& form, const std::string& control);
    Story& Type(const std::string& form, const std::string& control, const std::string& text);
    Story& Keys(const std::string& form, const std::string& control, const std::string& keys);
    Story& Focus(const std::string& form, const std::string& control);
    Story& Select(const std::string& form, const std::string& list, int index);
    Story& SelectTab(const std::string& form, const std::string& pane, int tab);
    Story& ClickRow(const std::string& form, const std::string& list, int row);
    Story& OpenRow(const std::string& form, const std::string& list, int row);
    Story& MarkRow(const std::string& form, const std::string& list, int row);
    Story& ClickNode(const std::string& form, const std::string& tree, const std::string& path);
    Story& RightClickNode(const std::string& form, const std::string& tree, const std::string& path);
    Story& Menu(const std::string& form, const std::string& entry);
    Story& PressKey(const std::string& form, const std::string& key);
    Story& CloseWindow(const std::string& form);
    Story& Tick(const std::string& form, const std::string& timer);

    Story& SeeText(const std::string& form, const std::string& control, const std::string& text);
    Story& SeeCaption(const std::string& form, const std::string& caption);
    Story& SeeShown(const std::string& form, bool shown = true);
    Story& SeeEnabled(const std::string& form, const std::string& control, bool enabled = true);
    Story& SeeVisible(const std::string& form, const std::string& control, bool visible = true);
    Story& SeeChecked(const std::string& form, const std::string& control, bool checked = true);

    [[nodiscard]] bool Done() const { return next_ >= steps_.size(); }
    // The next step, which is then behind the story. Only if not Done.
    Step Take() { return steps_[next_++]; }
    // Null if there is none.
    [[nodiscard]] const Step* Peek() const { return Done() ? nullptr : &steps_[next_]; }
    [[nodiscard]] std::size_t Position() const { return next_; }

private:
    std::vector<Step> steps_;
    std::size_t next_ = 0;
};

// "step 12: click WizardFC.siguiente", for messages of failures.
[[nodiscard]] std::string Describe(const Story::Step& step);

} // namespace gfc::test
