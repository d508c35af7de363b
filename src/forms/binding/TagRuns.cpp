#include "forms/binding/TagRuns.h"

#include "config/Vocabulary.h"
#include "forms/editors/NumericFields.h"
#include "forms/program/HelpFile.h"
#include "forms/program/Loss.h"
#include "forms/station/GiveBack.h"

namespace gfc::forms {

using binding::OfferList;
namespace node = binding::node;

TagRuns::TagRuns(Program& program) : ProgramForm(program, "TagRuns"), suggestions_(program) {
    Command1.OnClick = [this] { Do("Assign of " + NameOfSelected(), [this] { Assign(); }); };
    Command4.OnClick = [this] { Do("Undo Tag of " + NameOfSelected(), [this] { UndoTag(); }); };
    Command3.OnClick = borrartodo.OnClick = [this] { Do("Undo All", [this] { UndoAll(); }); };
    Command6.OnClick = AutoAsociar.OnClick = [this] { Do("Auto-Assign", [this] { AutoAssign(); }); };
    Command5.OnClick = [this] { Continue(); };
    Command2.OnClick = salirform.OnClick = [this] { Cancel(); };
    Command7.OnClick = [this] { Help(); };
    CopyGasCompButton.OnClick = [this] { Do("Copy", [this] { Copy(); }); };
    ConnectEdit();

    ListViewRuns.OnRowClick = [this](int row) { floatRow_ = row; };
    ListLong.OnRowClick = [this](int row) { longRow_ = row; };
    ListAnalogDig.OnRowClick = [this](int row) { analogDigRow_ = row; };
    TreeAGA.OnNodeClick = [this](int clicked) {
        selectedNode_ = clicked;
        ShowEditState();
    };
    Filter.OnEdited = [this] {
        filter_.SetWords(Filter.Text());
        ApplyFilter();
    };
    FilterKind.OnClick = [this] { ApplyFilter(); };

    // Only the keys are looked at: these three may hold any shape of number, and may stay empty.
    FilterKeys(Text1);
    FilterKeys(kfactor);
    FilterKeys(phostd);
    const auto station = [this] { return session_.Station; };
    TellExpected(Text1, "CalibrationFactor", station);
    TellExpected(kfactor, "meterKFactor", station);
    TellExpected(phostd, "GasDensityStandard", station);
    notes_.Follow({&Text1, &kfactor, &phostd});
}

bool TagRuns::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    Help();
    return true;
}

void TagRuns::Help() {
    const int context = TreeAGA.Count() == 0 ? 0 : binding::ContextOfRoot(TreeAGA.At(node::Root).Text);
    program_.Screen.OpenHelp(HelpFile, context);
}

void TagRuns::Tell(const std::string& title, const std::string& text, ui::Icon icon) {
    program_.Screen.Ask({.Title = title, .Text = text, .TheIcon = icon});
}

// The words are those of the automatic assignment, deliberately: they serve the copy too.
void TagRuns::SaySomethingIsBound() {
    Tell("Tags configuration",
         "In order to use the auto assign function, no tags should be already assigned. Please use Undo All "
         "first.",
         ui::Icon::Information);
}

void TagRuns::Cancel() {
    if (MayLose(program_, "Gas Flow Computer",
                "Are you sure you want to discard the changes made to the current configuration?",
                ui::Icon::Question)) {
        TellWhatStands();
        GiveBackFromTagRuns(program_);
    }
}

bool TagRuns::HasPulses() const {
    return session_.Station.FlowAlgorithm == config::algorithm::AGA7;
}

std::vector<binding::Variable> TagRuns::Variables() {
    return binding::VariablesOf(Stage(), session_.Station, session_.RunPosition);
}

config::RunIO* TagRuns::IO() {
    auto& records = session_.Station.Runs.IO;
    const auto element = static_cast<std::size_t>(session_.RunPosition);
    return session_.RunPosition >= 0 && element < records.size() ? &records[element] : nullptr;
}

ui::ListView& TagRuns::ListOf(OfferList list) {
    switch (list) {
    case OfferList::Float:
        return ListViewRuns;
    case OfferList::Long:
        return ListLong;
    case OfferList::AnalogDig:
        break;
    }
    return ListAnalogDig;
}

int& TagRuns::RowFieldOf(OfferList list) {
    switch (list) {
    case OfferList::Float:
        return floatRow_;
    case OfferList::Long:
        return longRow_;
    case OfferList::AnalogDig:
        break;
    }
    return analogDigRow_;
}

// Climbs to the variable below the root. A node's number alone says which one that is.
int TagRuns::SelectedPosition() const {
    return selectedNode_ > TreeAGA.Count() ? -1 : node::PositionOf(selectedNode_);
}

int TagRuns::VariablesShown() const {
    return (TreeAGA.Count() - node::Root) / node::PerVariable;
}

bool TagRuns::IsBound(int position) const {
    return position < VariablesShown() &&
           TreeAGA.At(node::AddressValue(position)).Text != binding::NotConfigured;
}

config::TagBinding TagRuns::ShownBinding(int position) const {
    return {.Tag = TreeAGA.At(node::NameValue(position)).Text,
            .Type = TreeAGA.At(node::TypeValue(position)).Text,
            .RegAddr = TreeAGA.At(node::AddressValue(position)).Text};
}

void TagRuns::ShowBinding(int position, const config::TagBinding& binding) {
    TreeAGA.SetText(node::AddressValue(position), binding.RegAddr);
    TreeAGA.SetText(node::TypeValue(position), binding.Type);
    TreeAGA.SetText(node::NameValue(position), binding.Tag);
    TreeAGA.SetImage(node::Variable(position), "Config");
}

void TagRuns::ShowUnbound(int position) {
    const std::string nothing(binding::NotConfigured);
    ShowBinding(position, {nothing, nothing, nothing});
    TreeAGA.SetImage(node::Variable(position), "NoConfig");
}

// Of those that the stage needs; a tree that holds more is not looked at behind them.
int TagRuns::BoundVariables() const {
    int bound = 0;
    for (int position = 0; position < needed_.Total(); ++position)
        bound += IsBound(position) ? 1 : 0;
    return bound;
}

} // namespace gfc::forms
