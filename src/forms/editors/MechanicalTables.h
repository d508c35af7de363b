#pragma once

#include "config/Materials.h"

#include <array>
#include <span>
#include <string_view>

// What FrParMec offers: materials, and unit captions and default values of each unit system.
namespace gfc::forms {

using config::Material;
using config::OrificeMaterials;
using config::PipeMaterials;

// The entry that a stored text selects: the last for one that the list does not hold.
[[nodiscard]] int PositionOf(std::span<const Material> materials, std::string_view stored);
// What is stored for an entry's text.
[[nodiscard]] std::string_view StoredMaterial(std::span<const Material> materials, std::string_view shown);

struct MechanicalSystem {
    std::string_view Name;
    std::string_view Length;
    std::string_view Temperature;
    std::string_view Expansion;
    std::string_view RefTemp; // default of both reference temperatures
    std::string_view OrificeDia;
    std::string_view PipeDia;
    // What an empty diameter of the record shows.
    std::string_view OrificeDiaAtLoad;
    std::string_view PipeDiaAtLoad;
};

// A unit system that is none of the five counts as "Practical-SI".
[[nodiscard]] const MechanicalSystem& MechanicalSystemOf(std::string_view systemUnits);

} // namespace gfc::forms
