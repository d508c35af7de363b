#include "audit/Rule.h"

#include <array>

namespace gfc::audit {

namespace {

using enum RuleId;
using enum Severity;
using enum Area;

// Where a rule's figures, or the rule itself, come from.
constexpr std::string_view Layout = "the layout of the configuration file";
constexpr std::string_view Fields = "the entry rules of the program's fields";
constexpr std::string_view Check = "the program's check of a file against the station's tags";
constexpr std::string_view Registers = "one register holds one value";
constexpr std::string_view Judgement = "judgement of this program, no standard";
constexpr std::string_view AGA3 = "AGA Report No. 3, Part 1 (API MPMS 14.3.1), 1990, and Part 2, 1992";
constexpr std::string_view ISO5167 = "ISO 5167-2:2003, 5.3.1, whose limits GB/T 21446-2008 shares";
constexpr std::string_view AGA8Normal = "AGA Report No. 8, 1992 and 1994, table 1, normal range";
constexpr std::string_view AGA8Expanded = "AGA Report No. 8, 1992 and 1994, table 1, expanded range";
constexpr std::string_view ISO2Pipeline =
    "ISO 12213-2:1997, 4.4.1, pipeline quality gas; hydrogen sulfide, oxygen and argon are held against "
    "AGA-8's expanded range alone";
constexpr std::string_view ISO2Wider = "ISO 12213-2:1997, 4.4.2, wider ranges";
constexpr std::string_view ISO3Pipeline = "ISO 12213-3:1997, 4.4.1, pipeline quality gas";
constexpr std::string_view ISO3Wider = "ISO 12213-3:1997, 4.4.2, wider ranges";

constexpr std::string_view SaveAgain = "Open the station in the configurator, look at the value and save it.";
constexpr std::string_view Reconfigure = "Configure the station anew, or bring the file back from a copy.";
constexpr std::string_view BindAnew =
    "Edit the run's I/O tags and bind the variable to a tag of the station.";

// clang-format off
constexpr std::array<Rule, static_cast<std::size_t>(Count)> Table = {{
    // The file as a whole
    {FileUnreadable, "file-unreadable", Error, File, "the station's file",
     "The file cannot be read.",
     "Close the program that holds it, or ask who may read it; then check again.", Layout},
    {ProjectOther, "project-other", Warning, File, "Project in General",
     "The file names the project {name} and lies with the project {name}.",
     "Copy the configuration within the program, which renames it, or configure the station anew.", Layout},
    {ProjectMoved, "project-moved", Note, File, "Project in General",
     "The file names the project in another folder: {path}.",
     "Nothing, if the project was moved. The package only carries the path.", Layout},
    {StationOther, "station-other", Warning, File, "OrmStation in General",
     "The file names the station {name} and is that of the station {name}.",
     "Copy the configuration within the program, which renames it, or configure the station anew.", Layout},
    {StationUnknown, "station-unknown", Warning, File, "the files beside the project",
     "The project has no station {name}: this file goes to none.",
     "Was the station renamed? Give it back its name, or copy the configuration to the new one and delete the file.",
     Layout},
    {SectionMissing, "section-missing", Error, File, "the sections that the choices ask for",
     "The section [{name}] is missing.", Reconfigure, Layout},
    {SectionDouble, "section-double", Warning, File, "the names of all sections",
     "The section [{name}] stands more than once; only the first one is read.",
     "Remove the one that is not meant.", Layout},
    {SectionUnknown, "section-unknown", Warning, File, "the names of all sections",
     "Nothing reads a section [{name}].", "Look for a slip in its name, or remove it.", Layout},
    {SectionIdle, "section-idle", Note, File, "the names of all sections",
     "The section [{name}] is left from an earlier choice; nothing reads it now.",
     "Nothing: the package passes it over.", Layout},
    {KeyMissing, "key-missing", Error, File, "the keys that the choices ask for",
     "The key {key} is missing.", Reconfigure, Layout},
    {CopyMissing, "copy-missing", Note, File, "the copies of common values in the runs",
     "The keys {keys} are missing in the run; the common values stand in sections of their own.",
     "Save the common parameters once: that writes most of the copies into every run.", Layout},
    {KeyDouble, "key-double", Warning, File, "the keys of all sections",
     "The key {key} stands more than once; only the first one is read.", "Remove the one that is not meant.",
     Layout},
    {KeyUnknown, "key-unknown", Warning, File, "the keys of all sections",
     "Nothing reads a key {key} here.", "Look for a slip in its name, or remove it.", Layout},
    {KeysIdle, "keys-idle", Note, File, "the keys of the runs and of the common sections",
     "Keys of an earlier choice are left, which nothing reads now: {keys}.",
     "Nothing: the package passes them over.", Layout},
    {LineUnknown, "line-unknown", Warning, File, "the lines of all sections",
     "A line is neither a section, a key with its value nor a comment: {line}.",
     "Look whether a line was broken in two, or remove it.", Layout},

    // What single values may say
    {WordUnknown, "word-unknown", Error, Values, "all values that are one of a few words",
     "{key} says \"{value}\", which is none of: {words}.", SaveAgain, Layout},
    {WordCase, "word-case", Warning, Values, "all values that are one of a few words",
     "{key} says \"{value}\", and not \"{word}\": capital and small letters count.", SaveAgain, Layout},
    {ValueMissing, "value-missing", Error, Values, "all values that the calculation needs",
     "{key} has no value.", SaveAgain, Fields},
    {NumberBad, "number-bad", Error, Values, "all numbers",
     "{key} says \"{value}\", which is no number with digits and one point at most.", SaveAgain, Fields},
    {NumberRange, "number-range", Error, Values, "fractions, percentages, hours, minutes",
     "{key} says {value}; its field takes {range}.", SaveAgain, Fields},
    {NumberZero, "number-zero", Error, Values, "numbers that something is divided by or multiplied with",
     "{key} is 0.", SaveAgain, Judgement},
    {ValueLong, "value-long", Warning, Values, "all values",
     "The value of {key} has {count} characters and is cut to 254 when it is read.", "Shorten it.", Layout},

    // The runs
    {NoRunOn, "no-run-on", Warning, Runs, "Run1 to Run5 in FlowRuns",
     "No run is enabled: the station measures nothing.", "Enable a run, or leave the station without a file.",
     Layout},
    {RunNotConfigured, "run-not-configured", Error, Runs, "Run1 to Run5 and Run11 to Run55 in FlowRuns",
     "The run is enabled, but {key} does not say that it was configured.",
     "Disable the run, or configure it: enable it from the menu.", Layout},
    {RunWithoutSection, "run-without-section", Error, Runs, "Run11 to Run55 and the runs' sections",
     "The run counts as configured, but has no section.", Reconfigure, Layout},
    {RunLeftOver, "run-left-over", Note, Runs, "Run11 to Run55 and the runs' sections",
     "The file has a section of a run that does not count as configured.",
     "Nothing: the package passes it over.", Layout},
    {CopyOfMethod, "copy-of-method", Error, Runs, "algorithm, density source and units in the runs",
     "{key} is \"{value}\" in the run and \"{value}\" for the station.",
     "Configure the run anew under the station's choices.", Layout},
    {CopyOfValue, "copy-of-value", Warning, Runs, "all other common values in the runs and in FlowRuns",
     "{key} is \"{value}\" here and \"{value}\" for the station.",
     "Save the common parameters once: that writes them into every run.", Layout},

    // The tags of the station
    {TagNotFound, "tag-not-found", Error, Tags, "every binding that the check asks for",
     "{variable}: [{tag}] [{address}] [{type}] {fault}: by name, address and type there is no such tag.",
     BindAnew, Check},
    {TagNotAssigned, "tag-not-assigned", Error, Tags, "every binding that the check asks for",
     "{variable}: {fault}.", BindAnew, Check},
    {TagWithoutName, "tag-without-name", Warning, Tags, "every binding that the check asks for",
     "{variable}: {fault}.", BindAnew, Check},
    {TagPassedOver, "tag-passed-over", Error, Tags,
     "roughness and service time of GB/T 21446 runs, the atmospheric pressure of AGA-7 and Accelabar",
     "{variable}: [{tag}] [{address}] [{type}] is no tag of the station. The check before an edit does not look there.",
     BindAnew, "bindings that the program's own check passes over"},
    {CalorificType, "calorific-type", Error, Tags, "VolCalorificValueKDIOType",
     "The calorific value's tag {tag} has the type \"{type}\" in the station and \"{type}\" in the file. "
     "The check before an edit does not look there.",
     BindAnew, "bindings that the program's own check passes over"},
    {WorkingModuleMissing, "working-module-missing", Error, Tags, "the three working modules",
     "The station has no virtual module {name} with {count} registers or more, as the package needs it.",
     "Choose another working module in the common parameters, or make the module large enough.",
     "the package's minimum: 8 long, 32 analog, 128 float registers"},
    {WorkingModuleMoved, "working-module-moved", Warning, Tags, "the three working modules",
     "The working module {name} begins at {register} and not at {register}.",
     "Save the common parameters once: that looks its registers up anew.", Check},
    {TagInWorkingModule, "tag-in-working-module", Error, Tags, "every binding",
     "{variable}: the tag {tag} stands in {module}, where the package writes its own data.",
     BindAnew, "the package keeps its working modules for itself"},
    {TagDirection, "tag-direction", Note, Tags, "every binding",
     "{variable} is an {direction} on the tag {tag} of type {type}.",
     "Nothing, if it is meant: the program lets both kinds of a class be bound.",
     "the register's direction; the rules of assigning allow both"},

    // Two variables on one tag
    {OutputsOnOneTag, "outputs-on-one-tag", Error, SharedTags, "all outputs of all runs",
     "{variable} goes to the tag {tag}, to which {variable} of {run} goes, too.", BindAnew, Registers},
    {OutputOnInput, "output-on-input", Error, SharedTags, "all outputs and inputs of all runs",
     "{variable} goes to the tag {tag}, from which {variable} of {run} is read.", BindAnew, Registers},
    {PulsesShared, "pulses-shared", Error, SharedTags, "the pulse counters of all runs",
     "The pulses of the tag {tag} are counted by {run}, too.",
     "Bind each run to the counter of its own meter.", Registers},
    {QuantitiesOnOneTag, "quantities-on-one-tag", Warning, SharedTags, "the measured inputs of a run",
     "{variable} is read from the tag {tag}, from which {variable} is read, too.", BindAnew, Registers},
    {InputShared, "input-shared", Note, SharedTags, "all other inputs",
     "{variable} is read from the tag {tag}, as is {variable} of {run}.",
     "Nothing, if it is meant: one chromatograph or one transmitter may serve several runs.", Registers},

    // What the runs have in common
    {StandardTUnusual, "standard-t-unusual", Warning, Common, "StandardT",
     "A standard temperature of {value} is none that is usual: {usual}.", SaveAgain,
     "ISO 13443:1996 (15 degrees C); 60 degrees F by AGA Report No. 3; 0, 20 and 25 degrees C by custom"},
    {StandardTOfOthers, "standard-t-of-others", Note, Common, "StandardT",
     "A standard temperature of {value} is not usual in this unit system: {usual}.",
     "Nothing, if the contract says so.",
     "ISO 13443:1996 (15 degrees C); 60 degrees F by AGA Report No. 3; 0, 20 and 25 degrees C by custom"},
    {StandardPUnusual, "standard-p-unusual", Warning, Common, "StandardP",
     "A standard pressure of {value} is none that is usual: {usual}.", SaveAgain,
     "ISO 13443:1996 (101.325 kPa); 14.73 psia by AGA Report No. 3; the other bases by contract or custom"},
    {StandardPOfOthers, "standard-p-of-others", Note, Common, "StandardP",
     "A standard pressure of {value} is not usual in this unit system: {usual}.",
     "Nothing, if the contract says so.",
     "ISO 13443:1996 (101.325 kPa); 14.73 psia by AGA Report No. 3; the other bases by contract or custom"},
    {AtmosphericPressure, "atmospheric-pressure", Warning, Common,
     "AtmPress, where the transmitters read gauge pressure and no tag gives it",
     "A fixed atmospheric pressure of {value} is {kPa} kPa; on land it is 55 to 110 kPa.", SaveAgain, Judgement},
    {Viscosity, "viscosity", Warning, Common, "FlowingViscosity, where the algorithm uses it",
     "A viscosity of {value} is out of reach of a gas: 0.005 to 0.05 cP.", SaveAgain, Judgement},
    {Isentropic, "isentropic", Warning, Common, "IsentropicCoeff, where the algorithm uses it",
     "An isentropic coefficient of {value} is out of reach of a gas: above 1, and 5/3 at most.", SaveAgain,
     "the ideal gas: 5/3 for one atom, towards 1 for many"},
    {CalibrationFactor, "calibration-factor", Warning, Common, "CalibrationFactor of each run",
     "A calibration factor of {value} changes the flow by more than a tenth.",
     "Enter 1.0, or the factor of the meter's certificate.", Judgement},
    {MeterFactor, "meter-factor", Warning, Common, "meterKFactor of each AGA-7 run",
     "A meter factor of {value} is out of reach: {range}.",
     "Enter the pulses for one unit of volume as the meter's certificate says.", Judgement},
    {MeterFactorDefault, "meter-factor-default", Note, Common, "meterKFactor of each AGA-7 run",
     "The meter factor is 1, as the form offers it.",
     "Nothing, if a pulse is one unit of volume; otherwise enter the factor of the meter's certificate.",
     Judgement},
    {StandardDensity, "standard-density", Warning, Common, "GasDensityStandard of each run with a densimeter",
     "A density of {value} at standard conditions is out of reach of natural gas: {range}.", SaveAgain,
     "a relative density of 0.5 to 1.6 to air of about 1.22 kg/m3"},

    // Orifice, pipe and Accelabar
    {BoreNotBelowPipe, "bore-not-below-pipe", Error, Mechanical, "OrificeDia and InternalPipeDia, where fixed",
     "The bore of {bore} is not below the pipe's diameter of {pipe}.", SaveAgain,
     "a plate stands across the pipe"},
    {BetaAGA3, "beta-aga3", Warning, Mechanical, "OrificeDia and InternalPipeDia of an AGA-3 run, where fixed",
     "The bore is {beta} of the pipe's diameter; the standard holds for 0.1 to 0.75.", SaveAgain, AGA3},
    {BetaISO5167, "beta-iso5167", Warning, Mechanical,
     "OrificeDia and InternalPipeDia of a GB/T 21446 run, where fixed",
     "The bore is {beta} of the pipe's diameter; the standard holds for 0.1 to 0.75.", SaveAgain, ISO5167},
    {BoreSmallAGA3, "bore-small-aga3", Warning, Mechanical, "OrificeDia of an AGA-3 run, where fixed",
     "A bore of {bore} is not above 0.45 in (11.43 mm), the smallest that the standard knows.", SaveAgain, AGA3},
    {BoreSmallISO5167, "bore-small-iso5167", Warning, Mechanical, "OrificeDia of a GB/T 21446 run, where fixed",
     "A bore of {bore} is below 12.5 mm (0.492 in), the smallest that the standard knows.", SaveAgain, ISO5167},
    {PipeAGA3, "pipe-aga3", Warning, Mechanical, "InternalPipeDia of an AGA-3 run, where fixed",
     "A pipe of {pipe} is out of reach: the standard holds from 2 inch pipe on (1.687 in, 42.85 mm, by its "
     "thickest wall), and none is wider than 60 in (1524 mm).", SaveAgain,
     "AGA Report No. 3, Part 2 (API MPMS 14.3.2), for the smallest; judgement for the widest"},
    {PipeISO5167, "pipe-iso5167", Warning, Mechanical, "InternalPipeDia of a GB/T 21446 run, where fixed",
     "A pipe of {pipe} is out of the standard's range of 50 to 1000 mm (1.969 to 39.37 in).", SaveAgain, ISO5167},
    {DiametersInMetres, "diameters-in-metres", Warning, Mechanical,
     "OrificeDia and InternalPipeDia in a metric unit system, where fixed",
     "A bore of {bore} in a pipe of {pipe} seems to be in metres; the unit is mm.",
     "Enter the diameters in mm. The button Default Value gives metres in Practical-SI.", Judgement},
    {ReferenceTemperature, "reference-temperature", Warning, Mechanical,
     "OrificeDiaRefTemp and InternalPipeDiaRefTemp, where the diameters are fixed",
     "A reference temperature of {value} is out of a workshop's reach: 0 to 50 degrees C (32 to 122 degrees F).",
     SaveAgain, Judgement},
    {ReferenceTemperaturesDiffer, "reference-temperatures-differ", Note, Mechanical,
     "OrificeDiaRefTemp and InternalPipeDiaRefTemp, where the diameters are fixed",
     "The bore was measured at {bore}, the pipe at {pipe}.",
     "Nothing, if the certificates say so: bore and pipe are mostly stated for one temperature.", Judgement},
    {ThermalExpansion, "thermal-expansion", Warning, Mechanical,
     "the expansion coefficients of a material that is none of the named ones",
     "An expansion coefficient of {value} is out of reach of a metal: {range}.", SaveAgain, Judgement},
    {AccelabarRow, "accelabar-row", Error, Mechanical, "the coefficients of an Accelabar of a named size",
     "{key} of an Accelabar of {size} in is {value}, and not {value}.",
     "Open the Accelabar parameters of the run, choose the size and accept.",
     "the program's table of Accelabar sizes"},

    // Fixed gas data
    {GasPercent, "gas-percent", Error, Gas, "the fixed composition",
     "The components add up to {sum}: they seem to be percentages. Mole fractions are asked for.",
     "Enter fractions of 1.", "the composition's own caption: mole fraction"},
    {GasSum, "gas-sum", Error, Gas, "the fixed composition",
     "The components add up to {sum}, and not to 1.", "Look for the component that is missing or wrong.",
     "mole fractions of a whole; more than 0.01 off"},
    {GasSumRounded, "gas-sum-rounded", Warning, Gas, "the fixed composition",
     "The components add up to {sum}, which is more than 0.0001 off 1.",
     "Round anew so that they add up to 1.", "mole fractions of a whole; more than 0.0001 off"},
    {GasNormalAGA8, "gas-normal-aga8", Note, Gas, "the fixed composition for AGA-8",
     "{component}: {value} is past the normal range of {range}.",
     "Nothing, if the gas is so: the uncertainty grows there.", AGA8Normal},
    {GasExpandedAGA8, "gas-expanded-aga8", Warning, Gas, "the fixed composition for AGA-8 and ISO 12213-2",
     "{component}: {value} is past the expanded range of {range}.", SaveAgain, AGA8Expanded},
    {GasPipelineISO, "gas-pipeline-iso", Note, Gas, "the fixed composition for ISO 12213-2",
     "{component}: {value} is past the range of pipeline quality of {range}.",
     "Nothing, if the gas is so: the uncertainty grows there.", ISO2Pipeline},
    {GasWiderISO, "gas-wider-iso", Warning, Gas, "the fixed composition for ISO 12213-2",
     "{component}: {value} is past the wider range of {range}.", SaveAgain, ISO2Wider},
    {GasNearest, "gas-nearest", Note, Gas, "the fixed composition",
     "The nearest of the published reference gases is {gas}, {distance} mol % off.",
     "Nothing. Off by 0 means that it is that gas; Gulf Coast is what the form offers.",
     "AGA Report No. 8, 1992, the five reference compositions"},
    {GrossPipeline, "gross-pipeline", Note, Gas, "the fixed gas properties",
     "{key}: {value} is past the range of pipeline quality of {range}.",
     "Nothing, if the gas is so: the uncertainty grows there.", ISO3Pipeline},
    {GrossWider, "gross-wider", Warning, Gas, "the fixed gas properties",
     "{key}: {value} is past the wider range of {range}.", SaveAgain, ISO3Wider},
    {GrossFit, "gross-fit", Warning, Gas, "the fixed gas properties",
     "Calorific value, relative density, CO2 and H2 do not fit each other: {reason}.",
     "Look whether the calorific value has the unit that the form names, and whether all four are of one gas.",
     "SGERG-88 (GERG TM5, 1991; ISO 12213-3:1997, annex B): the equivalent hydrocarbon of the four values"},

    // What the names of the tags say
    {NameQuantity, "name-quantity", Warning, Names, "the letters in the names of the tags",
     "{variable} is bound to {tag}: {reason}.", BindAnew, "ISA-5.1, letters for measured variables and functions"},
    {NameUnit, "name-unit", Warning, Names, "units in the names of the tags",
     "{variable} is bound to {tag}: its unit is {unit}, and the name says {unit}.", BindAnew, Judgement},
    {NameLoop, "name-loop", Warning, Names, "the loop numbers in the names of the tags",
     "{variable} is bound to {tag}, but the run's other tags are of loop {loop}.", BindAnew,
     "ISA-5.1: instruments of one loop bear one number"},
}};
// clang-format on

consteval bool InOrder() {
    for (std::size_t i = 0; i < Table.size(); ++i)
        if (Table[i].Id != static_cast<RuleId>(i))
            return false;
    return true;
}
static_assert(InOrder());

} // namespace

std::span<const Rule> Rules() {
    return Table;
}

const Rule& RuleOf(RuleId id) {
    return Table.at(static_cast<std::size_t>(id));
}

std::string_view WordOf(Severity severity) {
    static constexpr std::string_view words[] = {"error", "warning", "note"};
    return words[static_cast<std::size_t>(severity)];
}

std::optional<Severity> SeverityOf(std::string_view word) {
    for (const Severity severity : {Error, Warning, Note})
        if (WordOf(severity) == word)
            return severity;
    return std::nullopt;
}

std::string_view TitleOf(Area area) {
    static constexpr std::string_view titles[] = {"The file",
                                                  "Single values",
                                                  "The runs",
                                                  "The tags of the station",
                                                  "Two variables on one tag",
                                                  "What the runs have in common",
                                                  "Pipe, orifice and Accelabar",
                                                  "Fixed gas data",
                                                  "The names of the tags"};
    return titles[static_cast<std::size_t>(area)];
}

} // namespace gfc::audit
