#include "forms/binding/BindingHistory.h"

#include <algorithm>
#include <utility>

namespace gfc::forms {

void BindingHistory::Note(std::string what, const Picture& before, const Picture& after) {
    const auto same = [&](std::size_t list) {
        const Picture::List& old = before.ListOf[list];
        const Picture::List& now = after.ListOf[list];
        return old.Rows == now.Rows && old.HasBareNumbers == now.HasBareNumbers;
    };
    if (before.Shown == after.Shown && same(0) && same(1) && same(2))
        return;
    steps_.resize(done_);
    Step step{.What = std::move(what),
              .Before = before.Shown,
              .After = after.Shown,
              .Lists = {},
              .FieldsBefore = {},
              .FieldsAfter = {}};
    for (std::size_t list = 0; list < Lists; ++list)
        step.Lists[list] = ChangeOf(before.ListOf[list], after.ListOf[list]);
    step.FieldsBefore = before.FieldTexts;
    step.FieldsAfter = after.FieldTexts;
    steps_.push_back(std::move(step));
    done_ = steps_.size();
}

void BindingHistory::Clear() {
    steps_.clear();
    done_ = 0;
}

std::string BindingHistory::ToUndo() const {
    return done_ == 0 ? std::string() : steps_[done_ - 1].What;
}

std::string BindingHistory::ToRedo() const {
    return done_ == steps_.size() ? std::string() : steps_[done_].What;
}

BindingHistory::Picture BindingHistory::Undo(Picture now) {
    Apply(steps_.at(--done_), true, now);
    return now;
}

BindingHistory::Picture BindingHistory::Redo(Picture now) {
    Apply(steps_.at(done_++), false, now);
    return now;
}

BindingHistory::ListChange BindingHistory::ChangeOf(const Picture::List& before, const Picture::List& after) {
    const auto& old = before.Rows;
    const auto& now = after.Rows;
    const auto first = std::ranges::mismatch(old, now);
    const auto shared = static_cast<std::size_t>(first.in1 - old.begin());
    std::size_t behind = 0;
    while (behind < std::min(old.size(), now.size()) - shared &&
           old[old.size() - 1 - behind] == now[now.size() - 1 - behind])
        ++behind;
    const auto end = static_cast<std::ptrdiff_t>(behind);
    ListChange change;
    change.First = shared;
    change.Before.assign(first.in1, old.end() - end);
    change.After.assign(first.in2, now.end() - end);
    change.StateBefore = {{}, before.HasBareNumbers, before.ClickedRow};
    change.StateAfter = {{}, after.HasBareNumbers, after.ClickedRow};
    return change;
}

void BindingHistory::Apply(const Step& step, bool back, Picture& picture) {
    picture.Shown = back ? step.Before : step.After;
    for (std::size_t list = 0; list < Lists; ++list) {
        const ListChange& change = step.Lists[list];
        Picture::List& state = picture.ListOf[list];
        std::vector<ui::ListView::Row> rows = std::move(state.Rows);
        const auto& from = back ? change.After : change.Before;
        const auto& to = back ? change.Before : change.After;
        const auto first = rows.begin() + static_cast<std::ptrdiff_t>(change.First);
        const auto at = rows.erase(first, first + static_cast<std::ptrdiff_t>(from.size()));
        rows.insert(at, to.begin(), to.end());
        state = back ? change.StateBefore : change.StateAfter;
        state.Rows = std::move(rows);
    }
    for (std::size_t field = 0; field < Fields; ++field) {
        const auto& from = back ? step.FieldsAfter[field] : step.FieldsBefore[field];
        const auto& to = back ? step.FieldsBefore[field] : step.FieldsAfter[field];
        if (from != to && picture.FieldTexts[field] == from)
            picture.FieldTexts[field] = to;
    }
}

} // namespace gfc::forms
