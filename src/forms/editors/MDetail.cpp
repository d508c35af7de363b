#include "forms/editors/MDetail.h"

#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "services/Funciones_III.h"

#include <algorithm>

namespace gfc::forms {

namespace {
constexpr int helpContext = 4000;

// Under which its fixed value is stored.
std::string KeyOf(config::GasSlot component) {
    for (const config::RunRow& row : config::RunRows())
        if (const auto* value = std::get_if<config::GasValue>(&row.Field);
            value != nullptr && value->Slot == component && row.Name.starts_with("GC_"))
            return std::string(row.Name);
    return {};
}

} // namespace

MDetail::MDetail(Program& program) : ProgramForm(program, "MDetail", "Gas Composition") {
    for (const auto& row : ComponentRows) {
        FilterKeys(Text[row.Number]);
        TellExpected(Text[row.Number], KeyOf(row.Slot), [this] { return session_.Station; });
        notes_.Follow({&Text[row.Number]});
        Text[row.Number].OnLostFocus = [this, &row] { CheckLeft(row); };
    }
    CopyGasCompButton.OnClick = [this] { Copy(); };
    Command1.OnClick = [this] { Accept(); };
    Command2.OnClick = [this] { UndoAll(); };
    Command3.OnClick = [this] { Cancel(); };
    HelpCompGas.OnClick = [this] { Help(); };
}

void MDetail::Load() {
    RemoveCloseCommand();
    session_.GasAccepted = false;
    lbPrompt.SetCaption("Enter/Edit the gas composition for Run " + std::to_string(session_.GasRun + 1));
    file_ = session_.ConfigFile();
    OfferGasSources(program_, file_, config::GasSlot::GC_C1, Option1, CopyGasCompButton);
    ShowComposition();
}

bool MDetail::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    Help();
    return true;
}

void MDetail::CheckLeft(const ComponentRow& row) {
    if (CheckShape(program_.Screen, FieldsOf(row.Shape)))
        CheckRange(program_.Screen, FieldsOf(row.Range), services::PercentMaximum, services::PercentRange);
}

CheckedFields MDetail::FieldsOf(const LeavingCheck& check) {
    return {Text[check.Tested], Text[check.Selected], Text[check.LengthOf]};
}

void MDetail::ShowComposition() {
    const auto& gas = session_.Station.GasComposition;
    // Without nitrogen nothing was entered, whatever the other values are.
    if (!gas[config::GasSlot::GC_N2].Tag.empty())
        return Show(gas);
    for (const auto& row : ComponentRows)
        Text[row.Number].SetText(row.Default);
    notes_.Refresh();
}

void MDetail::Show(const config::RunGas& gas) {
    for (const auto& row : ComponentRows)
        Text[row.Number].SetText(gas[row.Slot].Tag);
    notes_.Refresh();
}

config::RunGas MDetail::Entered() {
    config::RunGas gas;
    for (const auto& row : ComponentRows)
        gas[row.Slot].Tag = Text[row.Number].Text();
    return gas;
}

void MDetail::Accept() {
    const auto isEmpty = [this](const ComponentRow& row) { return Text[row.Number].Text().empty(); };
    if (std::ranges::any_of(ComponentRows, isEmpty))
        return RefuseIncompleteGas(program_.Screen);
    // Deliberately without a test of the sum: a composition is accepted whatever its total.
    for (const auto& row : ComponentRows)
        session_.Station.GasComposition[row.Slot].Tag = Text[row.Number].Text();
    session_.GasAccepted = true;
    Unload();
}

void MDetail::UndoAll() {
    for (const auto& row : ComponentRows)
        Text[row.Number].SetText({});
    notes_.Refresh();
}

void MDetail::Cancel() {
    CancelEditor(program_, *this, "Orm Gas Flow Computer",
                 "Are you sure  you to want to cancel?. All changes will be lost");
}

void MDetail::Copy() {
    const int run = ChosenSource(Option1);
    if (run < 0)
        return RefuseCopyWithoutSource(program_.Screen, "Copy Gas Composition", "gas composition");
    if (!GasSourcesAreInFile(session_)) {
        if (const auto* gas = GasInMemory(session_, run); gas != nullptr)
            Show(*gas);
        return;
    }
    // Replaces GasComposition at once: a later cancel does not bring it back.
    config::LoadFixedComposition(program_.Ini, session_.Station, file_, run + 1);
    ShowComposition();
}

void MDetail::Help() {
    OpenEditorHelp(program_.Screen, HelpCompGas, helpContext);
}

} // namespace gfc::forms
