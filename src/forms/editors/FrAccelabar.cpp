#include "forms/editors/FrAccelabar.h"

#include "config/AccelabarSizes.h"
#include "forms/editors/NumericFields.h"
#include "forms/program/HelpFile.h"

#include <array>

namespace gfc::forms {

namespace {

using Form = FrAccelabar;
using Record = config::RunMechanical;

constexpr auto& sizes = config::AccelabarSizes;

struct Coefficient {
    ui::TextBox Form::*Field; // for "Other"
    ui::Label Form::*Label;   // for a size of the table
    config::AccelabarCoefficient Its;
};

// clang-format off
constexpr std::array<Coefficient, 3> coefficients{{
    {&Form::Text1, &Form::lbAccelabarY, config::AccelabarCoefficients[0]},
    {&Form::Text2, &Form::lbAccelabarK, config::AccelabarCoefficients[1]},
    {&Form::Text3, &Form::lbDiameter,   config::AccelabarCoefficients[2]},
}};
// clang-format on

constexpr int other = static_cast<int>(sizes.size()); // the entry behind the sizes
constexpr int helpContext = 7400;

} // namespace

FrAccelabar::FrAccelabar(Program& program) : ProgramForm(program, "FrAccelabar", "Accelabar Parameters") {
    for (const auto& coefficient : coefficients) {
        MakeNumeric(program.Screen, this->*coefficient.Field);
        TellExpected(this->*coefficient.Field, std::string(coefficient.Its.Key),
                     [this] { return session_.Station; });
    }
    Combo1.OnClick = [this] { SizeChosen(); };
    Check1.OnClick = [this] { CopyEnabled(); };
    for (int run = 0; run < SourceRuns::Size(); ++run)
        Option1[run].OnMouseDown = [this, run] { CopyFrom(run); };
    Command1.OnClick = [this] { Accept(); };
    Command2.OnClick = [this] { CancelMechanicalEditor(program_, *this); };
    Command3.OnClick = [this] { SetDefaults(); };
    // Deliberately not by the state of the button, as in the other editors.
    Command4.OnClick = [this] { program_.Screen.OpenHelp(HelpFile, helpContext); };
    DisableAll(Option1);
    ShowFields(false);
}

void FrAccelabar::Load() {
    RemoveCloseCommand();
    for (const auto& size : sizes)
        Combo1.AddEntry(size.Size);
    Combo1.AddEntry("Other");
    ShowRecord();
}

void FrAccelabar::ShowRecord() {
    const auto& record = session_.EditedMechanical;
    if (record.AccelabarSize.empty())
        return Combo1.SetListIndex(0);
    Combo1.SetText(record.AccelabarSize);
    if (Combo1.ListIndex() != other)
        return;
    for (const auto& coefficient : coefficients)
        (this->*coefficient.Field).SetText(record.*coefficient.Its.Value);
}

void FrAccelabar::SizeChosen() {
    const int chosen = Combo1.ListIndex();
    // A stored size that is not in the list: nothing is touched until an entry is chosen.
    if (chosen == ui::DropDownList::None)
        return;
    ShowFields(chosen == other);
    if (chosen == other)
        return;
    const auto& size = sizes.at(static_cast<std::size_t>(chosen));
    for (const auto& coefficient : coefficients)
        (this->*coefficient.Label).SetCaption(size.*coefficient.Its.Constant);
}

void FrAccelabar::ShowFields(bool shown) {
    for (const auto& coefficient : coefficients)
        (this->*coefficient.Field).SetVisible(shown);
}

void FrAccelabar::Accept() {
    // Deliberately before the fields are looked at: a refusal leaves the size changed.
    session_.EditedMechanical.AccelabarSize = Combo1.Text();
    if (Combo1.ListIndex() == other) {
        if (!StoreOther())
            return;
    } else {
        StoreConstants();
    }
    Unload();
}

bool FrAccelabar::StoreOther() {
    for (const auto& coefficient : coefficients) {
        if ((this->*coefficient.Field).Text().empty()) {
            program_.Screen.Ask({.Title = "Accelabar Parameters",
                                 .Text = "Error : Missing Parameters",
                                 .TheIcon = ui::Icon::Exclamation});
            return false;
        }
    }
    for (const auto& coefficient : coefficients)
        session_.EditedMechanical.*coefficient.Its.Value = (this->*coefficient.Field).Text();
    return true;
}

void FrAccelabar::StoreConstants() {
    // A size that is not in the list has no constants here: the record keeps its own.
    if (Combo1.ListIndex() == ui::DropDownList::None)
        return;
    for (const auto& coefficient : coefficients)
        session_.EditedMechanical.*coefficient.Its.Value = (this->*coefficient.Label).Caption();
}

void FrAccelabar::SetDefaults() {
    Check1.SetValue(false);
    DisableAll(Option1);
    Combo1.SetListIndex(0);
}

void FrAccelabar::CopyEnabled() {
    DisableAll(Option1);
    if (Check1.Value())
        OfferMechanicalSources(session_, Option1, &Record::AccelabarSize);
}

void FrAccelabar::CopyFrom(int run) {
    CopyMechanical(session_, run);
    // The coefficients of "Other" come into the record alone: the fields show them at the next load.
    Combo1.SetText(session_.EditedMechanical.AccelabarSize);
}

} // namespace gfc::forms
