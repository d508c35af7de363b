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

void TagRuns::FilterList(OfferList offer) {
    ui::ListView& list = ListOf(offer);
    int& clicked = RowFieldOf(offer);
    const int kind = FilterKind.ListIndex();
    if (!filter_.HasWords() && kind <= All) {
        // A field that a filter has sent past the end comes back with the rows.
        if (!list.ShowsAllRows() && clicked > list.Count())
            clicked = 1;
        return list.ShowAllRows();
    }
    std::vector<int> rows = filter_.RowsOf(list, [this, &list](int row) {
        const auto* tag =
            suggestions_.TagAt(list.Cell(row, tag_column::Type), list.Cell(row, tag_column::Register));
        return tag == nullptr ? std::string() : std::string(tag->ModuleName);
    });
    std::vector<config::TagBinding> suggested;
    for (int position = 0; kind == Suggested && position < VariablesShown(); ++position)
        if (IsOffered(position))
            suggested.push_back(suggestions_.At(position)->Binding);
    const auto isSuggested = [&suggested](const config::TagBinding& tag) {
        return std::ranges::any_of(suggested, [&tag](const config::TagBinding& each) {
            return each.RegAddr == tag.RegAddr && each.Type == tag.Type;
        });
    };
    if (kind > All)
        std::erase_if(rows, [&](int row) {
            const auto tag = BindingInRow(list, row);
            return kind == Free ? suggestions_.IsBoundElsewhere(tag) : !isSuggested(tag);
        });
    list.ShowRows(std::move(rows));
    // A row that is out of sight is not the one that the next Assign takes.
    const int next = list.ShownFrom(clicked);
    const int first = list.RowAtPlace(1);
    clicked = next != 0 ? next : first != 0 ? first : list.Count() + 1;
}

int TagRuns::NextShown(const ui::ListView& list, int row) {
    const int shown = list.ShownFrom(row);
    return shown == 0 ? list.Count() + 1 : shown;
}

std::string TagRuns::HintOf(const ui::ListView& list, int row) const {
    const auto* tag =
        suggestions_.TagAt(list.Cell(row, tag_column::Type), list.Cell(row, tag_column::Register));
    const std::string module = tag == nullptr ? std::string() : std::string(tag->ModuleName);
    std::string hint = list.Cell(row, tag_column::Name) + ": " + list.Cell(row, tag_column::Type) + " " +
                       list.Cell(row, tag_column::Register);
    return module.empty() ? hint : hint + ", module " + module;
}

} // namespace gfc::forms
