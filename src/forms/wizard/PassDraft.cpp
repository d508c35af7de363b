#include "forms/wizard/PassDraft.h"

#include "forms/program/Program.h"
#include "platform/Machine.h"
#include "services/UtcText.h"

#include <algorithm>
#include <utility>

namespace gfc::forms {

namespace {

std::string Now(Program& program) {
    return services::UtcText(program.Machine.Clock, program.Machine.TimeZone);
}

// Two passes may begin within a second.
std::string FreeId(drafts::DraftStore& store, const drafts::Draft& draft) {
    const auto all = store.All().value_or(std::vector<drafts::KeptDraft>());
    const auto isTaken = [&](const std::string& id) {
        return std::ranges::any_of(
            all, [&](const drafts::KeptDraft& kept) { return kept.TheDraft && kept.TheDraft->Id == id; });
    };
    const std::string lead = draft.Begun + " " + draft.Station.CurrentStation + " ";
    int number = 1;
    while (isTaken(lead + std::to_string(number)))
        ++number;
    return lead + std::to_string(number);
}

} // namespace

PassDraft::PassDraft(Program& program)
    : program_(program), store_(program.Machine, program.Session.Project.ProjectFile) {
    draft_.Station = program.Session.Station;
    draft_.Begun = Now(program);
    draft_.FileMark = FileMarkOf(program, draft_.Station.CurrentStation);
    draft_.Id = FreeId(store_, draft_);
}

PassDraft::PassDraft(Program& program, drafts::Draft draft)
    : program_(program), store_(program.Machine, program.Session.Project.ProjectFile),
      draft_(std::move(draft)), goesOn_(true) {
    draft_.FileMark = FileMarkOf(program, draft_.Station.CurrentStation);
}

const drafts::OpenDialog* PassDraft::LeftIn(const drafts::PassStep& step) const {
    const auto found = draft_.Open.find(step);
    return found == draft_.Open.end() ? nullptr : &found->second;
}

void PassDraft::Reach(const std::string& standsAt) {
    draft_.StandsAt = standsAt;
    Keep();
}

void PassDraft::Note(const drafts::PassStep& step, drafts::OpenDialog dialog) {
    auto& noted = draft_.Open[step];
    if (noted == dialog)
        return;
    noted = std::move(dialog);
    Keep();
}

void PassDraft::Pass(const drafts::PassStep& step) {
    draft_.Open.erase(step);
    draft_.Done.push_back(step);
}

void PassDraft::Keep() {
    draft_.Station = program_.Session.Station;
    draft_.Kept = Now(program_);
    kept_ = store_.Keep(draft_);
    Told(kept_);
}

void PassDraft::LetGo() {
    Told(store_.Remove(draft_.Id));
}

void PassDraft::Told(bool done) {
    trouble_ = done ? std::string() : store_.Reason();
}

std::string PassDraft::TakeTrouble() {
    if (trouble_.empty() || std::exchange(told_, true))
        return {};
    return "The draft of this pass cannot be kept. " + trouble_;
}

std::string FileMarkOf(Program& program, const std::string& station) {
    const auto bytes = program.Machine.Files.Read(program.Session.Project.ConfigFileOf(station));
    return bytes ? drafts::MarkOf(*bytes) : std::string();
}

} // namespace gfc::forms
