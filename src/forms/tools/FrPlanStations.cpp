#include "forms/tools/FrPlanStations.h"

#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/program/Loss.h"
#include "platform/Machine.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::forms {

namespace {

constexpr const char* copyTitle = "Copy to several stations";
constexpr const char* bindTitle = "Bind anew";
constexpr int helpContext = 8100;
constexpr const char* yes = "Yes";

// Columns of the list of stations.
constexpr int chosenColumn = 0;
constexpr int configurationColumn = 2;
constexpr int statusColumn = 3;

std::string RunText(const plan::Line& line) {
    return line.Variable.Run > 0 ? std::to_string(line.Variable.Run) : std::string();
}

// As the window shows them: the register of a working module may be unknown.
bool IsChanged(const plan::Line& line) {
    return plan::Line::TextOf(line.Source) != plan::Line::TextOf(line.Proposed);
}

// Of a station that is bound anew; of a copy every tag is another one.
std::string ChangesIn(const std::vector<plan::Line>& lines) {
    const auto changed = static_cast<std::size_t>(std::ranges::count_if(lines, IsChanged));
    return changed == 0 ? "nothing to change" : Counted(changed, "tag", "tags") + " to change";
}

} // namespace

FrPlanStations::FrPlanStations(Program& program)
    : ToolForm(program, "FrPlanStations", copyTitle, helpContext) {
    ListView1.OnRowClick = [this](int) { ShowLines(); };
    ListView1.OnRowOpened = [this](int row) {
        const auto item = static_cast<std::size_t>(row - 1);
        Choose(item, !items_.at(item).IsChosen);
    };
    ListView1.IsMarked = [this](int row) {
        const Item& item = items_.at(static_cast<std::size_t>(row - 1));
        return item.State == State::Failed || (item.State == State::Planned && !item.Plan.IsComplete());
    };
    ListView2.OnRowClick = [this](int) { OfferTags(); };
    ListView2.OnRowOpened = [this](int) {
        OfferTags();
        Combo1.SetFocus();
    };
    ListView2.IsMarked = [this](int row) {
        Item* item = Selected();
        return item != nullptr &&
               item->Plan.Lines.at(shown_.at(static_cast<std::size_t>(row - 1))).IsMissing();
    };
    Check1.OnClick = [this] { ShowLines(); };
    Command1.OnClick = [this] {
        if (const int row = ListView1.SelectedRow(); row > 0)
            ListView1.OnRowOpened(row);
    };
    Command2.OnClick = [this] { ChooseAll(true); };
    Command3.OnClick = [this] { ChooseAll(false); };
    Command4.OnClick = [this] { UseTag(); };
    Command5.OnClick = [this] { OpenHelp(); };
    Command6.OnClick = [this] { Stop(); };
    Command7.OnClick = [this] { Write(false); };
    Command8.OnClick = [this] { Write(true); };
    Command9.OnClick = [this] { Leave(); };
    Timer1.OnTimer = [this] { Tick(); };
    SetCancelButton(Command9);
}

void FrPlanStations::Load() {
    SetCaption(IsCopy() ? std::string(copyTitle) + " from " + copied_ : bindTitle);
    if (!IsCopy())
        Check1.SetCaption("Only what changes, is missing or not sure");
    Label1.SetCaption(IsCopy() ? "Stations that the configuration goes to" : "Stations to be bound anew");
    ListView1.AddColumns({{"Chosen", 7}, {"Station", 24}, {"Configuration", 24}, {"Tags"}});
    ListView2.AddColumns({{"Run", 4},
                          {"Variable", 28},
                          {IsCopy() ? "Tag of " + copied_ : std::string("Tag in the file"), 26},
                          {"Tag here", 26},
                          {"Why"}});
    Command6.SetEnabled(false);
    ListStations();
    ShowLines();
    ShowProgress();
}

void FrPlanStations::Unloading() {
    Timer1.SetEnabled(false);
}

bool FrPlanStations::IsConfigured(const Item& item) const {
    return program_.Ini.FileExists(session_.Project.ConfigFileOf(item.Station));
}

void FrPlanStations::ListStations() {
    const std::string selected = session_.Station.CurrentStation;
    for (const project::Station& station : session_.Project.Stations) {
        Item item;
        item.Station = station.Name;
        if (IsCopy() ? services::EqualNoCase(item.Station, copied_) : !IsConfigured(item))
            continue;
        const bool configured = IsConfigured(item);
        // Before its row, which asks whether it is to be red.
        items_.push_back(std::move(item));
        ListView1.AddRow({"", items_.back().Station,
                          !configured ? "none"
                          : IsCopy()  ? "has one, is replaced"
                                      : "has one",
                          ""});
        if (!IsCopy() && services::EqualNoCase(station.Name, selected))
            Choose(items_.size() - 1, true);
    }
    // The one that is looked up first is the one that a person looks at.
    const auto chosen = std::ranges::find_if(items_, &Item::IsChosen);
    if (!items_.empty())
        ListView1.SelectRow(chosen == items_.end() ? 1 : static_cast<int>(chosen - items_.begin()) + 1);
}

std::string FrPlanStations::StatusOf(const Item& item) const {
    if (!item.IsChosen)
        return {};
    const std::size_t missing = plan::MissingIn(item.Plan.Lines);
    switch (item.State) {
    case State::Unread:
        return "not looked up yet";
    case State::Planned:
        if (!item.Plan.Refused.empty())
            return item.Plan.Refused;
        if (missing > 0)
            return Counted(missing, "variable", "variables") + " without a tag";
        return IsCopy() ? "all found" : "all found, " + ChangesIn(item.Plan.Lines);
    case State::Waiting:
        return "waits to be written";
    case State::Written:
    case State::Failed:
        break;
    }
    return item.Note;
}

void FrPlanStations::ShowItem(std::size_t item) {
    const int row = static_cast<int>(item) + 1;
    ListView1.SetCell(row, chosenColumn, items_[item].IsChosen ? yes : "");
    if (items_[item].State == State::Written)
        ListView1.SetCell(row, configurationColumn, "has one");
    ListView1.SetCell(row, statusColumn, StatusOf(items_[item]));
}

// What was looked up stays, should the station be chosen again.
void FrPlanStations::Choose(std::size_t item, bool chosen) {
    Item& it = items_.at(item);
    if (it.State == State::Waiting)
        return;
    it.IsChosen = chosen;
    if (chosen && (it.State == State::Written || it.State == State::Failed))
        it.State = State::Unread;
    if (chosen && it.State == State::Unread)
        Timer1.SetEnabled(true);
    ShowItem(item);
    ShowLines();
    ShowProgress();
}

// Only stations that lose nothing by it are chosen as a whole.
void FrPlanStations::ChooseAll(bool chosen) {
    for (std::size_t item = 0; item < items_.size(); ++item)
        if (!chosen || !IsCopy() || !IsConfigured(items_[item]))
            Choose(item, chosen);
}

FrPlanStations::Item* FrPlanStations::Selected() {
    const int row = ListView1.SelectedRow();
    return row < 1 || row > static_cast<int>(items_.size()) ? nullptr
                                                            : &items_[static_cast<std::size_t>(row - 1)];
}

void FrPlanStations::ShowLines() {
    ListView2.ClearRows();
    shown_.clear();
    const Item* item = Selected();
    Label2.SetCaption(item == nullptr ? "Tags" : "Tags of " + item->Station);
    std::vector<ui::ListView::Row> rows;
    for (std::size_t i = 0; item != nullptr && i < item->Plan.Lines.size(); ++i) {
        const plan::Line& line = item->Plan.Lines[i];
        if (Check1.Value() && line.IsSure && !line.IsMissing() && (IsCopy() || !IsChanged(line)))
            continue;
        shown_.push_back(i);
        rows.push_back({RunText(line), line.Caption(), plan::Line::TextOf(line.Source),
                        line.IsMissing() ? "missing" : plan::Line::TextOf(line.Proposed),
                        (line.IsSure || line.IsMissing() ? "" : "not sure: ") + line.Reason});
    }
    if (!rows.empty())
        ListView2.AddRows(std::move(rows));
    OfferTags();
}

void FrPlanStations::OfferTags() {
    Combo1.Clear();
    offered_.clear();
    const Item* item = Selected();
    const int row = ListView2.SelectedRow();
    const bool may = item != nullptr && row > 0 && item->State == State::Planned;
    Combo1.SetEnabled(may);
    Command4.SetEnabled(may);
    if (!may)
        return;
    const plan::Line& line = item->Plan.Lines.at(shown_.at(static_cast<std::size_t>(row - 1)));
    offered_ = plan::Destination({item->Station, item->Tags}).ChoicesFor(line, item->Plan.Lines);
    for (const config::TagBinding& binding : offered_)
        Combo1.AddEntry(plan::Line::TextOf(binding));
    const auto now = std::ranges::find(offered_, line.Proposed);
    if (now != offered_.end())
        Combo1.SetListIndex(static_cast<int>(now - offered_.begin()));
}

void FrPlanStations::UseTag() {
    Item* item = Selected();
    const int row = ListView2.SelectedRow();
    const int choice = Combo1.ListIndex();
    if (item == nullptr || row < 1 || choice == ui::DropDownList::None)
        return;
    plan::ChooseFor(item->Plan.Lines, shown_.at(static_cast<std::size_t>(row - 1)),
                    offered_.at(static_cast<std::size_t>(choice)));
    item->IsEdited = true;
    ShowItem(static_cast<std::size_t>(ListView1.SelectedRow() - 1));
    ShowLines();
    // Under the filter the row may have gone; the next one has come up then.
    if (ListView2.Count() > 0)
        ListView2.SelectRow(std::min(row, ListView2.Count()));
    OfferTags();
}

void FrPlanStations::Leave() {
    const bool waiting =
        std::ranges::any_of(items_, [](const Item& item) { return item.State == State::Waiting; });
    if (waiting && !MayLose(program_, IsCopy() ? copyTitle : bindTitle,
                            "Stations wait to be written. Do you want to close the window?"))
        return;
    const bool edited = std::ranges::any_of(items_, &Item::IsEdited);
    if (edited && !MayLose(program_, IsCopy() ? copyTitle : bindTitle,
                           "Tags were chosen that are not written. Do you want to close the window?"))
        return;
    Unload();
}

namespace {

void Show(Program& program, const std::string& copied) {
    auto& form = program.Forms.Get<FrPlanStations>();
    form.CopyFrom(copied);
    const auto alive = form.KeepAlive();
    form.ShowModal();
    if (form.HasWritten() && !program.Screen.Ended())
        program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
}

} // namespace

void CopyToSeveralCommand(Program& program) {
    const std::string station = program.Session.Station.CurrentStation;
    if (node::NamesNoStation(program.Session.SelectedNodeText) || station.empty() ||
        !program.Ini.FileExists(program.Session.Project.ConfigFileOf(station))) {
        program.Screen.Ask(
            {.Title = copyTitle,
             .Text = "Please select the configured station whose configuration is to be copied.",
             .TheIcon = ui::Icon::Exclamation});
        return;
    }
    Show(program, station);
}

void BindAnewCommand(Program& program) {
    Show(program, {});
}

} // namespace gfc::forms
