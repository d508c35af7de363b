#include "binding/OnOffer.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"
#include "platform/Machine.h"
#include "services/Text.h"
#include "services/modLocalTimeAndGMT.h"

namespace gfc::forms {

using binding::TagClass;
using enum binding::BindingStage;
namespace node = binding::node;
namespace algorithm = config::algorithm;

namespace {

void AddNumbers(ui::DropDownList& list, int count) {
    list.Clear();
    for (int number = 0; number < count; ++number)
        list.AddEntry(std::to_string(number));
}

std::string_view RootImage(binding::BindingStage stage) {
    switch (stage) {
    case RunInputs:
    case RunOutputs:
        return "AGA_3";
    case CommonInputs:
        return "Commom_Inputs";
    default:
        return "AGA_8";
    }
}

std::string_view InputsCaption(std::string_view flowAlgorithm) {
    if (flowAlgorithm == algorithm::SYT6143)
        return "Configuring the SYT6143-2004 Input Tags for Run";
    return flowAlgorithm == algorithm::AGA7 ? "Configuring the AGA-7 Input Tags for Run"
                                            : "Configuring the AGA-3 Input Tags for Run";
}

// AGA-7 shares the words of AGA 3 here, deliberately.
std::string_view OutputsCaption(std::string_view flowAlgorithm) {
    return flowAlgorithm == algorithm::SYT6143 ? "Configuring the Output Tags SYT6143-2004 for Run"
                                               : "Configuring the Output Tags AGA 3 for Run";
}

std::string_view StageCaption(binding::BindingStage stage, const config::StationConfig& station) {
    const bool detail = config::IsDetail(station.GasDensitySource);
    switch (stage) {
    case RunInputs:
        return InputsCaption(station.FlowAlgorithm);
    case RunOutputs:
        return OutputsCaption(station.FlowAlgorithm);
    case GasOutputs:
        return detail ? "Configuring the Output Tags AGA 8/ISO-12213-2-1997 for Run"
                      : "Configuring the Output Tags SGERG 88/ISO-12213-3-1997 for Run";
    case GasInputs:
        return detail ? "Configuring the AGA-8/ISO-12213-2-1997 Gas Composition Input Tags for Run"
                      : "Configuring the SGERG-88/ISO-12213-3-1997 Gas Properties Input Tags for Run";
    default:
        return "Configuring input I/O assignments common to all Runs...";
    }
}

bool IsUSUnits(std::string_view systemUnits) {
    return systemUnits == config::units::US || systemUnits == config::units::USdegC;
}

} // namespace

void TagRuns::Load() {
    RemoveCloseCommand();
    configFilePath_ = session_.ConfigFile();
    ShowCopySources();
    for (const char* kind : {"All", "Free", "Suggested"})
        FilterKind.AddEntry(kind);
    FilterKind.SetListIndex(0);
    PrepareStage();
    ShowRowFields();
    if (leftIn_)
        GoOn(*leftIn_);
    history_.Clear();
    suggestions_.Forget();
    filter_.Forget();
    ShowNotes();
}

void TagRuns::ShowCopySources() {
    const config::FileBatch oneRead(program_.Ini, configFilePath_);
    CopyGasCompButton.SetEnabled(false);
    for (int run = 0; run < config::MaxRuns; ++run) {
        const bool source = IsCopySource(run);
        Option1[run].SetVisible(source);
        if (source)
            CopyGasCompButton.SetEnabled(true);
    }
}

// In the wizard and the configurator a run that has its gas data bound in memory; else a run that is enabled
// in the file.
bool TagRuns::IsCopySource(int run) const {
    const auto& station = session_.Station;
    if (run == session_.RunNumber)
        return false;
    if (session_.EditMode != EditMode::Wizard && session_.EditMode != EditMode::Configurator)
        return services::EqualNoCase(
            program_.Ini.ReadKey("FlowRuns", "Run" + std::to_string(run + 1), configFilePath_), config::Yes);
    const int element = ElementOfActiveRun(run);
    if (element < 0 || !config::IsGasModel(station.GasDensitySource))
        return false;
    const bool detail = config::IsDetail(station.GasDensitySource);
    const auto slot = detail ? config::GasSlot::GC_C1 : config::GasSlot::VolCalorificValue;
    return station.Runs.Gas[static_cast<std::size_t>(element)][slot].IsMade();
}

int TagRuns::ElementOfActiveRun(int run) const {
    const auto& station = session_.Station;
    const auto active = [&station](int i) { return config::IsRunActive(station, i); };
    int element = 0;
    for (int i = 0; i < run; ++i)
        element += active(i) ? 1 : 0;
    const bool there = active(run) && static_cast<std::size_t>(element) < station.Runs.Gas.size();
    return there ? element : -1;
}

void TagRuns::PrepareStage() {
    needed_ = binding::NeededTags(Stage(), session_.Station, session_.RunPosition);
    floatRow_ = analogDigRow_ = longRow_ = 1;
    std::string caption(StageCaption(Stage(), session_.Station));
    if (Stage() != CommonInputs)
        caption += " " + std::to_string(session_.RunNumber + 1);
    SetCaption(std::move(caption));

    HideStageParts();
    FillLists();
    if (Stage() == RunInputs)
        ShowRunInputs();
    if (Stage() == GasInputs) {
        FrameCopy.SetVisible(true);
        Command1.SetEnabled(false);
        Command4.SetEnabled(false);
    }
    TreAGA_3_8();
    if (Stage() == RunInputs) {
        ShowFactors();
        ShowContractTime();
    }
    if (needed_.Total() < 2) {
        Command3.SetVisible(false);
        Command6.SetVisible(false);
    }
}

void TagRuns::HideStageParts() {
    ui::Control* const parts[] = {&Frame1, &Label2,      &Text1,     &lbkfactor, &kfactor,   &ukfactor,
                                  &Frame2, &OptionLocal, &OptionGMT, &Frphostd,  &FrameCopy, &ListLong};
    for (ui::Control* part : parts)
        part->SetVisible(false);
}

void TagRuns::FillLists() {
    auto& pools = session_.Inventory;
    HeadTagList(ListViewRuns, binding::ListHeading(TagClass::Float));
    FillTagList(ListViewRuns, pools.AvailFloat, 0);
    HeadTagList(ListLong, binding::ListHeading(TagClass::Long));
    FillTagList(ListLong, pools.AvailLong, 0);
    ListLong.SetVisible(Stage() == RunInputs && HasPulses());

    const bool outputs = binding::OffersAnalog(Stage());
    HeadTagList(ListAnalogDig, binding::ListHeading(outputs ? TagClass::Analog : TagClass::Digital));
    ListAnalogDig.SetVisible(Stage() != CommonInputs);
    if (Stage() != CommonInputs)
        FillTagList(ListAnalogDig, outputs ? pools.AvailAnalog : pools.AvailDigital, 0);
}

void TagRuns::ShowRunInputs() {
    ui::Control* const shown[] = {&Frame1, &Label2, &Text1, &Frame2, &OptionLocal, &OptionGMT};
    for (ui::Control* control : shown)
        control->SetVisible(true);
    Frphostd.SetVisible(session_.Station.Measured);
    for (ui::Control* control : {static_cast<ui::Control*>(&lbkfactor), static_cast<ui::Control*>(&kfactor),
                                 static_cast<ui::Control*>(&ukfactor)})
        control->SetVisible(HasPulses());
    Frame1.SetCaption(HasPulses() ? "Inputs" : "Flow Factors");
}

void TagRuns::TreAGA_3_8() {
    TreeAGA.Clear();
    const std::string root(binding::RootCaption(Stage(), session_.Station));
    TreeAGA.Add(0, root, root, std::string(RootImage(Stage())));
    for (const auto& variable : Variables())
        AddVariable(variable);
    TreeAGA.SetImage(node::Root, "Principal");
    TreeAGA.SetExpanded(node::Root, true);
    // A rebuild leaves the person's choice where it was.
    if (selectedNode_ <= TreeAGA.Count())
        TreeAGA.Select(selectedNode_);
}

// The order of these nodes is the numbering of binding::node.
void TagRuns::AddVariable(const binding::Variable& variable) {
    const std::string caption(variable.Caption());
    const auto& bound = *variable.Binding;
    const bool made = bound.IsMade();
    const auto value = [made](const std::string& text) {
        return made ? text : std::string(binding::NotConfigured);
    };
    const int top = TreeAGA.Add(node::Root, caption, caption, made ? "Config" : "NoConfig");
    const int address = TreeAGA.Add(top, "Addr" + caption, "Addr", "Tag");
    const int type = TreeAGA.Add(top, "Type" + caption, "Type", "Tag");
    const int name = TreeAGA.Add(top, "Name" + caption, "Name", "Tag");
    TreeAGA.Add(address, "AddrVal" + caption, value(bound.RegAddr), "Tag2");
    TreeAGA.Add(type, "TypeVal" + caption, value(bound.Type), "Tag2");
    TreeAGA.Add(name, "NameVal" + caption, value(bound.Tag), "Tag2");
}

void TagRuns::ShowFactors() {
    const auto& station = session_.Station;
    const config::RunIO* io = IO();
    const auto show = [](ui::TextBox& field, const std::string* stored, const char* initial) {
        field.SetText(stored == nullptr || stored->empty() ? initial : *stored);
    };
    show(Text1, io == nullptr ? nullptr : &io->CalibrationFactor, "1.0");
    if (station.Measured)
        show(phostd, io == nullptr ? nullptr : &io->GasDensityStandard, "");
    if (HasPulses())
        show(kfactor, io == nullptr ? nullptr : &io->meterKFactor, "1.0");
    const bool us = IsUSUnits(station.SystemUnits);
    uphostd.SetCaption(us ? "lbm/ft^3" : "kg/m^3");
    ukfactor.SetCaption(us ? "pulses/ft^3" : "pulses/m^3");
}

// Stored in GMT, shown in local time; the present time where none is stored.
void TagRuns::ShowContractTime() {
    AddNumbers(ListHour, 24);
    AddNumbers(ListMinx10, 6);
    AddNumbers(ListMinx1, 10);
    services::ContractTime stored;
    if (const config::RunIO* io = IO())
        stored = {io->ContractHour, io->ContractMin};
    const auto shown = services::ShowStoredTime(program_.Machine.Clock, program_.Machine.TimeZone, stored);
    OptionLocal.SetValue(true);
    ListHour.SetListIndex(shown.ListHour);
    ListMinx10.SetListIndex(shown.ListMinx10);
    ListMinx1.SetListIndex(shown.ListMinx1);
}

} // namespace gfc::forms
