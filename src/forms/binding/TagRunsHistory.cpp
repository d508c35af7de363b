#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

namespace {

using Picture = BindingHistory::Picture;

// The list's rows without their numbers.
std::vector<ui::ListView::Row> RowsOf(const ui::ListView& list) {
    std::vector<ui::ListView::Row> rows;
    rows.reserve(static_cast<std::size_t>(list.Count()));
    for (int row = 1; row <= list.Count(); ++row) {
        const auto& cells = list.At(row);
        rows.emplace_back(cells.empty() ? cells.begin() : cells.begin() + 1, cells.end());
    }
    return rows;
}

// A list has a blank in front of its numbers until it is renumbered.
bool HasBareNumbers(const ui::ListView& list) {
    return list.Count() > 0 && !list.Cell(1, 0).starts_with(" ");
}

} // namespace

void TagRuns::Do(const std::string& what, const std::function<void()>& act) {
    const Picture before = TakePicture();
    act();
    history_.Note(what, before, TakePicture());
    filter_.Forget();
    ShowNotes();
}

BindingHistory::Picture TagRuns::TakePicture() const {
    Picture picture;
    picture.Shown = ShownBindings();
    const ui::ListView* const lists[] = {&ListViewRuns, &ListLong, &ListAnalogDig};
    const int fields[] = {floatRow_, longRow_, analogDigRow_};
    for (std::size_t i = 0; i < BindingHistory::Lists; ++i)
        picture.ListOf[i] = {RowsOf(*lists[i]), HasBareNumbers(*lists[i]), fields[i]};
    picture.FieldTexts = {Text1.Text(),
                          kfactor.Text(),
                          phostd.Text(),
                          std::to_string(ListHour.ListIndex()),
                          std::to_string(ListMinx10.ListIndex()),
                          std::to_string(ListMinx1.ListIndex()),
                          OptionLocal.Value() ? "local" : "GMT"};
    return picture;
}

void TagRuns::ShowPicture(const Picture& picture) {
    for (int position = 0; position < std::min<int>(VariablesShown(), static_cast<int>(picture.Shown.size()));
         ++position) {
        const auto& binding = picture.Shown[static_cast<std::size_t>(position)];
        if (ShownBinding(position) == binding)
            continue;
        if (binding.RegAddr == binding::NotConfigured)
            ShowUnbound(position);
        else
            ShowBinding(position, binding);
    }
    ui::ListView* const lists[] = {&ListViewRuns, &ListLong, &ListAnalogDig};
    int* const fields[] = {&floatRow_, &longRow_, &analogDigRow_};
    for (std::size_t i = 0; i < BindingHistory::Lists; ++i) {
        ShowRows(*lists[i], picture.ListOf[i]);
        *fields[i] = picture.ListOf[i].ClickedRow;
    }
    ShowRowFields();
    ui::TextBox* const texts[] = {&Text1, &kfactor, &phostd};
    for (std::size_t i = 0; i < 3; ++i)
        texts[i]->SetText(picture.FieldTexts[i]);
    ui::DropDownList* const times[] = {&ListHour, &ListMinx10, &ListMinx1};
    for (std::size_t i = 0; i < 3; ++i)
        times[i]->SetListIndex(std::stoi(picture.FieldTexts[i + 3]));
    if (const bool local = picture.FieldTexts[6] == "local"; local != OptionLocal.Value())
        (local ? OptionLocal : OptionGMT).SetValue(true);
}

// Only the rows between those that stay are taken out and put in: the list may hold many thousands.
void TagRuns::ShowRows(ui::ListView& list, const Picture::List& state) {
    const auto now = RowsOf(list);
    const auto first = std::ranges::mismatch(now, state.Rows);
    const auto shared = static_cast<int>(first.in1 - now.begin());
    int behind = 0;
    const int most = static_cast<int>(std::min(now.size(), state.Rows.size())) - shared;
    while (behind < most && now[now.size() - 1 - static_cast<std::size_t>(behind)] ==
                                state.Rows[state.Rows.size() - 1 - static_cast<std::size_t>(behind)])
        ++behind;
    list.ShowAllRows();
    list.RemoveRows(shared + 1, list.Count() - shared - behind);
    std::vector<ui::ListView::Row> added;
    for (auto row = first.in2; row != state.Rows.end() - behind; ++row) {
        added.emplace_back(1);
        added.back().insert(added.back().end(), row->begin(), row->end());
    }
    list.InsertRows(shared + 1, std::move(added));
    if (state.HasBareNumbers)
        list.Renumber();
    else
        NumberAsFilled(list);
}

void TagRuns::UndoLast() {
    if (history_.ToUndo().empty())
        return;
    ShowPicture(history_.Undo(TakePicture()));
    filter_.Forget();
    ShowNotes();
}

void TagRuns::RedoLast() {
    if (history_.ToRedo().empty())
        return;
    ShowPicture(history_.Redo(TakePicture()));
    filter_.Forget();
    ShowNotes();
}

} // namespace gfc::forms
