#include "forms/binding/BindingHistory.h"

#include <algorithm>
#include <utility>

namespace gfc::forms {

void BindingHistory::Note(std::string what, Picture before, Picture after, std::vector<RowChange> rows) {
    std::erase_if(rows, [](const RowChange& change) { return change.Before == change.After; });
    const auto sameNumbers = [](const Picture::List& old, const Picture::List& now) {
        return old.HasBareNumbers == now.HasBareNumbers;
    };
    if (before.Shown == after.Shown && before.Images == after.Images && rows.empty() &&
        std::ranges::equal(before.ListOf, after.ListOf, sameNumbers))
        return;
    steps_.resize(done_);
    steps_.push_back({std::move(what), std::move(before), std::move(after), std::move(rows)});
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

BindingHistory::Move BindingHistory::Undo(const Picture& now) {
    const Step& step = steps_.at(--done_);
    Move move{step.Before, {step.Rows.rbegin(), step.Rows.rend()}};
    for (RowChange& change : move.Rows)
        std::swap(change.Before, change.After);
    KeepWhatWasTyped(step.After, now, move.To);
    return move;
}

BindingHistory::Move BindingHistory::Redo(const Picture& now) {
    const Step& step = steps_.at(done_++);
    Move move{step.After, step.Rows};
    KeepWhatWasTyped(step.Before, now, move.To);
    return move;
}

void BindingHistory::KeepWhatWasTyped(const Picture& left, const Picture& now, Picture& to) {
    for (std::size_t field = 0; field < Fields; ++field)
        if (left.FieldTexts[field] == to.FieldTexts[field] || now.FieldTexts[field] != left.FieldTexts[field])
            to.FieldTexts[field] = now.FieldTexts[field];
}

BindingHistory::RowChange BindingHistory::ChangeOf(std::size_t list,
                                                   const std::vector<ui::ListView::Row>& before,
                                                   const std::vector<ui::ListView::Row>& after) {
    const auto first = std::ranges::mismatch(before, after);
    const auto shared = static_cast<std::size_t>(first.in1 - before.begin());
    std::size_t behind = 0;
    while (behind < std::min(before.size(), after.size()) - shared &&
           before[before.size() - 1 - behind] == after[after.size() - 1 - behind])
        ++behind;
    const auto end = static_cast<std::ptrdiff_t>(behind);
    return {
        list, static_cast<int>(shared) + 1, {first.in1, before.end() - end}, {first.in2, after.end() - end}};
}

} // namespace gfc::forms
