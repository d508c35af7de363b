#include "config/Vocabulary.h"
#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

using binding::OfferList;
using suggest::Confidence;
namespace node = binding::node;

namespace {

int RowWith(const ui::ListView& list, const config::TagBinding& tag) {
    for (int row = 1; row <= list.Count(); ++row)
        if (list.Cell(row, tag_column::Register) == tag.RegAddr &&
            list.Cell(row, tag_column::Type) == tag.Type)
            return row;
    return 0;
}

std::string Counted(int count, const std::string& what) {
    return std::to_string(count) + " " + what;
}

} // namespace

void TagRuns::ConnectEdit() {
    SuggestTags.OnClick = sugerir.OnClick = [this] { Suggest(); };
    TakeSure.OnClick = tomarSeguras.OnClick = [this] { Do("Take All Sure", [this] { TakeAllSure(); }); };
    tomar.OnClick = [this] { Do("Take of " + NameOfSelected(), [this] { TakeSuggestion(); }); };
    soltar.OnClick = [this] { Do("Take Back of " + NameOfSelected(), [this] { TakeBack(); }); };
    repuestos.OnClick = [this] { OfferSpares(); };
    deshacer.OnClick = [this] { UndoLast(); };
    rehacer.OnClick = [this] { RedoLast(); };
    buscar.OnClick = [this] { Filter.SetFocus(); };
    dondeSeUsa.OnClick = [this] { ShowWhereUsed(); };
    edicion.OnClick = [this] { ShowEditState(); };
    TreeAGA.OnMouseDown = [this](ui::MouseButton button) {
        if (button == ui::MouseButton::Right) {
            menuList_ = nullptr;
            OpenMenu();
        }
    };
    for (ui::ListView* list : {&ListViewRuns, &ListLong, &ListAnalogDig}) {
        list->HintOf = [this, list](int row) { return HintOf(*list, row); };
        list->OnMenu = [this, list](int) {
            menuList_ = list;
            OpenMenu();
        };
    }
    deshacer.SetShortcut("Ctrl+Z");
    rehacer.SetShortcut("Ctrl+Shift+Z");
    sugerir.SetShortcut("Ctrl+G");
    tomar.SetShortcut("Ctrl+T");
    tomarSeguras.SetShortcut("Ctrl+Shift+T");
    soltar.SetShortcut("Ctrl+Backspace");
    buscar.SetShortcut("Ctrl+L");
    dondeSeUsa.SetShortcut("Ctrl+U");
    TreeAGA.HaveNotes();
}

void TagRuns::OpenMenu() {
    ShowEditState();
    program_.Screen.PopUp(edicion);
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
    list.RemoveRows(row, 1);
    list.Renumber();
    int& clicked = RowFieldOf(offer);
    if (clicked > row)
        --clicked;
    ShowRowFields();
}

// What another run or stage binds does not come back to the list.
void TagRuns::Release(int position) {
    ui::ListView& list = ListOf(binding::OfferListOf(position, needed_));
    const config::TagBinding bound = ShownBinding(position);
    ShowUnbound(position);
    if (suggestions_.IsBoundElsewhere(bound))
        return;
    PutBack(list, bound);
    list.Renumber();
    ShowRowFields();
}

void TagRuns::ShowNotes() {
    for (int position = 0; position < VariablesShown(); ++position)
        ShowNote(position);
    ShowProgress();
    ShowMissing();
    ShowEditState();
    ApplyFilter();
}

void TagRuns::ShowNote(int position) {
    const int at = node::Variable(position);
    if (IsBound(position))
        return TreeAGA.SetNote(at, ShownBinding(position).Tag, {});
    if (!IsOffered(position)) {
        const auto* none = suggestions_.At(position);
        return TreeAGA.SetNote(at, {}, none == nullptr ? std::string() : none->Reason);
    }
    const auto& suggestion = *suggestions_.At(position);
    const bool sure = suggestion.Confidence == Confidence::High;
    TreeAGA.SetNote(at, suggestion.Binding.Tag + (sure ? " ? (sure)" : " ? (fair)"), suggestion.Reason,
                    sure ? ui::Colour::Green : ui::Colour::Blue);
}

void TagRuns::ShowProgress() {
    const auto& station = session_.Station;
    std::string text = "Station " + station.CurrentStation;
    if (Stage() != BindingStage::CommonInputs)
        text += ", run " + std::to_string(session_.RunNumber + 1);
    const auto standard = config::AlgorithmIndex(station.FlowAlgorithm);
    text += ", " + std::string(config::FlowAlgorithms[static_cast<std::size_t>(standard)].InConfigurador);
    if (const int source = config::SourceIndex(station.GasDensitySource); source >= 0)
        text +=
            ", " + std::string(config::GasDensitySources[static_cast<std::size_t>(source)].InConfigurador);
    text += ": " + std::to_string(BoundVariables()) + " of " + std::to_string(needed_.Total()) + " bound";
    int offered = 0;
    int sure = 0;
    for (int position = 0; position < VariablesShown(); ++position)
        if (IsOffered(position)) {
            ++offered;
            sure += suggestions_.At(position)->Confidence == Confidence::High ? 1 : 0;
        }
    if (suggestions_.WereAsked())
        text += ", " + Counted(offered, "suggested") + ", " + Counted(sure, "of them sure");
    Progress.SetCaption(std::move(text));
}

// Continue wants all of them, so what has no tag is said before.
void TagRuns::ShowMissing() {
    std::string names;
    int missing = 0;
    for (int position = 0; suggestions_.WereAsked() && position < VariablesShown(); ++position)
        if (!IsBound(position) && !IsOffered(position)) {
            names += (missing++ == 0 ? "" : ", ") + TreeAGA.At(node::Variable(position)).Text;
        }
    Missing.SetVisible(missing > 0);
    Missing.SetCaption(missing == 0
                           ? std::string()
                           : names + ": no tag; Continue will ask for " + (missing == 1 ? "one" : "them"));
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
    if (menuList_ != nullptr && menuList_->SelectedRow() > 0)
        tag = BindingInRow(*menuList_, menuList_->SelectedRow());
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
