#include "audit/NameSense.h"

#include "config/Vocabulary.h"
#include "suggest/Meaning.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <span>

namespace gfc::audit {

namespace {

using naming::Subject;

constexpr auto SubjectCount = static_cast<std::size_t>(Subject::Aside) + 1;

// Made for each of many names.
class Subjects {
public:
    void Add(Subject subject) { said_.set(static_cast<std::size_t>(subject)); }
    void Add(std::span<const Subject> subjects) {
        for (const Subject subject : subjects)
            Add(subject);
    }
    [[nodiscard]] bool Has(Subject subject) const { return said_.test(static_cast<std::size_t>(subject)); }

private:
    std::bitset<SubjectCount> said_;
};

// What a name can be about. Flow alone says little: volumes, masses and pulses are all of a flow, and a
// transmitter of several variables bears its letter.
bool IsQuantity(Subject subject) {
    return (subject >= Subject::Pressure && subject <= Subject::ServiceTime && subject != Subject::Flow) ||
           subject == Subject::Status || subject == Subject::Reset || naming::IsComponent(subject);
}

// What makes another quantity of the one beside it.
constexpr std::array Changing = {Subject::Differential, Subject::Atmospheric};

// A single letter, or the beginning of a longer word, says too little to doubt a binding for it: "T1012" may
// as well be a tag as a temperature.
Subjects SaidBy(const naming::TagName& name) {
    Subjects said;
    if (!AreOfRegisters(name.Device.Letters))
        said.Add(name.Device.Means);
    for (const naming::Part& part : name.Parts)
        if (part.Text.size() > 1 && !part.Cut)
            said.Add(part.Means);
    return said;
}

bool Holds(const std::vector<Subject>& list, Subject subject) {
    return std::ranges::find(list, subject) != list.end();
}

// The quantities alone: where a name does not say under which conditions, that is nothing against it.
bool Says(const Subjects& said, const suggest::Meaning& meaning) {
    bool any = false;
    for (const Subject subject : meaning.Needs) {
        if (IsQuantity(subject) && !said.Has(subject))
            return false;
        any = any || said.Has(subject);
    }
    const auto isForeign = [&](Subject subject) {
        return said.Has(subject) && !Holds(meaning.Needs, subject) && !Holds(meaning.Allows, subject);
    };
    return any && std::ranges::none_of(Changing, isForeign);
}

bool SaysPV(const naming::TagName& name) {
    return std::ranges::any_of(name.Parts, [](const naming::Part& part) { return part.Text == "PV"; });
}

std::string NamesOf(const Subjects& said) {
    std::string names;
    for (std::size_t place = 0; place < SubjectCount; ++place) {
        const auto subject = static_cast<Subject>(place);
        const bool isPart = subject == Subject::Pressure && said.Has(Subject::Differential);
        if (said.Has(subject) && IsQuantity(subject) && !isPart)
            names.append(names.empty() ? "" : ", ").append(naming::NameOf(subject));
    }
    return names;
}

// A unit as names write it, and the unit systems that measure the quantity so: a letter each, in the order of
// the list of systems, or "-".
struct UnitWord {
    std::string_view Word;
    config::Quantity Quantity;
    std::string_view Systems;
};

// clang-format off
constexpr std::array Units = std::to_array<UnitWord>({
    //                                                   US  US-degC  Metric  Metric-degF  Practical-SI
    {"PSI",   config::Quantity::AbsolutePressure,     "YY---"},
    {"PSIA",  config::Quantity::AbsolutePressure,     "YY---"},
    {"PSIG",  config::Quantity::AbsolutePressure,     "YY---"},
    {"BAR",   config::Quantity::AbsolutePressure,     "--YY-"},
    {"BARA",  config::Quantity::AbsolutePressure,     "--YY-"},
    {"BARG",  config::Quantity::AbsolutePressure,     "--YY-"},
    {"KPA",   config::Quantity::AbsolutePressure,     "-----"},
    {"MPA",   config::Quantity::AbsolutePressure,     "----Y"},
    {"KGCM2", config::Quantity::AbsolutePressure,     "-----"},
    {"INH2O", config::Quantity::DifferentialPressure, "YY---"},
    {"INWC",  config::Quantity::DifferentialPressure, "YY---"},
    {"MMH2O", config::Quantity::DifferentialPressure, "-----"},
    {"MBAR",  config::Quantity::DifferentialPressure, "--YY-"},
    {"KPA",   config::Quantity::DifferentialPressure, "-----"},
    {"PSI",   config::Quantity::DifferentialPressure, "-----"},
    {"BAR",   config::Quantity::DifferentialPressure, "-----"},
    {"DEGF",  config::Quantity::Temperature,          "Y--Y-"},
    {"°F",    config::Quantity::Temperature,          "Y--Y-"},
    {"ºF",    config::Quantity::Temperature,          "Y--Y-"},
    {"DEGC",  config::Quantity::Temperature,          "-YY-Y"},
    {"°C",    config::Quantity::Temperature,          "-YY-Y"},
    {"ºC",    config::Quantity::Temperature,          "-YY-Y"},
    {"KGM3",  config::Quantity::Density,              "--YYY"},
    {"LBFT3", config::Quantity::Density,              "YY---"},
    {"INCH",  config::Quantity::Length,               "YY---"},
    {"MM",    config::Quantity::Length,               "--YYY"},
    {"SCF",   config::Quantity::Volume,               "YY---"},
    {"SM3",   config::Quantity::Volume,               "--YYY"},
    {"NM3",   config::Quantity::Volume,               "--YYY"},
    {"M3",    config::Quantity::Volume,               "--YYY"},
    {"KG",    config::Quantity::Mass,                 "--YYY"},
    {"LB",    config::Quantity::Mass,                 "YY---"},
    {"LBM",   config::Quantity::Mass,                 "YY---"},
});
// clang-format on

// A word of its own, which nothing but a sign stands beside.
bool HoldsWord(std::string_view name, std::string_view word) {
    constexpr std::string_view signs = "_-. /()[]";
    for (auto at = name.find(word); at != std::string_view::npos; at = name.find(word, at + 1)) {
        const auto end = at + word.size();
        const bool opens = at > 0 && signs.find(name[at - 1]) != std::string_view::npos;
        const bool closes = end == name.size() || signs.find(name[end]) != std::string_view::npos;
        if (opens && closes)
            return true;
    }
    return false;
}

} // namespace

// The letters by which the tool itself calls its registers say nothing: "DI-12" is the twelfth digital input,
// and no density.
bool AreOfRegisters(std::string_view letters) {
    static constexpr std::string_view names[] = {"AI", "AO", "DI", "DO", "FI", "FO", "LI", "LO", "PI"};
    return std::ranges::find(names, letters) != std::end(names);
}

std::string QuantityAgainst(const Bound& bound, const naming::TagName& name) {
    if (bound.IsOutput() && SaysPV(name))
        return "a PV is measured, and this is a result of the calculation";
    const Subjects said = SaidBy(name);
    const auto meanings = suggest::MeaningsOf(*bound.Row);
    const auto says = [&](const suggest::Meaning* meaning) { return Says(said, *meaning); };
    if (meanings.empty() || std::ranges::any_of(meanings, says))
        return {};
    const std::string names = NamesOf(said);
    return names.empty() ? names : "its name says " + names;
}

std::string UnitAgainst(const Bound& bound, const naming::TagName& name,
                        const config::StationConfig& station) {
    if (!bound.Row->Unit)
        return {};
    const auto system = static_cast<std::size_t>(config::UnitsIndex(station.SystemUnits));
    std::string against;
    for (const UnitWord& unit : Units) {
        const bool isAscii = static_cast<unsigned char>(unit.Word.front()) < 0x80;
        if (unit.Quantity != *bound.Row->Unit ||
            !HoldsWord(isAscii ? name.Folded : bound.Binding->Tag, unit.Word))
            continue;
        if (unit.Systems[system] == 'Y')
            return {};
        against = unit.Word;
    }
    return against;
}

} // namespace gfc::audit
