// What the window for several stations does between two events of a person: looking tags up, and writing.
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/Agreement.h"
#include "forms/tools/FrPlanStations.h"
#include "forms/tools/ToolForm.h"
#include "platform/Machine.h"
#include "suggest/Known.h"

#include <algorithm>
#include <array>

namespace gfc::forms {

namespace {

std::string CountText(const audit::StationReport& report) {
    const auto errors = audit::CountOf(report.Findings, audit::Severity::Error);
    const auto warnings = audit::CountOf(report.Findings, audit::Severity::Warning);
    return errors + warnings == 0 ? "written, nothing found by the check"
                                  : "written; the check finds " + Counted(errors, "error", "errors") + ", " +
                                        Counted(warnings, "warning", "warnings");
}

} // namespace

// The window may be closed while the library takes its time over a station: all ends with that one.
void FrPlanStations::Tick() {
    const auto alive = KeepAlive();
    const auto of = [this](State state) {
        return std::ranges::find_if(items_,
                                    [&](const Item& item) { return item.IsChosen && item.State == state; });
    };
    if (const auto waiting = of(State::Waiting); waiting != items_.end())
        WriteNext(*waiting);
    else if (const auto unread = of(State::Unread); unread != items_.end())
        PlanNext(*unread);
    else
        Timer1.SetEnabled(false);
    if (!IsUnloaded())
        ShowProgress();
}

project::TagList FrPlanStations::TagsOf(const std::string& station) {
    return program_.Library.ReadTags(station, session_.Project.ProjectFile, [](std::string_view) {});
}

// Why there is none; empty where there is.
std::string FrPlanStations::TakeSource(Item& item) {
    if (IsCopy() && source_ != nullptr) {
        item.Source = source_;
        return {};
    }
    const std::string from = IsCopy() ? copied_ : item.Station;
    auto source = std::make_shared<plan::Source>();
    std::string against =
        plan::TakeSource(program_.Machine.Files, session_.Project, {from, TagsOf(from)}, *source);
    if (!against.empty())
        return against;
    item.Source = source;
    if (IsCopy()) {
        source->Bound.Others = suggest::OtherStationsOf(program_.Ini, session_.Project, {});
        source_ = source;
    }
    return {};
}

void FrPlanStations::PlanNext(Item& item) {
    std::string against = TakeSource(item);
    if (IsUnloaded())
        return;
    item.Tags = TagsOf(item.Station);
    if (IsUnloaded())
        return;
    item.State = State::Planned;
    if (against.empty())
        item.Plan = plan::PlanFor(program_.Machine.Files, session_.Project, *item.Source,
                                  plan::Destination({item.Station, item.Tags}));
    else
        item.Plan.Refused = std::move(against);
    ShowItem(static_cast<std::size_t>(&item - items_.data()));
    if (Selected() == &item)
        ShowLines();
}

bool FrPlanStations::MayReplace(const Item& item) {
    if (!item.Plan.ReplacesOther(*item.Source))
        return true;
    return IsAgreed(program_, "Copy to several stations",
                    "The station has a configuration, which will be replaced.\r\nProceed?", item.Station);
}

void FrPlanStations::Write(bool incompleteToo) {
    const auto alive = KeepAlive();
    for (std::size_t i = 0; i < items_.size(); ++i) {
        // What failed is tried again as it was planned.
        const bool open = items_[i].State == State::Planned || items_[i].State == State::Failed;
        const bool ready = items_[i].IsChosen && open && items_[i].Plan.Refused.empty();
        if (!ready || (!incompleteToo && !items_[i].Plan.IsComplete()))
            continue;
        const bool may = MayReplace(items_[i]);
        if (IsUnloaded() || program_.Screen.Ended())
            return;
        if (!may)
            continue;
        items_[i].State = State::Waiting;
        ShowItem(i);
        Timer1.SetEnabled(true);
    }
    OfferTags();
    ShowProgress();
}

void FrPlanStations::WriteNext(Item& item) {
    const plan::Change change = plan::ChangeFor(session_.Project, *item.Source, item.Plan);
    const plan::Writer writer{program_.Machine.Files, program_.Library, program_.Recorder, session_.Project,
                              session_.Station.UserId};
    const plan::Written written = plan::Write(writer, change);
    hasWritten_ = hasWritten_ || written.Done;
    if (IsUnloaded())
        return;
    item.State = written.Done ? State::Written : State::Failed;
    item.Note = "not written. " + written.Reason;
    if (written.Done) {
        const auto report = plan::CheckOf(session_.Project, change, item.Tags);
        item.Note = CountText(report);
        item.IsEdited = false;
        if (program_.Forms.IsLoaded<GFCPrincipal>())
            program_.Forms.Get<GFCPrincipal>().MarkChecked(std::array{&report});
    }
    ShowItem(static_cast<std::size_t>(&item - items_.data()));
    if (program_.Forms.IsLoaded<GFCPrincipal>())
        program_.Forms.Get<GFCPrincipal>().WatchRecord();
}

// What was looked up or written by then stays.
void FrPlanStations::Stop() {
    Timer1.SetEnabled(false);
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i].State == State::Waiting)
            items_[i].State = State::Planned;
        if (items_[i].State == State::Unread)
            items_[i].IsChosen = false;
        ShowItem(i);
    }
    ShowLines();
    ShowProgress();
}

void FrPlanStations::ShowProgress() {
    const auto count = [this](auto is) {
        return std::to_string(
            std::ranges::count_if(items_, [&](const Item& item) { return item.IsChosen && is(item); }));
    };
    Label4.SetCaption(count([](const Item&) { return true; }) + " chosen; " +
                      count([](const Item& i) { return i.State == State::Unread; }) + " to be looked up, " +
                      count([](const Item& i) { return i.State == State::Planned && i.Plan.IsComplete(); }) +
                      " complete, " +
                      count([](const Item& i) { return i.State == State::Planned && !i.Plan.IsComplete(); }) +
                      " not complete, " + count([](const Item& i) { return i.State == State::Waiting; }) +
                      " to be written, " + count([](const Item& i) { return i.State == State::Written; }) +
                      " written, " + count([](const Item& i) { return i.State == State::Failed; }) +
                      " failed");
    Command6.SetEnabled(Timer1.Enabled());
    Command7.SetEnabled(!Timer1.Enabled());
    Command8.SetEnabled(!Timer1.Enabled());
}

} // namespace gfc::forms
