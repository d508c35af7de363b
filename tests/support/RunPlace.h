#pragma once

#include "config/Overload.h"
#include "config/RunLayout.h"

#include <string>
#include <variant>

namespace gfc::test {

// Where a text is read to, told row by row; null for one that is not read back.
inline std::string* PlaceOf(const config::RunRow& row, config::BindingPart part,
                            const config::RunTarget& to) {
    using namespace config;
    return std::visit(
        Overload{
            [&](CommonCopy field) { return field.Copy == nullptr ? nullptr : &(to.Mechanical.*field.Copy); },
            [&](std::string RunMechanical::*field) { return &(to.Mechanical.*field); },
            [&](std::string RunIO::*field) { return &(to.IO.*field); },
            [&](TagBinding RunIO::*field) { return &PartOf(to.IO.*field, part); },
            [&](SharedBinding field) { return &PartOf(to.IO.*field.Own, part); },
            [&](GasBinding field) { return &PartOf(to.Gas[field.Slot], part); },
            [&](GasValue field) { return &to.FixedValues[field.Slot].Tag; },
        },
        row.Field);
}

} // namespace gfc::test
