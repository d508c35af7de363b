#include "PlainPages.h"

namespace gfc::test::sweep {

namespace {

// clang-format off
const Units systems[] = {
    {"in", "\u00BAF", "psia", "in H2O at 60\u00B0F", "lbm/ft^3", "scf",  "ft^3/hr", "lbm", "lbm/hr",
     "pulses/ft^3", "Btu/ft^3"},
    {"in", "\u00BAC", "psia", "in H2O at 60\u00B0F", "lbm/ft^3", "scf",  "ft^3/hr", "lbm", "lbm/hr",
     "pulses/ft^3", "Btu/ft^3"},
    {"mm", "\u00BAC", "bar",  "mbar",                "kg/m^3",   "sm^3", "m^3/hr",  "kg",  "kg/hr",
     "pulses/m^3",  "KWh/m^3"},
    {"mm", "\u00BAF", "bar",  "mbar",                "kg/m^3",   "sm^3", "m^3/hr",  "kg",  "kg/hr",
     "pulses/m^3",  "KWh/m^3"},
    {"mm", "\u00BAC", "MPa",  "Pa",                  "kg/m^3",   "m^3",  "m^3/s",   "kg",  "kg/s",
     "pulses/m^3",  "MJ/m^3"},
};
// clang-format on

} // namespace

Units UnitsOf(const Choice& choice) {
    Units units = systems[choice.Units];
    if (choice.Accelabar() && choice.Units == 0)
        units.Differential = "in H2O at 68\u00B0F";
    return units;
}

PlainPage ParameterList(const std::string& value) {
    return {"ListView1", "", {"N\u00B0", "Parameters", value}, {}};
}

PlainPage TagList() {
    return {"ListView2", "", {"N\u00B0", "Tag Config. As", "Name", "Address", "Type"}, {}};
}

std::string CommonSection(const Choice& choice) {
    return choice.AGA7() ? "AGA7" : "AGA3";
}

std::string RunSection(int run) {
    return "Run" + std::to_string(run);
}

void PutRow(PlainPage& page, std::vector<std::string> cells) {
    int number = 1;
    for (const auto& row : page.Rows)
        number += row.front().find('.') == std::string::npos ? 1 : 0;
    cells.insert(cells.begin(), std::to_string(number));
    page.Rows.push_back(std::move(cells));
}

void PutTag(PlainPage& page, const PlainFile& file, const std::string& section, const std::string& caption,
            const std::string& stem, const std::string& addressEnd) {
    PutRow(page, {caption, file.Value(section, stem + "Tag"), file.Value(section, stem + addressEnd),
                  file.Value(section, stem + "Type")});
}

std::string Atmosphere(const Choice& choice, const PlainFile& file) {
    if (choice.Pressure == Pressure::Absolute)
        return "Not Applicable";
    if (choice.External())
        return "External I/O";
    return file.Value(CommonSection(choice), "AtmPress") + " " + UnitsOf(choice).Pressure;
}

} // namespace gfc::test::sweep
