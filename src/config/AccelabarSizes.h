#pragma once

#include "config/VarINIFile.h"

#include <array>
#include <string>
#include <string_view>

// The sizes of an Accelabar and what the meter of each has. Constants of the program, in inches in every unit
// system.
namespace gfc::config {

struct AccelabarSize {
    const char* Size;      // nominal, in; as it is stored
    const char* Y;         // gas expansion factor coefficient
    const char* K;         // flow coefficient
    const char* ThroatDia; // in
};

// clang-format off
inline constexpr std::array<AccelabarSize, 6> AccelabarSizes{{
    {"3",  "0.7432", "0.6566", "1.289"},
    {"4",  "0.6986", "0.7106", "1.700"},
    {"6",  "0.6865", "0.6779", "2.560"},
    {"8",  "0.6407", "0.7123", "3.389"},
    {"10", "0.6095", "0.7329", "4.251"},
    {"12", "0.5891", "0.7455", "5.056"},
}};

// What a meter has, by its key: where the record of a run keeps it, and where a size of the table.
struct AccelabarCoefficient {
    std::string_view Key;
    std::string RunMechanical::*Value;
    const char* AccelabarSize::*Constant;
    bool IsInInches = false; // else without a unit
};

inline constexpr std::array<AccelabarCoefficient, 3> AccelabarCoefficients{{
    {"AccelabarY",         &RunMechanical::AccelabarY,         &AccelabarSize::Y},
    {"AccelabarK",         &RunMechanical::AccelabarK,         &AccelabarSize::K},
    {"AccelabarThroatDia", &RunMechanical::AccelabarThroatDia, &AccelabarSize::ThroatDia, true},
}};
// clang-format on

} // namespace gfc::config
