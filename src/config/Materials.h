#pragma once

#include <array>
#include <string_view>

// The materials of pipe and orifice plate, as they are shown and stored.
namespace gfc::config {

struct Material {
    std::string_view Shown;
    std::string_view Stored;
};

// The last entry of both is "Other", for which a person gives the coefficient.
inline constexpr std::array<Material, 5> OrificeMaterials{{{"CS - Carbon Steel", "CS"},
                                                           {"SS - Stainless Steel", "SS"},
                                                           {"MONEL", "MONEL"},
                                                           {"1Cr18Ni9Ti", "1Cr18Ni9Ti"},
                                                           {"Other", "Other"}}};
inline constexpr std::array<Material, 4> PipeMaterials{
    {{"CS - Carbon Steel", "CS"}, {"SS - Stainless Steel", "SS"}, {"MONEL", "MONEL"}, {"Other", "Other"}}};

} // namespace gfc::config
