#include "binding/OnOffer.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"
#include "platform/Machine.h"
#include "services/modLocalTimeAndGMT.h"

namespace gfc::forms {

using enum binding::BindingStage;

void TagRuns::Continue() {
    if (!MayContinue())
        return;
    // Out of sight first, so that nothing is seen to flicker.
    TreeAGA.SetVisible(false);
    StoreTree();
    if (Stage() == RunInputs)
        StoreFields();
    UpdatePools();
    TreeAGA.Clear();
    Unload();
}

bool TagRuns::MayContinue() {
    if (Stage() == RunInputs && session_.Station.Measured && phostd.Text().empty()) {
        Tell("Missing parameter...",
             "Error: No gas standard density has been configured. Please enter a value.",
             ui::Icon::Exclamation);
        return false;
    }
    if (BoundVariables() == needed_.Total())
        return true;
    // The two accents differ on purpose.
    const bool flow = Stage() == RunInputs || Stage() == RunOutputs;
    Tell("Tags Configuration",
         flow ? "Can`t save. Please complete I/O assignments" : "Can´t save. Please complete I/O assignments",
         ui::Icon::Information);
    return false;
}

void TagRuns::StoreTree() {
    int position = 0;
    for (const auto& variable : Variables()) {
        if (IsBound(position))
            *variable.Binding = ShownBinding(position);
        ++position;
    }
}

void TagRuns::StoreFields() {
    config::RunIO* io = IO();
    if (io == nullptr)
        return;
    io->CalibrationFactor = Text1.Text();
    if (session_.Station.Measured)
        io->GasDensityStandard = phostd.Text();
    if (HasPulses())
        io->meterKFactor = kfactor.Text();
    const services::ListedTime entered{ListHour.ListIndex(), ListMinx10.ListIndex(), ListMinx1.ListIndex()};
    auto stored = services::StoreEnteredTime(program_.Machine.Clock, program_.Machine.TimeZone, entered,
                                             OptionLocal.Value());
    io->ContractHour = std::move(stored.ContractHour);
    io->ContractMin = std::move(stored.ContractMin);
}

void TagRuns::UpdatePools() {
    binding::LeaveOnOffer(Stage(), TagsInList(ListViewRuns), TagsInList(ListAnalogDig), session_.Inventory);
}

int TagRuns::ChosenSource() const {
    for (int run = 0; run < Option1.Size(); ++run)
        if (Option1[run].Value())
            return run;
    return -1;
}

// The lists are not touched: the same tags then stand in both runs.
void TagRuns::Copy() {
    const int source = ChosenSource();
    if (source < 0)
        return Tell("Copy Tag assignments",
                    "Error: Can't copy tag assignments, no source Run selected. Please select a Run to copy "
                    "from.",
                    ui::Icon::Exclamation);
    if (BoundVariables() != 0)
        return SaySomethingIsBound();
    const config::FileBatch oneRead(program_.Ini, configFilePath_);
    int position = 0;
    for (const auto& variable : Variables())
        ShowBinding(position++, BindingOfSource(*variable.Row, source));
}

// The wizard and the configurator hold the other runs in memory; else they are in the file, and the records
// in memory are left alone.
config::TagBinding TagRuns::BindingOfSource(const binding::VariableRow& row, int run) const {
    if (session_.EditMode == EditMode::Wizard || session_.EditMode == EditMode::Configurator) {
        const auto* held = binding::BindingOf(row, session_.Station, ElementOfActiveRun(run));
        return held == nullptr ? config::TagBinding{} : *held;
    }
    const std::string section = "Run" + std::to_string(run + 1);
    const auto read = [&](const std::string& key) {
        return program_.Ini.ReadKey(section, key, configFilePath_);
    };
    return {.Tag = read(row.TagKey()), .Type = read(row.TypeKey()), .RegAddr = read(row.AddressKey())};
}

} // namespace gfc::forms
