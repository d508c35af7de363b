#pragma once

#include "drafts/DraftStore.h"

#include <string>

namespace gfc::forms {

struct Program;

// Keeps the draft of a pass that is under way: written before each dialog, and after each act in a dialog of
// bindings. What cannot be kept holds nobody up; it is told once.
class PassDraft {
public:
    // Of a pass that begins, on the station in hand.
    explicit PassDraft(Program& program);
    // Of one that goes on where the draft stands.
    PassDraft(Program& program, drafts::Draft draft);

    [[nodiscard]] bool GoesOn() const { return goesOn_; }
    [[nodiscard]] bool IsBehind(const drafts::PassStep& step) const { return draft_.IsDone(step); }
    // What stood in the dialog when it was left; null if it was not.
    [[nodiscard]] const drafts::OpenDialog* LeftIn(const drafts::PassStep& step) const;

    // A dialog is about to be shown; standsAt says which, in words.
    void Reach(const std::string& standsAt);
    // What stands in the dialog now.
    void Note(const drafts::PassStep& step, drafts::OpenDialog dialog);
    // A dialog was finished, and its results stand in the session's station.
    void Pass(const drafts::PassStep& step);
    // The station's file was written: there is nothing left to be kept.
    void LetGo();

    // Why the draft is not kept, in words, once; empty if it is.
    [[nodiscard]] std::string TakeTrouble();
    [[nodiscard]] bool IsKept() const { return kept_; }

private:
    void Keep();
    void Told(bool done);

    Program& program_;
    drafts::DraftStore store_;
    drafts::Draft draft_;
    bool goesOn_ = false;
    bool kept_ = false;
    bool told_ = false;
    std::string trouble_;
};

// What tells the file of a station from another one; empty where it has none.
[[nodiscard]] std::string FileMarkOf(Program& program, const std::string& station);

} // namespace gfc::forms
