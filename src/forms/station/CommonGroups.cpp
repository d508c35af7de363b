#include "forms/station/CommonGroups.h"

#include "forms/station/CommonStore.h"
#include "forms/station/ModuleLists.h"

namespace gfc::forms {

namespace {

// Entries of the lists.
constexpr int AGA7 = 1;
constexpr int Accelabar = 2;
constexpr int Densimeter = 0;

} // namespace

GeneralGroup::GeneralGroup(ui::Place page) : Frame1(page, "Frame1", "GENERAL") {}

bool GeneralGroup::ShowsAGA7() const {
    return CombStandard.ListIndex() == AGA7;
}

bool GeneralGroup::ShowsAccelabar() const {
    return CombStandard.ListIndex() == Accelabar;
}

bool GeneralGroup::ShowsDensimeter() const {
    return cbSourceGas.ListIndex() == Densimeter;
}

GateChoices GeneralGroup::Choices() const {
    return {ShowsAGA7(), cbSourceGas.ListIndex()};
}

TracesGroup::TracesGroup(ui::Place page, std::string deviceName, std::string numberName)
    : Frame2(page, "Frame2", "DEBUGGING OUTPUT"), Device(Frame2, std::move(deviceName)),
      Number(Frame2, std::move(numberName)) {
    Check1.OnClick = [this] { Refresh(); };
}

void TracesGroup::Refresh() {
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&LabelDevice, &Device, &LabelNumTrace, &Number})
        control->SetEnabled(Check1.Value());
}

void TracesGroup::Store(config::StationConfig& station) const {
    StoreTraces(station, Check1.Value(), Device.Text(), Number.Text());
}

ModulesGroup::ModulesGroup(ui::Place page) : Frame9(page, "Frame9", "DATALOG WORKING MODULES") {}

void ModulesGroup::Fill(const project::WorkingModuleCandidates& candidates) {
    FillModuleNames(Combo1, candidates.AnalogCandidates);
    FillModuleNames(Combo2, candidates.LongCandidates);
    FillModuleNames(Combo3, candidates.FloatCandidates);
}

void ModulesGroup::SelectFirst() {
    for (ui::DropDownList* list : {&Combo1, &Combo2, &Combo3})
        list->SetListIndex(0);
}

void ModulesGroup::SetListsEnabled(bool enabled) {
    for (ui::DropDownList* list : {&Combo1, &Combo2, &Combo3})
        list->SetEnabled(enabled);
}

project::WorkingModuleNames ModulesGroup::Chosen(const config::WorkingModules& stored) const {
    const auto chosen = [](const ui::DropDownList& list, const std::string& unlisted) {
        return list.ListIndex() == ui::DropDownList::None ? unlisted : list.Text();
    };
    return {chosen(Combo1, stored.WrkAnalogModName), chosen(Combo2, stored.WrkIntLongModName),
            chosen(Combo3, stored.WrkFloatModName)};
}

void ModulesGroup::Store(config::WorkingModules& working, const project::TagInventory& inventory) const {
    const auto names = Chosen(working);
    working.WrkAnalogModName = names.Analog;
    working.WrkIntLongModName = names.Long;
    working.WrkFloatModName = names.Float;
    project::ResolveWorkingModuleRegisters(inventory, names, working);
}

PressureGroup::PressureGroup(ui::Place page, std::string sourceFrameName)
    : FrameAtmPress(page, "FrameAtmPress", "PRESSURE MEASUREMENT"),
      FrameAtmPressSource(FrameAtmPress, std::move(sourceFrameName), "Atmospheric pressure source") {}

void PressureGroup::EnableFixed(bool enabled) {
    for (ui::Control* control : std::initializer_list<ui::Control*>{&LbAtmPress, &txtAtmPress, &unitAtmPress})
        control->SetEnabled(enabled);
}

void PressureGroup::EnableSources(bool enabled) {
    OptAtmPressFixed.SetEnabled(enabled);
    OptAtmPressExt.SetEnabled(enabled);
}

bool PressureGroup::IsExternal() const {
    return OptGagePress.Value() && OptAtmPressExt.Value();
}

void PressureGroup::Store(config::StationConfig& station) const {
    StorePressure(station, OptGagePress.Value(), OptAtmPressExt.Value(), txtAtmPress.Text());
}

} // namespace gfc::forms
