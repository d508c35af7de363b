#include "Choice.h"

#include <ostream>

namespace gfc::test::sweep {

namespace {

const char* const algorithms[] = {"AGA3", "AGA7", "Accelabar-AGA-3-1992", "SYT6143-2004"};
const char* const sources[] = {"MEASURED", "AGA8", "SGERG88", "ISO-12213-2-1997", "ISO-12213-3-1997"};
const char* const systems[] = {"US", "US-degC", "Metric", "Metric-degF", "Practical-SI"};
const char* const pressures[] = {"absolute", "gage fixed", "gage external"};

std::string OnlyLetters(const std::string& text) {
    std::string letters;
    for (const char c : text)
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'))
            letters += c;
    return letters;
}

} // namespace

void PrintTo(const Choice& choice, std::ostream* out) {
    *out << choice.Text();
}

std::string AlgorithmText(const Choice& choice) {
    return algorithms[choice.Standard];
}

std::string SourceText(const Choice& choice) {
    return sources[choice.Source];
}

std::string UnitsText(const Choice& choice) {
    return systems[choice.Units];
}

std::string Choice::Text() const {
    std::string text = AlgorithmText(*this) + ", " + SourceText(*this);
    text += Chromatograph ? ", chromatograph, " : ", ";
    text += UnitsText(*this) + ", " + pressures[static_cast<int>(Pressure)];
    text += ExternalDiameters ? ", external diameters, runs" : ", runs";
    for (const int run : Runs)
        text += " " + std::to_string(run);
    return text;
}

std::string Choice::Name() const {
    return OnlyLetters(AlgorithmText(*this)) + "_" + OnlyLetters(SourceText(*this)) +
           (Chromatograph ? "_chromatograph" : "");
}

std::vector<Choice> Methods() {
    std::vector<Choice> methods;
    for (int standard = 0; standard < 4; ++standard)
        for (int source = 0; source < 5; ++source) {
            methods.push_back({.Standard = standard, .Source = source});
            if (source != 0)
                methods.push_back({.Standard = standard, .Source = source, .Chromatograph = true});
        }
    return methods;
}

std::vector<Choice> VariationsOf(const Choice& method) {
    std::vector<Choice> all;
    for (int units = 0; units < 5; ++units)
        for (const auto pressure : {Pressure::Absolute, Pressure::GageFixed, Pressure::GageExternal})
            for (const bool external : {false, true})
                for (const std::vector<int>& runs : {std::vector{1}, {2, 5}, {1, 2, 3, 4, 5}}) {
                    if (external && !method.HasOrifice())
                        continue;
                    Choice choice = method;
                    choice.Units = units;
                    choice.Pressure = pressure;
                    choice.ExternalDiameters = external;
                    choice.Runs = runs;
                    choice.Traces = runs.size() == 2;
                    choice.Incompressible = runs.size() == 1;
                    all.push_back(choice);
                }
    return all;
}

} // namespace gfc::test::sweep
