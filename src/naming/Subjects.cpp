#include "naming/Words.h"

#include <array>

namespace gfc::naming {

std::string_view NameOf(Subject subject) {
    // In the order of Subject; what qualifies has no name.
    static constexpr std::array<std::string_view, static_cast<std::size_t>(Subject::Aside) + 1> names = {
        "pressure",
        "differential pressure",
        "temperature",
        "density",
        "relative density",
        "flow",
        "volume",
        "mass",
        "energy",
        "calorific value",
        "compressibility",
        "supercompressibility",
        "uncertainty",
        "pulses",
        "atmospheric pressure",
        "diameter",
        "roughness",
        "service time",
        "standard conditions",
        "flowing conditions",
        "static",
        "pipe",
        "orifice",
        "gas",
        "analyser",
        "flow calculation",
        "gas calculation",
        "status",
        "hold",
        "running",
        "totalizer",
        "reset",
        "enable",
        "methane",
        "nitrogen",
        "carbon dioxide",
        "ethane",
        "propane",
        "water",
        "hydrogen sulfide",
        "hydrogen",
        "carbon monoxide",
        "oxygen",
        "i-butane",
        "n-butane",
        "i-pentane",
        "n-pentane",
        "hexane",
        "hexane and heavier",
        "heptane",
        "octane",
        "nonane",
        "decane",
        "helium",
        "argon"};
    return names[static_cast<std::size_t>(subject)];
}

bool IsComponent(Subject subject) {
    return subject >= Subject::Methane && subject <= Subject::Argon;
}

} // namespace gfc::naming
