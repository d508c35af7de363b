#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

namespace gfc::forms {

using binding::OfferList;
namespace node = binding::node;

namespace {

// A tag without a name is known by its register; empty for a row that is no tag.
std::string NameInRow(const ui::ListView& list, int row) {
    if (row == 0)
        return {};
    const std::string& name = list.Cell(row, tag_column::Name);
    return name.empty() ? list.Cell(row, tag_column::Register) : name;
}

} // namespace

// A tag goes from its list onto a variable, and a bound one from its variable back to its list.
void TagRuns::ConnectDragging() {
    for (const OfferList offer : {OfferList::Float, OfferList::Long, OfferList::AnalogDig}) {
        ui::ListView& list = ListOf(offer);
        list.Dragged = [&list] { return NameInRow(list, list.SelectedRow()); };
        list.DropsOn = [this, offer](const ui::DragPlace& from, int) {
            const int position = SelectedPosition();
            const bool belongs = &from == &TreeAGA && binding::OfferListOf(position, needed_) == offer;
            return belongs ? std::string("free") : std::string();
        };
        list.OnDrop = [this](const ui::DragPlace&, int) {
            Do("Drag Back of " + NameOfSelected(), [this] { TakeBack(); });
        };
    }
    TreeAGA.Dragged = [this] {
        const int position = SelectedPosition();
        return position >= 0 && IsBound(position) ? ShownBinding(position).Tag : std::string();
    };
    TreeAGA.DropsOn = [this](const ui::DragPlace& from, int item) {
        const int position = node::PositionOf(item);
        const bool takes = position >= 0 && position < VariablesShown() && !IsBound(position) &&
                           &from == &ListOf(binding::OfferListOf(position, needed_));
        return takes ? TreeAGA.At(node::Variable(position)).Text : std::string();
    };
    TreeAGA.OnDrop = [this](const ui::DragPlace& from, int item) { DropOnto(node::PositionOf(item), from); };
}

// The variable is selected afterwards, so that what is done next is done to it.
void TagRuns::DropOnto(int position, const ui::DragPlace& from) {
    const ui::ListView& list = ListOf(binding::OfferListOf(position, needed_));
    if (&from != &list)
        return;
    selectedNode_ = node::Variable(position);
    TreeAGA.Select(selectedNode_);
    Do("Drag onto " + NameOfSelected(), [&] { Bind(position, BindingInRow(list, list.SelectedRow())); });
}

} // namespace gfc::forms
