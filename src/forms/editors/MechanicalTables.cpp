#include "forms/editors/MechanicalTables.h"

#include "config/Vocabulary.h"

#include <algorithm>

namespace gfc::forms {

namespace {

// Deliberate: in "Practical-SI" the load shows the metric diameters, the button sets metres. The load asks
// for a system "SI", which no configuration holds, and so never finds metres.
// clang-format off
constexpr std::array<MechanicalSystem, 5> systems{{
    // name                      captions                 temp.    set by the button        shown at load
    {config::units::US,          "in", "ºF", "in/in ºF", "68.00", "0.57811", "2.90039", "0.57811", "2.90039"},
    {config::units::USdegC,      "in", "ºC", "in/in ºF", "20.00", "0.57811", "2.90039", "0.57811", "2.90039"},
    {config::units::Metric,      "mm", "ºC", "mm/mm ºC", "20.00", "193.675", "363.513", "193.675", "363.513"},
    {config::units::MetricDegF,  "mm", "ºF", "mm/mm ºC", "68.00", "193.675", "363.513", "193.675", "363.513"},
    {config::units::PracticalSI, "mm", "ºC", "mm/mm ºC", "20.00", "0.193675", "0.363513", "193.675", "363.513"},
}};
// clang-format on

} // namespace

int PositionOf(std::span<const Material> materials, std::string_view stored) {
    const auto found = std::find_if(materials.begin(), materials.end() - 1,
                                    [stored](const Material& material) { return material.Stored == stored; });
    return static_cast<int>(found - materials.begin());
}

std::string_view StoredMaterial(std::span<const Material> materials, std::string_view shown) {
    const auto found = std::find_if(materials.begin(), materials.end() - 1,
                                    [shown](const Material& material) { return material.Shown == shown; });
    return found->Stored;
}

const MechanicalSystem& MechanicalSystemOf(std::string_view systemUnits) {
    const auto found =
        std::find_if(systems.begin(), systems.end(),
                     [systemUnits](const MechanicalSystem& system) { return system.Name == systemUnits; });
    return found == systems.end() ? systems.back() : *found;
}

} // namespace gfc::forms
