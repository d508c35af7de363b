#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

using binding::OfferList;
namespace node = binding::node;

namespace {
constexpr OfferList AllLists[] = {OfferList::Float, OfferList::Long, OfferList::AnalogDig};
} // namespace

void TagRuns::ReadRowFields() {
    for (int* field : {&floatRow_, &analogDigRow_, &longRow_})
        *field = std::max(*field, 1);
}

// A field that points past the end of its list shows no row, and takes none.
void TagRuns::ShowRowFields() {
    for (const OfferList list : AllLists)
        ListOf(list).SelectRow(RowFieldOf(list));
}

void TagRuns::Assign() {
    ReadRowFields();
    const int position = SelectedPosition();
    if (position < 0)
        return;
    if (IsBound(position))
        return Tell("Tags Configuration", "I/O tag already assigned", ui::Icon::Information);
    const OfferList offer = binding::OfferListOf(position, needed_);
    ui::ListView& list = ListOf(offer);
    // The row field stays where it is, so it may point past the end.
    const int row = NextShown(list, RowFieldOf(offer));
    if (row > list.Count())
        return;
    ShowBinding(position, BindingInRow(list, row));
    TakeRow(offer, row);
    list.Renumber();
    ShowRowFields();
}

void TagRuns::UndoTag() {
    const int position = SelectedPosition();
    if (position < 0)
        return;
    if (!IsBound(position))
        return Tell("Error undo Tag", "Can´t undo. No I/O assignments has been made for this variable",
                    ui::Icon::Exclamation);
    const OfferList offer = binding::OfferListOf(position, needed_);
    PutBack(offer, ShownBinding(position));
    ShowUnbound(position);
    ListOf(offer).Renumber();
    // The row that has come back may be the one that a field points at.
    ShowRowFields();
}

// In the modify flow the tags go back one at a time. Elsewhere the form returns to the state in which it
// opened, which need not be an empty one.
void TagRuns::UndoAll() {
    if (session_.EditMode == EditMode::ModifyTags)
        UndoOneByOne();
    else
        Refill();
    floatRow_ = analogDigRow_ = longRow_ = 1;
    ShowRowFields();
}

// An unbound variable is deliberately not left out: the first one of a list adds a row that reads "Not
// Configured", which the others find.
void TagRuns::UndoOneByOne() {
    for (int position = 0; position < std::min(needed_.Total(), VariablesShown()); ++position) {
        PutBack(binding::OfferListOf(position, needed_), ShownBinding(position));
        ShowUnbound(position);
    }
    for (const OfferList list : AllLists)
        if (binding::NeededFrom(list, needed_) > 0)
            ListOf(list).Renumber();
}

void TagRuns::AutoAssign() {
    ReadRowFields();
    // Said before anything is looked at, and it cannot refuse.
    Tell("Automatic Tags assignments", "All variables will be assigned to tags automatically",
         ui::Icon::Information);
    if (MayAutoAssign())
        TakeRows();
    SelectFirstRows();
}

bool TagRuns::MayAutoAssign() {
    if (BoundVariables() != 0) {
        SaySomethingIsBound();
        return false;
    }
    const auto rowsFrom = [](const ui::ListView& list, int clicked) {
        if (list.ShowsAllRows())
            return binding::RowsFrom(clicked, list.Count());
        const int first = list.PlaceOfRow(list.ShownFrom(clicked));
        return first == 0 ? 0 : binding::RowsFrom(first, list.ShownCount());
    };
    const binding::FreeRows free{rowsFrom(ListViewRuns, floatRow_), rowsFrom(ListLong, longRow_),
                                 rowsFrom(ListAnalogDig, analogDigRow_)};
    if (binding::CanAutoAssign(needed_, free))
        return true;
    Tell("Tag Auto-assignments...", binding::AutoAssignShortage(needed_), ui::Icon::Exclamation);
    return false;
}

// The tree holds floats first, then longs, then the rest, so this fills it from top to bottom.
void TagRuns::TakeRows() {
    int position = 0;
    for (const OfferList offer : AllLists) {
        ui::ListView& list = ListOf(offer);
        const int count = std::min(binding::NeededFrom(offer, needed_), VariablesShown() - position);
        std::vector<int> taken;
        int row = RowFieldOf(offer);
        for (int i = 0; i < count; ++i) {
            row = NextShown(list, row);
            ShowBinding(position++, BindingInRow(list, row));
            taken.push_back(row++);
        }
        for (auto last = taken.rbegin(); last != taken.rend(); ++last)
            TakeRow(offer, *last);
        list.Renumber();
    }
}

// Also after a refusal: the rows that were clicked are forgotten.
void TagRuns::SelectFirstRows() {
    floatRow_ = analogDigRow_ = longRow_ = 1;
    ShowRowFields();
}

} // namespace gfc::forms
