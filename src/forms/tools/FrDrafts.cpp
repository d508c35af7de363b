#include "forms/tools/FrDrafts.h"

#include "forms/program/Agreement.h"
#include "forms/tools/ToolStations.h"
#include "forms/wizard/GoOnWithDraft.h"
#include "forms/wizard/PassDraft.h"
#include "services/UtcText.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace gfc::forms {

namespace {

constexpr const char* title = "Drafts";
constexpr int helpContext = 8500;

} // namespace

FrDrafts::FrDrafts(Program& program) : ToolForm(program, "FrDrafts", title, helpContext) {
    ListView1.OnRowClick = [this](int) { SelectDraft(); };
    ListView1.OnRowOpened = [this](int) { GoOn(); };
    Combo1.OnClick = [this] { OfferCommands(); };
    Command1.OnClick = [this] { OpenHelp(); };
    Command2.OnClick = [this] { Delete(); };
    Command3.OnClick = [this] { GoOn(); };
    Command4.OnClick = [this] { Unload(); };
    SetCancelButton(Command4);
}

void FrDrafts::Load() {
    ListView1.AddColumns(
        {{"Station"}, {"Stands at"}, {"User ID"}, {"Begun (UTC)"}, {"Kept (UTC)"}, {"Remark"}});
    for (const std::string& station : StationNames(program_))
        Combo1.AddEntry(station);
    Read();
}

void FrDrafts::Read() {
    ListView1.ClearRows();
    auto all = store_.All();
    const bool isRead = all.has_value();
    drafts_ = std::move(all).value_or(std::vector<drafts::KeptDraft>());
    // What a person was at last stands first.
    std::ranges::stable_sort(drafts_, std::greater<>(), [](const drafts::KeptDraft& kept) {
        return kept.TheDraft ? kept.TheDraft->Kept : std::string();
    });
    for (const drafts::KeptDraft& kept : drafts_)
        AddRow(kept);
    if (!isRead)
        Label1.SetCaption("The drafts cannot be read. " + store_.Reason());
    else if (drafts_.empty())
        Label1.SetCaption("No drafts. A pass of the wizard that is not brought to its end leaves one.");
    else
        Label1.SetCaption(Counted(drafts_.size(), "draft", "drafts"));
    if (!drafts_.empty())
        ListView1.SelectRow(1);
    SelectDraft();
}

void FrDrafts::AddRow(const drafts::KeptDraft& kept) {
    if (!kept.TheDraft)
        return ListView1.AddRow({kept.Station, "", "", "", "", RemarkOn(kept)});
    const drafts::Draft& draft = *kept.TheDraft;
    ListView1.AddRow({kept.Station, draft.StandsAt, draft.Station.UserId, services::ReadableTime(draft.Begun),
                      services::ReadableTime(draft.Kept), RemarkOn(kept)});
}

std::string FrDrafts::RemarkOn(const drafts::KeptDraft& kept) {
    if (!kept.TheDraft)
        return "cannot be read: it was damaged, or another version has written it";
    if (!HasStation(kept.Station))
        return "the project has no such station";
    const std::string mark = FileMarkOf(program_, kept.Station);
    if (mark == kept.TheDraft->FileMark)
        return {};
    return mark.empty() ? "the station's configuration was deleted since"
                        : "the station has got another configuration since";
}

bool FrDrafts::HasStation(const std::string& station) const {
    return std::ranges::find(Combo1.Entries(), station) != Combo1.Entries().end();
}

const drafts::KeptDraft* FrDrafts::Selected() const {
    const int row = ListView1.SelectedRow();
    return row == 0 ? nullptr : &drafts_[static_cast<std::size_t>(row - 1)];
}

// The station of the draft, if the project has it: else a person has to say for which it shall be.
void FrDrafts::SelectDraft() {
    const drafts::KeptDraft* kept = Selected();
    const auto& stations = Combo1.Entries();
    const auto found = kept == nullptr ? stations.end() : std::ranges::find(stations, kept->Station);
    Combo1.SetListIndex(found == stations.end() ? ui::DropDownList::None
                                                : static_cast<int>(found - stations.begin()));
    OfferCommands();
}

void FrDrafts::OfferCommands() {
    const drafts::KeptDraft* kept = Selected();
    const bool whole = kept != nullptr && kept->TheDraft;
    const bool chosen = Combo1.ListIndex() != ui::DropDownList::None;
    Combo1.SetEnabled(whole);
    Command2.SetEnabled(kept != nullptr);
    Command3.SetEnabled(whole && chosen);
    if (whole && !chosen)
        Label3.SetCaption("The project has no station " + kept->Station +
                          ". If it was renamed, choose it under its new name.");
    else if (whole && Combo1.Text() != kept->Station)
        Label3.SetCaption("The draft was begun for " + kept->Station +
                          ". Tags that this station lacks will have to be bound anew.");
    else
        Label3.SetCaption({});
}

// The window goes first: the pass hides what stands before it.
void FrDrafts::GoOn() {
    if (!Command3.Enabled())
        return;
    const drafts::Draft draft = *Selected()->TheDraft;
    const std::string station = Combo1.Text();
    const auto onGoOn = OnGoOn;
    Unload();
    if (onGoOn)
        onGoOn(draft, station);
}

void FrDrafts::Delete() {
    const drafts::KeptDraft kept = *Selected();
    const std::string from = kept.TheDraft ? "\r\nBegun " + services::ReadableTime(kept.TheDraft->Begun) +
                                                 " UTC. " + kept.TheDraft->StandsAt
                                           : std::string();
    if (!IsAgreed(program_, title, "Delete this draft? What was entered is lost then." + from, kept.Station))
        return;
    if (!store_.Remove(kept))
        Tell("The draft was not deleted. " + store_.Reason(), ui::Icon::Exclamation);
    Read();
}

void DraftsCommand(Program& program) {
    std::optional<std::pair<drafts::Draft, std::string>> chosen;
    auto& window = program.Forms.Get<FrDrafts>();
    window.OnGoOn = [&chosen](const drafts::Draft& draft, const std::string& station) {
        chosen.emplace(draft, station);
    };
    window.ShowModal();
    if (chosen && !program.Screen.Ended())
        GoOnWithDraft(program, std::move(chosen->first), chosen->second);
}

} // namespace gfc::forms
