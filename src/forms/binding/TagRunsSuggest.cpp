#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

using binding::OfferList;
using suggest::Confidence;
namespace node = binding::node;

void TagRuns::ConnectEdit() {
    SuggestTags.OnClick = sugerir.OnClick = [this] { Suggest(); };
    TakeSure.OnClick = tomarSeguras.OnClick = [this] { Do("Take All Sure", [this] { TakeAllSure(); }); };
    tomar.OnClick = [this] { Do("Take of " + NameOfSelected(), [this] { TakeSuggestion(); }); };
    soltar.OnClick = [this] { Do("Take Back of " + NameOfSelected(), [this] { TakeBack(); }); };
    atar.OnClick = [this] { Do("Bind of " + NameOfSelected(), [this] { BindChosen(); }); };
    repuestos.OnClick = [this] { OfferSpares(); };
    deshacer.OnClick = [this] { UndoLast(); };
    rehacer.OnClick = [this] { RedoLast(); };
    buscar.OnClick = [this] { Filter.SetFocus(); };
    dondeSeUsa.OnClick = [this] { ShowWhereUsed(); };
    edicion.OnClick = [this] { ShowEditState(); };
    TreeAGA.HaveNotes();
    ConnectMenus();
    ConnectDragging();
    GiveKeys();
}

void TagRuns::ConnectMenus() {
    const auto open = [this] {
        ShowEditState();
        program_.Screen.PopUp(edicion);
    };
    TreeAGA.OnMouseDown = [open](ui::MouseButton button) {
        if (button == ui::MouseButton::Right)
            open();
    };
    for (ui::ListView* list : {&ListViewRuns, &ListLong, &ListAnalogDig}) {
        list->HintOf = [this, list](int row) { return HintOfRow(*list, row); };
        list->OnMenu = [open](int) { open(); };
    }
}

void TagRuns::GiveKeys() {
    const std::pair<ui::MenuEntry&, const char*> keys[] = {
        {deshacer, "Ctrl+Z"},       {rehacer, "Ctrl+Shift+Z"}, {sugerir, "Ctrl+G"},
        {tomar, "Ctrl+T"},          {atar, "Ctrl+B"},          {tomarSeguras, "Ctrl+Shift+T"},
        {soltar, "Ctrl+Backspace"}, {buscar, "Ctrl+L"},        {dondeSeUsa, "Ctrl+U"},
    };
    for (const auto& [entry, key] : keys)
        entry.SetShortcut(key);
}

std::vector<config::TagBinding> TagRuns::ShownBindings() const {
    std::vector<config::TagBinding> shown;
    for (int position = 0; position < VariablesShown(); ++position)
        shown.push_back(ShownBinding(position));
    return shown;
}

std::string TagRuns::NameOfSelected() const {
    const int position = SelectedPosition();
    return position < 0 || position >= VariablesShown() ? std::string()
                                                        : TreeAGA.At(node::Variable(position)).Text;
}

// Of a suggestion whose tag has been bound meanwhile nothing is to be seen; it comes back when that is
// undone.
bool TagRuns::IsOffered(int position) const {
    const auto* suggestion = suggestions_.At(position);
    if (suggestion == nullptr || suggestion->Confidence == Confidence::None || IsBound(position))
        return false;
    for (int other = 0; other < VariablesShown(); ++other)
        if (const auto shown = ShownBinding(other);
            shown.RegAddr == suggestion->Binding.RegAddr && shown.Type == suggestion->Binding.Type)
            return false;
    return true;
}

// Nothing is bound by it.
void TagRuns::Suggest() {
    program_.Screen.Busy([this] { suggestions_.Ask(ShownBindings()); });
    ShowNotes();
}

void TagRuns::OfferSpares() {
    bool found = false;
    program_.Screen.Busy([this, &found] { found = suggestions_.AskForSpares(ShownBindings()); });
    ShowNotes();
    if (!found)
        Tell("Suggest", "There are no spare registers for the variables without a tag.",
             ui::Icon::Information);
}

void TagRuns::TakeSuggestion() {
    const int position = SelectedPosition();
    if (position >= 0 && IsOffered(position))
        Bind(position, suggestions_.At(position)->Binding);
}

void TagRuns::TakeAllSure() {
    for (int position = 0; position < VariablesShown(); ++position)
        if (IsOffered(position) && suggestions_.At(position)->Confidence == Confidence::High)
            Bind(position, suggestions_.At(position)->Binding);
}

// The row that Assign would take: in the stage of the composition, too, where Assign is disabled.
void TagRuns::BindChosen() {
    const int position = SelectedPosition();
    if (!MayBindChosen(position))
        return;
    const OfferList offer = binding::OfferListOf(position, needed_);
    Bind(position, BindingInRow(ListOf(offer), NextShown(ListOf(offer), RowFieldOf(offer))));
}

bool TagRuns::MayBindChosen(int position) {
    if (position < 0 || position >= VariablesShown() || IsBound(position))
        return false;
    const OfferList offer = binding::OfferListOf(position, needed_);
    return NextShown(ListOf(offer), RowFieldOf(offer)) <= ListOf(offer).Count();
}

// Also in the stage of the composition, where Undo Tag is disabled.
void TagRuns::TakeBack() {
    const int position = SelectedPosition();
    if (position >= 0 && IsBound(position))
        Release(position);
}

void TagRuns::Bind(int position, const config::TagBinding& binding) {
    const OfferList offer = binding::OfferListOf(position, needed_);
    ui::ListView& list = ListOf(offer);
    ShowBinding(position, binding);
    // A tag that is copied from another run stands in no list.
    const int row = RowWith(list, binding);
    if (row == 0)
        return;
    TakeRow(offer, row);
    list.Renumber();
    int& clicked = RowFieldOf(offer);
    if (clicked > row)
        --clicked;
    ShowRowFields();
}

// What another run or stage binds does not come back to the list.
void TagRuns::Release(int position) {
    const OfferList offer = binding::OfferListOf(position, needed_);
    const config::TagBinding bound = ShownBinding(position);
    ShowUnbound(position);
    if (suggestions_.IsBoundElsewhere(bound.Type, bound.RegAddr))
        return;
    PutBack(offer, bound);
    ListOf(offer).Renumber();
    ShowRowFields();
}

void TagRuns::ShowEditState() {
    const auto name = [](ui::MenuEntry& entry, const std::string& act, const std::string& what) {
        entry.SetCaption(what.empty() ? act : act + " " + what);
        entry.SetEnabled(!what.empty());
    };
    name(deshacer, "&Undo", history_.ToUndo());
    name(rehacer, "&Redo", history_.ToRedo());
    const int position = SelectedPosition();
    const bool variable = position >= 0 && position < VariablesShown();
    tomar.SetEnabled(variable && IsOffered(position));
    atar.SetEnabled(MayBindChosen(position));
    soltar.SetEnabled(variable && IsBound(position));
    bool sure = false;
    for (int each = 0; each < VariablesShown(); ++each)
        sure = sure || (IsOffered(each) && suggestions_.At(each)->Confidence == Confidence::High);
    TakeSure.SetEnabled(sure);
    tomarSeguras.SetEnabled(sure);
    repuestos.SetEnabled(BoundVariables() < needed_.Total());
}

void TagRuns::ShowWhereUsed() {
    config::TagBinding tag;
    const int position = SelectedPosition();
    // Of a list in which a person stands the row is meant.
    const auto* list = dynamic_cast<const ui::ListView*>(FocusedControl());
    if (list != nullptr && list->SelectedRow() > 0)
        tag = BindingInRow(*list, list->SelectedRow());
    else if (position >= 0 && IsBound(position))
        tag = ShownBinding(position);
    else if (position >= 0 && IsOffered(position))
        tag = suggestions_.At(position)->Binding;
    else
        return;
    const auto places = suggestions_.PlacesOf(tag, ShownBindings());
    std::string text = tag.Tag + (places.empty() ? " is not used in this project." : " is used by");
    for (const std::string& place : places)
        text += "\r\n" + place;
    Tell("Where Used", text, ui::Icon::Information);
}

} // namespace gfc::forms
