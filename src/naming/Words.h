#pragma once

#include <optional>
#include <span>
#include <string_view>

// What the words in tags' names mean: one table for whoever reads names, be it to suggest a binding or to
// judge one.
namespace gfc::naming {

// What a word, an abbreviation or the letters of an instrument speak of.
enum class Subject {
    // quantities
    Pressure,
    Differential, // of a pressure, or alone as short for it
    Temperature,
    Density,
    RelativeDensity,
    Flow,
    Volume,
    Mass,
    Energy,
    CalorificValue,
    Compressibility,
    Supercompressibility,
    Uncertainty,
    Pulses,
    Atmospheric,
    Diameter,
    Roughness,
    ServiceTime,
    // where or under which conditions
    Standard, // at base, normal or standard conditions
    Flowing,  // at flowing conditions
    Static,
    Pipe,
    Orifice,
    Gas,
    Analyser,
    FlowCalculation, // AGA 3, AGA 7 and their like
    GasCalculation,  // AGA 8, SGERG
    // states and commands
    Status,
    Hold,
    Running,
    Totalize,
    Reset,
    Enable,
    // components of natural gas
    Methane,
    Nitrogen,
    CarbonDioxide,
    Ethane,
    Propane,
    Water,
    HydrogenSulfide,
    Hydrogen,
    CarbonMonoxide,
    Oxygen,
    IsoButane,
    NormalButane,
    IsoPentane,
    NormalPentane,
    Hexane,
    HexanePlus, // all from six carbons on, as a chromatograph sums them up
    Heptane,
    Octane,
    Nonane,
    Decane,
    Helium,
    Argon,
    // what qualifies the rest
    Run,      // a meter run; the number behind it is the run's
    Value,    // the measured value itself
    Rate,     // against a total
    Selected, // the one that counts among several
    Range,    // low or high, of stacked transmitters
    Spare,
    Neutral, // input, output and what else says nothing of the quantity
    Aside,   // alarm, limit, raw, yesterday's, inlet, ambient: near to a quantity and not it
};

enum class Language { Any, English, Spanish, Portuguese };

// The text in capitals and without accents; it may hold digits.
struct Word {
    std::string_view Text;
    Subject Means;
    Language In = Language::Any;
    std::optional<Subject> Also = std::nullopt; // a second thing that the word says
};

// Each text stands once.
[[nodiscard]] std::span<const Word> Words();
// Null for a text that is no word of the table. text as the table writes them.
[[nodiscard]] const Word* FindWord(std::string_view text);
// All words that begin with the text, sorted; it may be empty.
[[nodiscard]] std::span<const Word* const> WordsFrom(std::string_view text);

// A few words for people, in English: "differential pressure". Empty for what qualifies.
[[nodiscard]] std::string_view NameOf(Subject subject);
// True for the components of a gas, the sum from hexane on among them.
[[nodiscard]] bool IsComponent(Subject subject);

} // namespace gfc::naming
