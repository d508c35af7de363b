// Whether the station's registers carry what the wizard's pages choose.
#include "forms/IOReports.h"
#include "forms/WizardFC.h"
#include "project/Requirements.h"

#include <array>

namespace gfc::forms {

namespace {

using project::ShortageKind;

// Registers that one run needs. Rows are tried in order; the first whose standard and source match decides.
struct Need {
    bool AGA7;
    int FirstSource; // entries of the source list
    int LastSource;
    int Floats;
    int Analogs;
    int Digitals;
    int Verdict; // on failure
};

// clang-format off
constexpr std::array<Need, 4> SourceNeeds = {{
    // AGA-7  sources  float analog digital  verdict
    {true,    0, 0,     6,   1,     3,       1},
    {true,    1, 4,    11,   2,     3,       2},
    {false,   0, 0,    17,   1,     3,       3},
    {false,   1, 4,    23,   2,     3,       4},
}};

// The two sources of ISO 12213 have no row: with them nothing is tested.
constexpr std::array<Need, 4> CompositionNeeds = {{
    {true,    1, 1,    32,   2,     4,       1},
    {false,   1, 1,    44,   2,     4,       2},
    {true,    2, 2,    15,   2,     4,       1},
    {false,   2, 2,    27,   2,     4,       2},
}};
// clang-format on

const Need* NeedOf(const std::array<Need, 4>& needs, bool isAGA7, int source) {
    for (const auto& need : needs)
        if (need.AGA7 == isAGA7 && source >= need.FirstSource && source <= need.LastSource)
            return &need;
    return nullptr;
}

// The verdict, after the message of the shortage where it is one.
int Judge(Program& program, const Need& need) {
    const auto station = CapacityOf(program.Session);
    const int n = program.Session.Station.ActiveRunCount;
    const bool fits = RunCapacity(station, need.Floats * n, need.Analogs * n, need.Digitals * n) &&
                      (!need.AGA7 || LongCapacity(station, n));
    if (fits)
        return 0;
    ReportIOShortage(program, need.AGA7 ? ShortageKind::AGA7 : ShortageKind::AGA3Family);
    return need.Verdict;
}

} // namespace

bool WizardFC::ShowsAGA7() const {
    return CombStandard.ListIndex() == 1;
}

bool WizardFC::ShowsDensimeter() const {
    return cbSourceGas.ListIndex() == 0;
}

int WizardFC::SourceCapacityCheck() {
    const Need* need = NeedOf(SourceNeeds, ShowsAGA7(), cbSourceGas.ListIndex());
    if (need == nullptr)
        return 0;
    const int verdict = Judge(program_, *need);
    if (verdict == 0)
        TakeFittingSource();
    return verdict;
}

void WizardFC::TakeFittingSource() {
    OptComp.SetValue(!ShowsDensimeter());
    FrCompGas.SetVisible(!ShowsDensimeter());
    lastPage_ = 3;
    RefreshStep();
}

int WizardFC::CompositionCapacityCheck() {
    const Need* need = NeedOf(CompositionNeeds, ShowsAGA7(), cbSourceGas.ListIndex());
    if (!OptCromatografo.Value() || need == nullptr)
        return 0;
    return Judge(program_, *need);
}

void WizardFC::FallBack(ui::DropDownList& list, int entry) {
    // A fallback that does not fit either is reported a second time and stays: each entry is the other's
    // fallback, and taking it back too would go on for ever.
    if (fallingBack_)
        return;
    fallingBack_ = true;
    list.SetListIndex(entry);
    fallingBack_ = false;
}

} // namespace gfc::forms
