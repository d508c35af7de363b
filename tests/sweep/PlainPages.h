#pragma once

#include "PlainSummary.h"

// What the pages of the summaries have in common.
namespace gfc::test::sweep {

// The captions of one unit system.
struct Units {
    std::string Length, Temperature, Pressure, Differential, Density, Volume, VolumeRate, Mass, MassRate;
    std::string MeterFactor, Heating;
};
[[nodiscard]] Units UnitsOf(const Choice& choice);

[[nodiscard]] PlainPage ParameterList(const std::string& value);
[[nodiscard]] PlainPage TagList();
[[nodiscard]] std::string CommonSection(const Choice& choice);
[[nodiscard]] std::string RunSection(int run);
// A row behind those that are there, with the next whole number.
void PutRow(PlainPage& page, std::vector<std::string> cells);
void PutTag(PlainPage& page, const PlainFile& file, const std::string& section, const std::string& caption,
            const std::string& stem, const std::string& addressEnd = "RegAddr");
[[nodiscard]] std::string Atmosphere(const Choice& choice, const PlainFile& file);

} // namespace gfc::test::sweep
