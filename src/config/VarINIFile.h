#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The configuration of one station as it is held in memory. Every value is text, exactly as it was typed or
// as the file holds it; it means what it means in the unit system that was selected when it was typed. An
// empty text means that nothing was configured.
namespace gfc::config {

constexpr int MaxRuns = 5;

// One variable's assignment to an I/O register of the station.
struct TagBinding {
    std::string Tag;     // name in the station's tag database, up to 40 characters
    std::string Type;    // register class: "FX", "AY", ...
    std::string RegAddr; // decimal number as text

    // The name and the type are deliberately not looked at.
    [[nodiscard]] bool IsMade() const { return !RegAddr.empty(); }
    bool operator==(const TagBinding&) const = default;
};

// A run's parameters, and the bindings of its inputs and outputs.
struct RunIO {
    std::string CalibrationFactor;
    std::string meterKFactor;       // pulses per unit of volume; "AGA7" only
    std::string GasDensityStandard; // at standard conditions; "MEASURED" only
    std::string ContractHour;       // GMT, 0 to 23
    std::string ContractMin;        // 0 to 59
    TagBinding GasPulseInput;
    TagBinding GasDensity;
    TagBinding GasTemp;
    TagBinding GasPress;
    TagBinding Pa; // the same as CommonPa where the atmospheric pressure is a tag
    TagBinding GasDP;
    TagBinding ResetTotals;
    TagBinding GFCRunHold;
    TagBinding GFCTotalizeHold;
    TagBinding PipeDia;
    TagBinding PipeAbsRoughness;
    TagBinding OrificeDia;
    TagBinding OrificeServiceTime;
    TagBinding StdVolFlow;
    TagBinding StdMassFlow;
    TagBinding GasVolume;
    TagBinding GasMass;
    TagBinding AGA3Status; // status of the flow calculation, whichever the algorithm
    bool operator==(const RunIO&) const = default;
};

// A run's fixed mechanical data.
struct RunMechanical {
    std::string InternalPipeDia;
    std::string PipeMaterial;
    std::string InternalPipeDiaRefTemp;
    std::string OrificeDia;
    std::string OrificeMaterial;
    std::string OrificeDiaRefTemp;
    std::string PressureTap;
    std::string PressureTapPos;
    std::string AccelabarSize;      // nominal, in
    std::string AccelabarY;         // gas expansion factor coefficient
    std::string AccelabarK;         // flow coefficient
    std::string AccelabarThroatDia; // in
    std::string OrificeThermalExpCoeff;
    std::string PipeThermalExpCoeff;
    std::string ExtMechParam; // "Yes": pipe and orifice diameter come from tags
    // Copies read from the run's section; the writers take the station's common values instead.
    std::string PressType;
    std::string ExtAtmPress;
    std::string AtmPress;
    bool operator==(const RunMechanical&) const = default;
};

// The slots of a run's gas record, in declared order.
enum class GasSlot {
    GC_C1,
    GC_N2,
    GC_CO2,
    GC_C2,
    GC_C3,
    GC_H2O,
    GC_H2S,
    GC_H,
    GC_CO,
    GC_O2,
    GC_iC4,
    GC_nC4,
    GC_iC5,
    GC_nC5,
    GC_nC6,
    GC_nC7,
    GC_nC8,
    GC_nC9,
    GC_nC10,
    GC_He,
    GC_Ar,
    XH2, // hydrogen of the gross model; GC_H is that of the detail model
    VolCalorificValue,
    RelativeDensity,
    GCEnable,
    AGA8rhotp,
    AGA8rhos,
    AGA8z,
    AGA8zs,
    AGA8fpvs,
    AGA8uncert,
    AGA8Status,
    AGA8GRs,
    Count,
    XCO2 = GC_CO2 // carbon dioxide of both models is one slot
};

constexpr std::size_t GasSlots = static_cast<std::size_t>(GasSlot::Count);
constexpr int Components = 21; // GC_C1 to GC_Ar

// A run's gas quality and gas model bindings. Where AGA8CalInput is not "MEASURED" the Tag of slots GC_C1 to
// RelativeDensity holds the fixed value, a number as text, and the other two texts stay empty.
class RunGas {
public:
    [[nodiscard]] TagBinding& operator[](GasSlot slot) { return slots_[static_cast<std::size_t>(slot)]; }
    [[nodiscard]] const TagBinding& operator[](GasSlot slot) const {
        return slots_[static_cast<std::size_t>(slot)];
    }
    bool operator==(const RunGas&) const = default;

private:
    std::array<TagBinding, GasSlots> slots_;
};

// The runs' records in one of two arrangements. Whole station: element k belongs to the k-th active run, and
// Mechanical has five elements always. Single run: exactly one element, that of the run that was asked for.
struct RunArrays {
    std::vector<RunIO> IO;
    std::vector<RunGas> Gas;
    std::vector<RunMechanical> Mechanical;

    // All records are empty then.
    void PrepareWholeStation(int activeRuns);
    void PrepareSingleRun();
    // For who puts something into every text: they stay as they are.
    void ArrangeSingleRun();
};

// The virtual modules that the package keeps for its own work.
struct WorkingModules {
    std::string WrkFloatModName, WrkFloatRegType, WrkFloatRegAddr;
    std::string WrkIntLongModName, WrkIntLongRegType, WrkIntLongRegAddr;
    std::string WrkAnalogModName, WrkAnalogRegType, WrkAnalogRegAddr;
};

struct RunFlag {
    std::string Name; // "Run1" to "Run5"
    std::string Flag; // "Yes" or "No"
};

struct StationConfig {
    std::string ProjectFile; // full path
    std::string ProjectName; // without folder and extension
    std::string CurrentStation;
    std::string UserId;
    std::string EnableDataTraces;
    std::string DeviceDataTraces; // path on the station
    std::string NumberTraces;
    std::array<std::string, MaxRuns> Run; // "Yes" or "No" of run n at n - 1
    std::string FlowAlgorithm;
    std::string SystemUnits;
    std::string GasDensitySource;
    // As read from the file, for the summary; the writers take StandardT and StandardP.
    std::string GasDensityStandardT;
    std::string GasDensityStandardP;
    config::WorkingModules WorkingModules;
    std::string StandardT;
    std::string StandardP;
    std::string Compressible;
    std::string FlowingViscosity; // cP, or mPa-s in "Practical-SI"
    std::string IsentropicCoeff;
    std::string PressType; // "Absolute" or "Gage"
    std::string ExtAtmPress;
    std::string AtmPress;
    TagBinding CommonPa;
    std::string AGA8Method;   // "DETAIL"
    std::string AGA8CalInput; // "MEASURED" or "FIXED"
    RunGas GasComposition;    // fixed values in the Tag texts
    int ActiveRunCount = 0;
    std::array<RunFlag, MaxRuns> RunList;
    RunArrays Runs;

    // Kept beside the choices; set by whoever commits them or opens the station.
    bool Measured = false;
    bool FlagAGA7 = false;
};

// Empties what belongs to one station. Compressible, AGA8Method, AGA8CalInput, UserId, the project and
// GasComposition deliberately stay as they were.
void ResetStationConfig(StationConfig& station);

// run is 0 to 4; without regard to case, unlike the writers' exact test.
[[nodiscard]] bool IsRunActive(const StationConfig& station, int run);

// The element of the whole-station arrangement that belongs to run 0 to 4, counting the active runs before
// it.
[[nodiscard]] int ElementOfRun(const StationConfig& station, int run);

} // namespace gfc::config
