#include "forms/editors/frSGERG88.h"

#include "config/ConfigReader.h"
#include "config/Vocabulary.h"
#include "forms/editors/NumericFields.h"
#include "services/Funciones_III.h"

#include <algorithm>
#include <array>

namespace gfc::forms {

namespace {

using Slot = config::GasSlot;

struct Property {
    Slot Value;
    const char* Key; // of its fixed value
    const char* Design;
    bool IsFraction; // from 0 to 1
};

// Deliberate: the H2 content has no range, while the relative density has that of a fraction.
// clang-format off
constexpr std::array<Property, 4> properties{{
    {Slot::VolCalorificValue, "VolCalorificValue", "",      false}, // by unit system
    {Slot::RelativeDensity,   "RelativeDensity",   "0.581", true},
    {Slot::XCO2,              "XCO2",              "0.006", true},
    {Slot::XH2,               "XH2",               "0.000", false},
}};

struct CalorificUnit {
    std::string_view System;
    const char* Unit;
    const char* Value;
};

// A unit system that is none of these counts as the last.
constexpr std::array<CalorificUnit, 5> calorificUnits{{
    {config::units::US,          "Btu / ft^3", "1091.28"},
    {config::units::USdegC,      "Btu / ft^3", "1091.28"},
    {config::units::Metric,      "KWh / m^3",  "11.29444"},
    {config::units::MetricDegF,  "KWh / m^3",  "11.29444"},
    {config::units::PracticalSI, "MJ/m^3",     "40.66"},
}};
// clang-format on

constexpr std::string_view fractionRange = " [0-1]%";
constexpr int helpContext = 7500;
constexpr int calorificValue = 0;

const Property& PropertyOf(int item) {
    return properties.at(static_cast<std::size_t>(item));
}

} // namespace

frSGERG88::frSGERG88(Program& program) : ProgramForm(program, "frSGERG88", "Gas Composition") {
    for (int item = 0; item < Text1.Size(); ++item) {
        FilterKeys(Text1[item]);
        TellExpected(Text1[item], PropertyOf(item).Key, [this] { return session_.Station; });
        notes_.Follow({&Text1[item]});
        Text1[item].OnLostFocus = [this, item] { CheckLeft(item); };
    }
    CopyGasCompButton.OnClick = [this] { Copy(); };
    Command1.OnClick = [this] { Accept(); };
    Command2.OnClick = [this] { Cancel(); };
    ayuda.OnClick = [this] { Help(); };
}

std::string frSGERG88::DesignValue(int item) {
    return PropertyOf(item).Design;
}

void frSGERG88::Load() {
    RemoveCloseCommand();
    session_.GasAccepted = false;
    lbPrompt.SetCaption("Enter/Edit the gas properties for Run " + std::to_string(session_.GasRun + 1));
    ShowUnits();
    file_ = session_.ConfigFile();
    OfferGasSources(program_, file_, Slot::VolCalorificValue, Option1, CopyGasCompButton);
    ShowStored();
}

bool frSGERG88::KeyDown(ui::Key key) {
    if (key != ui::Key::F1)
        return false;
    Help();
    return true;
}

void frSGERG88::ShowUnits() {
    auto found = std::ranges::find(calorificUnits, session_.Station.SystemUnits, &CalorificUnit::System);
    if (found == calorificUnits.end())
        --found;
    Label5.SetCaption(found->Unit);
    Text1[calorificValue].SetText(found->Value);
}

void frSGERG88::CheckLeft(int item) {
    const CheckedFields field(Text1[item]);
    if (!CheckShape(program_.Screen, field) || !PropertyOf(item).IsFraction)
        return;
    if (services::ValueOf(Text1[item].Text()) > 1)
        RefuseRange(program_.Screen, field, fractionRange);
}

void frSGERG88::ShowStored() {
    const auto& gas = session_.Station.GasComposition;
    if (!gas[Slot::VolCalorificValue].Tag.empty())
        Show(gas);
    notes_.Refresh();
}

config::RunGas frSGERG88::Entered() {
    config::RunGas gas;
    for (int item = 0; item < Text1.Size(); ++item)
        gas[PropertyOf(item).Value].Tag = Text1[item].Text();
    return gas;
}

void frSGERG88::Show(const config::RunGas& gas) {
    for (int item = 0; item < Text1.Size(); ++item)
        Text1[item].SetText(gas[PropertyOf(item).Value].Tag);
    notes_.Refresh();
}

void frSGERG88::Accept() {
    for (int item = 0; item < Text1.Size(); ++item)
        if (Text1[item].Text().empty())
            return RefuseIncompleteGas(program_.Screen);
    for (int item = 0; item < Text1.Size(); ++item)
        session_.Station.GasComposition[PropertyOf(item).Value].Tag = Text1[item].Text();
    session_.GasAccepted = true;
    Unload();
}

void frSGERG88::Cancel() {
    CancelEditor(program_, *this, "Gas Flow Computer",
                 "Are you sure  you to want to cancel?. All changes will be lost");
}

void frSGERG88::Copy() {
    const int run = ChosenSource(Option1);
    if (run < 0)
        return RefuseCopyWithoutSource(program_.Screen, "Copy Gas Properties", "gas properties");
    if (!GasSourcesAreInFile(session_)) {
        if (const auto* gas = GasInMemory(session_, run); gas != nullptr)
            Show(*gas);
        return;
    }
    // Replaces GasComposition at once: a later cancel does not bring it back.
    config::LoadFixedComposition(program_.Ini, session_.Station, file_, run + 1);
    ShowStored();
}

void frSGERG88::Help() {
    OpenEditorHelp(program_.Screen, ayuda, helpContext);
}

} // namespace gfc::forms
