#include "forms/editors/FrParMec.h"

#include "config/Vocabulary.h"
#include "forms/editors/MechanicalTables.h"
#include "forms/editors/NumericFields.h"
#include "services/Text.h"

#include <algorithm>
#include <array>

namespace gfc::forms {

namespace {

using Form = FrParMec;
using Record = config::RunMechanical;
using System = MechanicalSystem;

// A field that must not stay empty, and what it shows where nothing was entered yet.
struct Entry {
    ui::TextBox Form::*Field;
    std::string Record::*Member;
    std::string_view System::*Default; // by the button
    std::string_view System::*AtLoad;
};

// clang-format off
constexpr std::array<Entry, 4> entries{{
    {&Form::txtDiaOrif,     &Record::OrificeDia,              &System::OrificeDia, &System::OrificeDiaAtLoad},
    {&Form::txtDiaPipe,     &Record::InternalPipeDia,         &System::PipeDia,    &System::PipeDiaAtLoad},
    {&Form::txtTempRefOrif, &Record::OrificeDiaRefTemp,       &System::RefTemp,    &System::RefTemp},
    {&Form::txtTempRefPipe, &Record::InternalPipeDiaRefTemp,  &System::RefTemp,    &System::RefTemp},
}};
// clang-format on

constexpr int defaultOrificeMaterial = 1; // stainless steel
constexpr int defaultPipeMaterial = 0;    // carbon steel
constexpr int otherOrificeMaterial = static_cast<int>(OrificeMaterials.size()) - 1;
constexpr int otherPipeMaterial = static_cast<int>(PipeMaterials.size()) - 1;
constexpr int helpContext = 5100;

void Fill(ui::DropDownList& list, std::span<const Material> materials) {
    list.Clear();
    for (const auto& material : materials)
        list.AddEntry(std::string(material.Shown));
}

// The coefficient of a named material is known to the station: a person gives one for "Other" alone. The text
// stays.
void AllowCoefficient(ui::TextBox& field, bool allowed) {
    field.SetEnabled(allowed);
    field.SetFaceColoured(!allowed);
}

} // namespace

FrParMec::FrParMec(Program& program) : ProgramForm(program, "FrParMec", "Mechanical Parameters") {
    for (auto* field :
         {&txtDiaPipe, &txtTempRefPipe, &txtPipeThermal, &txtDiaOrif, &txtTempRefOrif, &txtOrificeThermal})
        MakeNumeric(program.Screen, *field);
    const auto station = [this] { return session_.Station; };
    TellExpected(txtDiaPipe, "InternalPipeDia", station);
    TellExpected(txtTempRefPipe, "InternalPipeDiaRefTemp", station);
    TellExpected(txtPipeThermal, "PipeThermalExpCoeff", station);
    TellExpected(txtDiaOrif, "OrificeDia", station);
    TellExpected(txtTempRefOrif, "OrificeDiaRefTemp", station);
    TellExpected(txtOrificeThermal, "OrificeThermalExpCoeff", station);
    notes_.Follow(
        {&txtDiaPipe, &txtTempRefPipe, &txtPipeThermal, &txtDiaOrif, &txtTempRefOrif, &txtOrificeThermal});
    cbMatOrif.OnClick = [this] { OrificeMaterialChosen(); };
    cbMatPipe.OnClick = [this] { PipeMaterialChosen(); };
    OptFlange.OnClick = [this] { FlangeChosen(); };
    OptPipe.OnClick = [this] { PipeTapChosen(); };
    OptFixed.OnClick = [this] { EnableDiameters(true); };
    OptExt.OnClick = [this] { EnableDiameters(false); };
    Check1.OnClick = [this] { CopyEnabled(); };
    for (int run = 0; run < SourceRuns::Size(); ++run)
        Option1[run].OnMouseDown = [this, run] { CopyFrom(run); };
    cmdAceptar.OnClick = [this] { Accept(); };
    cmdCancel.OnClick = [this] { CancelMechanicalEditor(program_, *this); };
    cmdDefaultValue.OnClick = [this] { SetDefaults(); };
    cmdHelp.OnClick = [this] { Help(); };
}

void FrParMec::Load() {
    RemoveCloseCommand();
    if (IsSYT6143()) {
        // The text that is stored for this choice stays "Pipe".
        OptPipe.SetCaption("Corner");
        OptFlange.SetValue(true);
    }
    DisableAll(Option1);
    OptFixed.SetValue(true);
    Fill(cbMatOrif, OrificeMaterials);
    Fill(cbMatPipe, PipeMaterials);
    ShowRecord();
    ShowUnits();
    notes_.Refresh();
}

bool FrParMec::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    Help();
    return true;
}

void FrParMec::ShowUnits() {
    const auto& system = MechanicalSystemOf(session_.Station.SystemUnits);
    for (auto* label : {&Label14, &Label13})
        label->SetCaption(std::string(system.Length));
    for (auto* label : {&Label17, &Label20})
        label->SetCaption(std::string(system.Temperature));
    for (auto* label : {&Label2, &Label3})
        label->SetCaption(std::string(system.Expansion));
}

void FrParMec::ShowRecord() {
    const auto& record = session_.EditedMechanical;
    ShowTap();
    const auto& system = MechanicalSystemOf(session_.Station.SystemUnits);
    for (const auto& entry : entries) {
        const std::string& stored = record.*entry.Member;
        (this->*entry.Field).SetText(stored.empty() ? std::string(system.*entry.AtLoad) : stored);
    }
    ShowMaterials();
    if (!record.ExtMechParam.empty())
        (services::EqualNoCase(record.ExtMechParam, config::Yes) ? OptExt : OptFixed).SetValue(true);
}

void FrParMec::ShowTap() {
    const auto& record = session_.EditedMechanical;
    if (record.PressureTapPos.empty() || record.PressureTap == "Flange") {
        OptFlange.SetValue(true);
        OptUp.SetValue(true);
        return;
    }
    OptPipe.SetValue(true);
    (record.PressureTapPos == "Up" ? OptUp : OptDown).SetValue(true);
}

void FrParMec::ShowMaterials() {
    const auto& record = session_.EditedMechanical;
    const auto& orifice = record.OrificeMaterial;
    cbMatOrif.SetListIndex(orifice.empty() ? defaultOrificeMaterial : PositionOf(OrificeMaterials, orifice));
    if (cbMatOrif.ListIndex() == otherOrificeMaterial)
        txtOrificeThermal.SetText(record.OrificeThermalExpCoeff);
    const auto& pipe = record.PipeMaterial;
    cbMatPipe.SetListIndex(pipe.empty() ? defaultPipeMaterial : PositionOf(PipeMaterials, pipe));
    if (cbMatPipe.ListIndex() == otherPipeMaterial)
        txtPipeThermal.SetText(record.PipeThermalExpCoeff);
}

void FrParMec::OrificeMaterialChosen() {
    AllowCoefficient(txtOrificeThermal, cbMatOrif.ListIndex() == otherOrificeMaterial);
    notes_.Refresh();
}

void FrParMec::PipeMaterialChosen() {
    AllowCoefficient(txtPipeThermal, cbMatPipe.ListIndex() == otherPipeMaterial);
    notes_.Refresh();
}

void FrParMec::FlangeChosen() {
    // A flange tap has no other position.
    OptUp.SetEnabled(true);
    OptDown.SetEnabled(false);
    OptUp.SetValue(true);
}

void FrParMec::PipeTapChosen() {
    OptUp.SetEnabled(true);
    OptDown.SetEnabled(!IsSYT6143());
}

void FrParMec::EnableDiameters(bool enabled) {
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&txtDiaPipe, &txtDiaOrif, &Label9, &Label14, &Label8, &Label13})
        control->SetEnabled(enabled);
    notes_.Refresh();
}

void FrParMec::SetDefaults() {
    const auto& system = MechanicalSystemOf(session_.Station.SystemUnits);
    for (const auto& entry : entries)
        (this->*entry.Field).SetText(std::string(system.*entry.Default));
    cbMatOrif.SetListIndex(defaultOrificeMaterial);
    cbMatPipe.SetListIndex(defaultPipeMaterial);
    OptFlange.SetValue(true);
    OptUp.SetValue(true);
    OptFixed.SetValue(true);
    EnableEntries();
}

void FrParMec::EnableEntries() {
    for (auto* frame : {&FramePipe, &FrameOrifice})
        for (auto* control : Controls())
            if (control->Container() == frame)
                control->SetEnabled(true);
    OrificeMaterialChosen();
    PipeMaterialChosen();
}

void FrParMec::CopyEnabled() {
    DisableAll(Option1);
    if (Check1.Value())
        OfferMechanicalSources(session_, Option1, &Record::OrificeDia);
}

void FrParMec::CopyFrom(int run) {
    CopyMechanical(session_, run);
    ShowRecord();
    notes_.Refresh();
}

bool FrParMec::SomethingMissing() const {
    if (cbMatOrif.ListIndex() == otherOrificeMaterial && txtOrificeThermal.Text().empty())
        return true;
    if (cbMatPipe.ListIndex() == otherPipeMaterial && txtPipeThermal.Text().empty())
        return true;
    // External diameters need texts too, although those fields are disabled then.
    return std::any_of(entries.begin(), entries.end(),
                       [this](const Entry& entry) { return (this->*entry.Field).Text().empty(); });
}

void FrParMec::Accept() {
    if (SomethingMissing()) {
        program_.Screen.Ask({.Title = "Mechanical Parameters",
                             .Text = "Missing Mechanical Parameters",
                             .TheIcon = ui::Icon::Exclamation});
        return;
    }
    Store();
    Unload();
}

void FrParMec::Store() {
    session_.EditedMechanical = Entered();
}

config::RunMechanical FrParMec::Entered() const {
    config::RunMechanical record = session_.EditedMechanical;
    for (const auto& entry : entries)
        record.*entry.Member = (this->*entry.Field).Text();
    record.OrificeMaterial = StoredMaterial(OrificeMaterials, cbMatOrif.Text());
    record.PipeMaterial = StoredMaterial(PipeMaterials, cbMatPipe.Text());
    record.PressureTap = OptFlange.Value() ? "Flange" : "Pipe";
    record.PressureTapPos = OptFlange.Value() || OptUp.Value() ? "Up" : "Down";
    record.OrificeThermalExpCoeff = txtOrificeThermal.Text();
    record.PipeThermalExpCoeff = txtPipeThermal.Text();
    record.ExtMechParam = OptExt.Value() ? config::Yes : config::No;
    return record;
}

void FrParMec::Help() {
    OpenEditorHelp(program_.Screen, cmdHelp, helpContext);
}

bool FrParMec::IsSYT6143() const {
    return session_.Station.FlowAlgorithm == config::algorithm::SYT6143;
}

} // namespace gfc::forms
