#include "binding/Catalogue.h"
#include "config/RunLayout.h"
#include "drafts/DraftFields.h"
#include "drafts/DraftRoom.h"
#include "drafts/GoOn.h"
#include "fuzz/Input.h"
#include "fuzz/Target.h"

#include <algorithm>
#include <array>

// Any bytes as the file of drafts: all of them stand in one of its blocks, what is read is written and comes
// back, and a pass that goes on binds nothing that the station lacks.
namespace gfc::fuzz {

namespace {

using drafts::Draft;
using drafts::KeptDraft;

// One tag of each class, and one of a name that two bear.
const project::TagList& Tags() {
    static const project::TagList tags = {{"F", 1, "FX", "M", "Virtual Module"},
                                          {"F", 2, "FX", "M", "Virtual Module"},
                                          {"A", 2, "AX", "M", "Card"},
                                          {"L", 3, "LX", "M", "Virtual Module"},
                                          {"D", 4, "X", "M", "Card"}};
    return tags;
}

// What stands behind a name, where it is to mean anything.
constexpr std::array<std::string_view, 24> Words = {
    "Yes", "No", "AGA3", "AGA7", "AGA8", "SGERG88", "MEASURED", "FIXED", "F", "A", "L",   "D",
    "1",   "2",  "3",    "4",    "FX",   "AX",      "LX",       "X",     "",  "9", "100", "Gone"};
constexpr std::array<std::string_view, 8> Steps = {"0 CommonInputs", "1 Mechanical", "1 RunInputs",
                                                   "1 RunOutputs",   "1 GasInputs",  "1 GasOutputs",
                                                   "2 RunInputs",    "5 GasData"};

// Every name that a draft may have at all, as one with every text writes them.
std::vector<std::string> MakeNames() {
    Draft draft;
    const drafts::Visit fill = [](const std::string&, std::string& text) { text = "x"; };
    drafts::EachOwnText(draft, fill);
    drafts::EachCommonText(draft.Station, fill);
    draft.Station.Runs.PrepareWholeStation(2);
    drafts::EachRunText(draft.Station.Runs, fill);
    draft.Done = {{1, drafts::Dialog::RunInputs}};
    for (const auto what : {drafts::Dialog::RunInputs, drafts::Dialog::GasOutputs})
        draft.Open[{1, what}] = {{{"F", "FX", "1"}, {"A", "AX", "2"}}, {"x", "x"}};
    std::vector<std::string> names;
    const std::string bytes = BytesOf(draft);
    for (std::size_t at = 0; at < bytes.size(); at = bytes.find('\n', at) + 1)
        names.push_back(bytes.substr(at, bytes.find('\t', at) - at));
    return names;
}

std::string AnyValue(Input& input) {
    const std::size_t which = input.Below(Words.size() + Steps.size() + 1);
    if (which < Words.size())
        return std::string(Words.at(which));
    if (which < Words.size() + Steps.size())
        return std::string(Steps.at(which - Words.size()));
    return std::string(input.Text(15));
}

std::string Sealed(const std::string& lines) {
    const std::string body = "draft\t1\n" + lines;
    return body + "end\t" + drafts::MarkOf(body) + "\n";
}

// A block whose mark is right, with any values under names that mean something.
std::string NamedLines(Input& input) {
    static const auto names = MakeNames();
    std::string lines;
    while (!input.IsEmpty()) {
        const std::size_t name = (input.Byte() * 256U + input.Byte()) % names.size();
        lines += names[name] + "\t" + AnyValue(input) + "\n";
    }
    return lines;
}

std::string FileOf(Input& input) {
    switch (input.Below(3)) {
    case 0:
        return std::string(input.Rest());
    case 1: {
        const std::string before(input.Text(63));
        return before + Sealed(std::string(input.Rest()));
    }
    default:
        return Sealed(NamedLines(input));
    }
}

std::string Joined(const std::vector<KeptDraft>& drafts) {
    std::string bytes;
    for (const KeptDraft& kept : drafts)
        bytes += kept.Bytes;
    return bytes;
}

void CheckWritten(const Draft& draft) {
    const std::string bytes = BytesOf(draft);
    const auto again = drafts::DraftsIn(bytes);
    Require(again.size() == 1 && again.front().TheDraft, "what was written is one whole draft");
    const Draft& read = *again.front().TheDraft;
    Require(BytesOf(read) == bytes, "what was read is written the same");
    Require(read.Done == draft.Done && read.Open == draft.Open, "the dialogs come back");
    const auto& runs = read.Station.Runs;
    Require(runs.IO == draft.Station.Runs.IO && runs.Gas == draft.Station.Runs.Gas &&
                runs.Mechanical == draft.Station.Runs.Mechanical,
            "the runs come back");
    Require(read.Station.ActiveRunCount == static_cast<int>(runs.IO.size()), "each run that is on is there");
}

bool IsInStation(binding::TagClass tagClass, const config::TagBinding& bound) {
    return std::ranges::any_of(Tags(), [&](const project::Tag& tag) {
        return tag.TagName == bound.Tag && tag.RegType == bound.Type &&
               std::to_string(tag.RegAddr) == bound.RegAddr && binding::ClassOf(bound.Type) == tagClass;
    });
}

std::vector<binding::Variable> VariablesOf(Draft& draft, const drafts::PassStep& step) {
    const int element = step.Run == 0 ? 0 : config::ElementOfRun(draft.Station, step.Run - 1);
    return binding::VariablesOf(drafts::StageOf(step.What), draft.Station, element);
}

// What is bound after those that the station lacks were let go.
void CheckBound(Draft& draft) {
    for (const auto& step : draft.Done)
        for (const auto& variable : VariablesOf(draft, step))
            Require(!variable.Binding->IsMade() || IsInStation(variable.Class(), *variable.Binding),
                    "what a finished dialog binds is in the station");
    for (const auto& [step, dialog] : draft.Open) {
        const auto variables = VariablesOf(draft, step);
        Require(dialog.Bound.size() <= variables.size(), "a dialog has no more than its variables");
        for (std::size_t i = 0; i < dialog.Bound.size(); ++i)
            Require(!dialog.Bound[i].IsMade() || IsInStation(variables[i].Class(), dialog.Bound[i]),
                    "what an open dialog binds is in the station");
    }
}

bool IsPartOf(const project::TagList& part, const project::TagList& whole) {
    const auto isSame = [](const project::Tag& left, const project::Tag& right) {
        return left.TagName == right.TagName && left.RegAddr == right.RegAddr &&
               left.RegType == right.RegType;
    };
    return std::ranges::all_of(part, [&](const project::Tag& tag) {
        return std::ranges::any_of(whole, [&](const project::Tag& other) { return isSame(tag, other); });
    });
}

void CheckOffer(Draft& draft, project::TagInventory& inventory) {
    const project::TagInventory before = inventory;
    TakeOffOffer(draft, inventory);
    Require(IsPartOf(inventory.AvailFloat, before.AvailFloat) &&
                IsPartOf(inventory.AvailAnalog, before.AvailAnalog) &&
                IsPartOf(inventory.AvailDigital, before.AvailDigital),
            "nothing is offered that was not");
    Require(inventory.AvailLong.size() == before.AvailLong.size(), "long tags stay on offer");
}

bool HasAllTags(Draft& draft, const drafts::PassStep& step) {
    return std::ranges::all_of(VariablesOf(draft, step), [](const binding::Variable& variable) {
        return !variable.Binding->IsMade() || IsInStation(variable.Class(), *variable.Binding);
    });
}

// The dialogs that are done, of runs that are on, and lack nothing. A run that is off has the records of
// another one.
std::vector<drafts::PassStep> WholeSteps(Draft& draft) {
    std::vector<drafts::PassStep> whole;
    for (const auto& step : draft.Done)
        if ((step.Run == 0 || config::IsRunActive(draft.Station, step.Run - 1)) && HasAllTags(draft, step))
            whole.push_back(step);
    return whole;
}

void CheckGoOn(Draft draft) {
    project::TagInventory inventory;
    BuildInventory(Tags(), inventory);
    BuildAvailableLists(inventory, {}, draft.Station.FlagAGA7);
    const auto whole = WholeSteps(draft);
    const auto gone = LetGoOfMissingTags(draft, inventory);
    Require(WholeSteps(draft) == whole, "a dialog that lacks a tag is shown again, and no other");
    CheckBound(draft);
    if (!gone.empty())
        CheckWritten(draft);
    const std::string bytes = BytesOf(draft);
    Require(LetGoOfMissingTags(draft, inventory).empty() && BytesOf(draft) == bytes,
            "nothing is left to be let go of");
    for (std::size_t i = 0; i < gone.size(); ++i)
        Require(std::find(gone.begin(), gone.begin() + static_cast<std::ptrdiff_t>(i), gone[i]) ==
                    gone.begin() + static_cast<std::ptrdiff_t>(i),
                "a name is given once");
    CheckOffer(draft, inventory);
}

bool IsOf(const KeptDraft& kept, const std::string& id) {
    return kept.TheDraft && kept.TheDraft->Id == id;
}

void CheckStore(const std::string& bytes, const std::vector<KeptDraft>& before) {
    Draft draft;
    draft.Id = "another";
    if (std::ranges::any_of(before, [&](const KeptDraft& kept) { return IsOf(kept, draft.Id); }))
        return;
    test::DraftRoom room;
    room.Bytes() = bytes;
    Require(room.Store.Keep(draft), "a draft is kept");
    const auto kept = room.Store.All();
    Require(kept && std::ranges::any_of(*kept, [&](const KeptDraft& each) { return IsOf(each, draft.Id); }),
            "what was kept is there");
    Require(room.Store.Remove(draft.Id), "a draft is removed");
    const auto left = room.Store.All();
    const std::string whole = bytes.empty() || bytes.ends_with('\n') ? bytes : bytes + '\n';
    Require(left && Joined(*left) == whole, "what stood beside it stays as it was");
}

} // namespace

void Drafts(std::string_view bytes) {
    Input input(bytes);
    const bool storeIt = input.Below(4) == 0; // which reads everything thrice
    const std::string file = FileOf(input);
    const auto kept = drafts::DraftsIn(file);
    Require(Joined(kept) == file, "all bytes stand in one of the blocks");
    for (const KeptDraft& each : kept)
        if (each.TheDraft) {
            CheckWritten(*each.TheDraft);
            CheckGoOn(*each.TheDraft);
        }
    if (storeIt)
        CheckStore(file, kept);
}

} // namespace gfc::fuzz
