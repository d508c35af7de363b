#pragma once

#include "binding/BindingStage.h"
#include "config/VarINIFile.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

// A pass of the wizard that was not brought to its end: what was entered so far, in the order in which it was
// entered. It is kept outside the project, since a station's file stands for what a person has finished.
namespace gfc::drafts {

enum class Dialog { CommonInputs, Mechanical, RunInputs, RunOutputs, GasInputs, GasData, GasOutputs };
inline constexpr std::size_t Dialogs = 7;

// As a draft writes it.
[[nodiscard]] std::string_view NameOf(Dialog dialog);
// The dialog that binds the tags of a stage; the stage must be one.
[[nodiscard]] Dialog DialogOf(binding::BindingStage stage);
// None for a dialog that binds nothing.
[[nodiscard]] binding::BindingStage StageOf(Dialog dialog);

// One dialog of a pass.
struct PassStep {
    int Run = 0; // 1 to 5; 0 for what is common to all
    Dialog What = Dialog::CommonInputs;

    bool operator==(const PassStep&) const = default;
    bool operator<(const PassStep& other) const {
        return Run != other.Run ? Run < other.Run : What < other.What;
    }
};

// What stood in a dialog of bindings when the pass was left within it.
struct OpenDialog {
    std::vector<config::TagBinding> Bound; // by position; an empty one is not bound
    std::vector<std::string> Fields;       // as the dialog hands them out; empty for none
    bool operator==(const OpenDialog&) const = default;
};

struct Draft {
    std::string Id;       // no other draft of the project has it
    std::string Begun;    // UTC, "2023-03-15T12:00:00Z"
    std::string Kept;     // the same, when it was written last
    std::string StandsAt; // where the pass stands, in words
    std::string FileMark; // of the station's file when the pass began (MarkOf); empty for none
    // CurrentStation, UserId, the common choices, and the runs' records as the whole-station arrangement.
    config::StationConfig Station;
    std::vector<PassStep> Done; // the dialogs that were finished, in their order
    std::map<PassStep, OpenDialog> Open;

    [[nodiscard]] bool IsDone(const PassStep& step) const;
};

// A number that tells these bytes from others, as text.
[[nodiscard]] std::string MarkOf(std::string_view bytes);

} // namespace gfc::drafts
