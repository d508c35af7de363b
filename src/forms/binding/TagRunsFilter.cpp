#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

using binding::OfferList;

namespace {

// The entries of FilterKind, in order.
enum Kind { All, Free, Suggested };

} // namespace

void TagRuns::ApplyFilter() {
    for (const OfferList offer : {OfferList::Float, OfferList::Long, OfferList::AnalogDig})
        FilterList(offer);
    ShowRowFields();
    SayWhatIsShown();
}

void TagRuns::FilterList(OfferList offer) {
    ui::ListView& list = ListOf(offer);
    int& clicked = RowFieldOf(offer);
    if (!filter_.HasWords() && FilterKind.ListIndex() <= All) {
        // A field that a filter has sent past the end comes back with the rows.
        if (!list.ShowsAllRows() && clicked > list.Count())
            clicked = 1;
        return list.ShowAllRows();
    }
    list.ShowRows(RowsToShow(list));
    // A row that is out of sight is not the one that the next Assign takes.
    const int next = list.ShownFrom(clicked);
    const int first = list.RowAtPlace(1);
    clicked = next != 0 ? next : first != 0 ? first : list.Count() + 1;
}

std::vector<int> TagRuns::RowsToShow(const ui::ListView& list) {
    std::vector<int> rows = filter_.RowsOf(list);
    if (FilterKind.ListIndex() == Free)
        std::erase_if(rows, [&](int row) {
            return suggestions_.IsBoundElsewhere(list.Cell(row, tag_column::Type),
                                                 list.Cell(row, tag_column::Register));
        });
    if (FilterKind.ListIndex() != Suggested)
        return rows;
    std::vector<int> suggested;
    for (int position = 0; position < VariablesShown(); ++position)
        if (IsOffered(position))
            suggested.push_back(RowWith(list, suggestions_.At(position)->Binding));
    std::erase_if(rows, [&](int row) { return std::ranges::find(suggested, row) == suggested.end(); });
    return rows;
}

// Also that this is what the acts take from.
void TagRuns::SayWhatIsShown() {
    int shown = 0;
    int all = 0;
    for (const ui::ListView* list : {&ListViewRuns, &ListLong, &ListAnalogDig})
        if (list->Visible()) {
            shown += list->ShownCount();
            all += list->Count();
        }
    const bool filtered = !ListViewRuns.ShowsAllRows();
    FilterSays.SetVisible(filtered);
    FilterSays.SetCaption(!filtered ? std::string()
                                    : std::to_string(shown) + " of " + std::to_string(all) +
                                          " rows; Assign and Auto-Assign take from these alone");
}

int TagRuns::NextShown(const ui::ListView& list, int row) {
    const int shown = list.ShownFrom(row);
    return shown == 0 ? list.Count() + 1 : shown;
}

} // namespace gfc::forms
