#pragma once

#include <iosfwd>
#include <string>
#include <vector>

// What a person can choose on the way to a configuration, and every combination of it.
namespace gfc::test::sweep {

enum class Pressure { Absolute, GageFixed, GageExternal };

struct Choice {
    int Standard = 0; // entries of the wizard's lists
    int Source = 0;
    bool Chromatograph = false;
    int Units = 0;
    sweep::Pressure Pressure = Pressure::Absolute;
    bool ExternalDiameters = false;
    std::vector<int> Runs = {1};
    // Not multiplied out: they go with the selection of the runs.
    bool Traces = false;
    bool Incompressible = false;

    [[nodiscard]] bool AGA3() const { return Standard == 0; }
    [[nodiscard]] bool AGA7() const { return Standard == 1; }
    [[nodiscard]] bool Accelabar() const { return Standard == 2; }
    [[nodiscard]] bool GBT() const { return Standard == 3; }
    [[nodiscard]] bool HasOrifice() const { return AGA3() || GBT(); }
    [[nodiscard]] bool Densimeter() const { return Source == 0; }
    [[nodiscard]] bool Detail() const { return Source == 1 || Source == 3; }
    [[nodiscard]] bool Gross() const { return Source == 2 || Source == 4; }
    [[nodiscard]] bool External() const { return Pressure == sweep::Pressure::GageExternal; }
    // The wizard shuts the chromatograph for the gross sources; a program alone can choose it there.
    [[nodiscard]] bool BeyondHands() const { return Chromatograph && Gross(); }
    // "AGA7, SGERG88, chromatograph, Metric, gage external, external diameters, runs 2 5"
    [[nodiscard]] std::string Text() const;
    // The same of standard, source and composition alone, as the name of a test.
    [[nodiscard]] std::string Name() const;
};

// For messages of failures.
void PrintTo(const Choice& choice, std::ostream* out);

// The texts that are stored.
[[nodiscard]] std::string AlgorithmText(const Choice& choice);
[[nodiscard]] std::string SourceText(const Choice& choice);
[[nodiscard]] std::string UnitsText(const Choice& choice);

// Standard, source and composition in every way; the rest of each is as it starts.
[[nodiscard]] std::vector<Choice> Methods();
// One method in every unit system, pressure, source of the diameters and selection of runs.
[[nodiscard]] std::vector<Choice> VariationsOf(const Choice& method);

} // namespace gfc::test::sweep
