#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>
#include <charconv>

namespace gfc::forms {

using binding::OfferList;
namespace node = binding::node;

namespace {

using Picture = BindingHistory::Picture;
using RowChange = BindingHistory::RowChange;
using Rows = std::vector<ui::ListView::Row>;

// In the order of the history.
constexpr std::array<OfferList, BindingHistory::Lists> ListOrder = {OfferList::Float, OfferList::Long,
                                                                    OfferList::AnalogDig};

std::size_t PlaceOf(OfferList list) {
    return static_cast<std::size_t>(std::ranges::find(ListOrder, list) - ListOrder.begin());
}

ui::ListView::Row WithoutNumber(const ui::ListView::Row& cells) {
    return {cells.empty() ? cells.begin() : cells.begin() + 1, cells.end()};
}

Rows RowsOf(const ui::ListView& list) {
    Rows rows;
    rows.reserve(static_cast<std::size_t>(list.Count()));
    for (int row = 1; row <= list.Count(); ++row)
        rows.push_back(WithoutNumber(list.At(row)));
    return rows;
}

// None for what is no number: the text of a draft may be any.
int IndexIn(const std::string& text) {
    int index = ui::DropDownList::None;
    std::from_chars(text.data(), text.data() + text.size(), index);
    return index;
}

// A list has a blank in front of its numbers until it is renumbered.
bool HasBareNumbers(const ui::ListView& list) {
    return list.Count() > 0 && !list.Cell(1, 0).starts_with(" ");
}

} // namespace

void TagRuns::Do(const std::string& what, const std::function<void()>& act) {
    Picture before = TakePicture();
    changes_.clear();
    act();
    std::ranges::for_each(changes_, [this](const RowChange& change) { TellFilter(change); });
    history_.Note(what, std::move(before), TakePicture(), std::exchange(changes_, {}));
    ShowNotes();
    TellWhatStands();
}

void TagRuns::TakeRow(OfferList list, int row) {
    changes_.push_back({PlaceOf(list), row, {WithoutNumber(ListOf(list).At(row))}, {}});
    ListOf(list).RemoveRows(row, 1);
}

void TagRuns::PutBack(OfferList list, const config::TagBinding& tag) {
    ui::ListView& its = ListOf(list);
    if (RowWith(its, tag) != 0)
        return;
    its.AddRow({std::string(), tag.Tag, tag.Type, tag.RegAddr});
    changes_.push_back({PlaceOf(list), its.Count(), {}, {WithoutNumber(its.At(its.Count()))}});
}

void TagRuns::Refill() {
    std::array<Rows, BindingHistory::Lists> before;
    for (std::size_t list = 0; list < before.size(); ++list)
        before[list] = RowsOf(ListOf(ListOrder[list]));
    PrepareStage();
    for (std::size_t list = 0; list < before.size(); ++list)
        changes_.push_back(BindingHistory::ChangeOf(list, before[list], RowsOf(ListOf(ListOrder[list]))));
}

Picture TagRuns::TakePicture() const {
    Picture picture;
    picture.Shown = ShownBindings();
    for (int position = 0; position < VariablesShown(); ++position)
        picture.Images.push_back(TreeAGA.At(node::Variable(position)).Image);
    const ui::ListView* const lists[] = {&ListViewRuns, &ListLong, &ListAnalogDig};
    const int fields[] = {floatRow_, longRow_, analogDigRow_};
    for (std::size_t i = 0; i < BindingHistory::Lists; ++i)
        picture.ListOf[i] = {HasBareNumbers(*lists[i]), fields[i]};
    picture.FieldTexts = {Text1.Text(),
                          kfactor.Text(),
                          phostd.Text(),
                          std::to_string(ListHour.ListIndex()),
                          std::to_string(ListMinx10.ListIndex()),
                          std::to_string(ListMinx1.ListIndex()),
                          OptionLocal.Value() ? "local" : "GMT"};
    return picture;
}

void TagRuns::GoTo(const BindingHistory::Move& move) {
    for (std::size_t i = 0; i < move.To.Shown.size(); ++i) {
        const int position = static_cast<int>(i);
        ShowBinding(position, move.To.Shown[i]);
        // What reads "Not Configured" may have been taken from a row that reads so, too, and look bound.
        TreeAGA.SetImage(node::Variable(position), move.To.Images[i]);
    }
    for (const OfferList list : ListOrder)
        ListOf(list).ShowAllRows();
    for (const RowChange& change : move.Rows)
        Replace(change);
    for (const OfferList list : ListOrder) {
        const Picture::List& state = move.To.ListOf[PlaceOf(list)];
        if (state.HasBareNumbers)
            ListOf(list).Renumber();
        else
            NumberAsFilled(ListOf(list));
        RowFieldOf(list) = state.ClickedRow;
    }
    ShowRowFields();
    ShowFields(move.To);
}

void TagRuns::Replace(const RowChange& change) {
    ui::ListView& list = ListOf(ListOrder[change.List]);
    list.RemoveRows(change.First, static_cast<int>(change.Before.size()));
    Rows added;
    for (const auto& cells : change.After) {
        added.emplace_back(1); // the number comes later
        added.back().insert(added.back().end(), cells.begin(), cells.end());
    }
    list.InsertRows(change.First, std::move(added));
    TellFilter(change);
}

void TagRuns::TellFilter(const RowChange& change) {
    filter_.RowsChanged(ListOf(ListOrder[change.List]), change.First, change.Before.size(), change.After);
}

void TagRuns::ShowFields(const Picture& picture) {
    ui::TextBox* const texts[] = {&Text1, &kfactor, &phostd};
    for (std::size_t i = 0; i < 3; ++i)
        texts[i]->SetText(picture.FieldTexts[i]);
    ui::DropDownList* const times[] = {&ListHour, &ListMinx10, &ListMinx1};
    for (std::size_t i = 0; i < 3; ++i)
        times[i]->SetListIndex(IndexIn(picture.FieldTexts[i + 3]));
    if (const bool local = picture.FieldTexts[6] == "local"; local != OptionLocal.Value())
        (local ? OptionLocal : OptionGMT).SetValue(true);
}

void TagRuns::UndoLast() {
    if (history_.ToUndo().empty())
        return;
    GoTo(history_.Undo(TakePicture()));
    ShowNotes();
    TellWhatStands();
}

void TagRuns::RedoLast() {
    if (history_.ToRedo().empty())
        return;
    GoTo(history_.Redo(TakePicture()));
    ShowNotes();
    TellWhatStands();
}

} // namespace gfc::forms
