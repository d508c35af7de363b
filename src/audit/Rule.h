#pragma once

#include <optional>
#include <span>
#include <string_view>

// The rules by which a project is looked over before it goes out: one table for the window, the command, the
// manual and the notes under the forms.
namespace gfc::audit {

// Error: the station would run wrong or not at all. Warning: most likely a mistake. Note: good to know.
enum class Severity { Error, Warning, Note };

// "error", "warning", "note"
[[nodiscard]] std::string_view WordOf(Severity severity);
// Nothing for any other word; case counts.
[[nodiscard]] std::optional<Severity> SeverityOf(std::string_view word);

// The headings under which the rules stand.
enum class Area { File, Values, Runs, Tags, SharedTags, Common, Mechanical, Gas, Names };
[[nodiscard]] std::string_view TitleOf(Area area);

// In the order of the table.
enum class RuleId {
    FileUnreadable,
    ProjectOther,
    ProjectMoved,
    StationOther,
    StationUnknown,
    SectionMissing,
    SectionDouble,
    SectionUnknown,
    SectionIdle,
    KeyMissing,
    CopyMissing,
    KeyDouble,
    KeyUnknown,
    KeysIdle,
    LineUnknown,

    WordUnknown,
    WordCase,
    ValueMissing,
    NumberBad,
    NumberRange,
    NumberZero,
    ValueLong,

    NoRunOn,
    RunNotConfigured,
    RunWithoutSection,
    RunLeftOver,
    CopyOfMethod,
    CopyOfValue,

    TagNotFound,
    TagNotAssigned,
    TagWithoutName,
    TagPassedOver,
    CalorificType,
    WorkingModuleMissing,
    WorkingModuleMoved,
    TagInWorkingModule,
    TagDirection,

    OutputsOnOneTag,
    OutputOnInput,
    PulsesShared,
    QuantitiesOnOneTag,
    InputShared,

    StandardTUnusual,
    StandardTOfOthers,
    StandardPUnusual,
    StandardPOfOthers,
    AtmosphericPressure,
    Viscosity,
    Isentropic,
    CalibrationFactor,
    MeterFactor,
    MeterFactorDefault,
    StandardDensity,

    BoreNotBelowPipe,
    BetaAGA3,
    BetaISO5167,
    BoreSmallAGA3,
    BoreSmallISO5167,
    PipeAGA3,
    PipeISO5167,
    DiametersInMetres,
    ReferenceTemperature,
    ReferenceTemperaturesDiffer,
    ThermalExpansion,
    AccelabarRow,

    GasPercent,
    GasSum,
    GasSumRounded,
    GasNormalAGA8,
    GasExpandedAGA8,
    GasPipelineISO,
    GasWiderISO,
    GasNearest,
    GrossPipeline,
    GrossWider,
    GrossFit,

    NameQuantity,
    NameUnit,
    NameLoop,

    Count
};

struct Rule {
    RuleId Id;
    std::string_view Name; // as in the JSON and in lists: small letters and hyphens
    audit::Severity Severity;
    audit::Area Area;
    std::string_view Looks;  // what it looks at
    std::string_view Text;   // what a finding says; the words in braces are filled in
    std::string_view Advice; // what to do
    std::string_view Source; // standard, edition and table of its figures, or from where it is otherwise
};

// All of them, in the order of RuleId.
[[nodiscard]] std::span<const Rule> Rules();
[[nodiscard]] const Rule& RuleOf(RuleId id);

} // namespace gfc::audit
