#include "audit/GasTables.h"

namespace gfc::audit {

namespace {

using enum config::GasSlot;

// clang-format off
constexpr ComponentRange AGA8[] = {
    //                                                                          normal        expanded
    {"Methane",          "GC_C1",  {GC_C1},                                  1, 0.45, 1.0,    0, 1.0},
    {"Nitrogen",         "GC_N2",  {GC_N2},                                  1, 0,    0.50,   0, 1.0},
    {"Carbon Dioxide",   "GC_CO2", {GC_CO2},                                 1, 0,    0.30,   0, 1.0},
    {"Ethane",           "GC_C2",  {GC_C2},                                  1, 0,    0.10,   0, 1.0},
    {"Propane",          "GC_C3",  {GC_C3},                                  1, 0,    0.04,   0, 0.12},
    {"Butanes together", "GC_iC4", {GC_iC4, GC_nC4},                         2, 0,    0.01,   0, 0.06},
    {"Pentanes together","GC_iC5", {GC_iC5, GC_nC5},                         2, 0,    0.003,  0, 0.04},
    // The expanded range ends at the dew point, which is no figure.
    {"Hexanes and heavier together", "GC_nC6", {GC_nC6, GC_nC7, GC_nC8, GC_nC9, GC_nC10},
                                                                             5, 0,    0.002,  0, None},
    {"Helium",           "GC_He",  {GC_He},                                  1, 0,    0.002,  0, 0.03},
    {"Hydrogen",         "GC_H",   {GC_H},                                   1, 0,    0.10,   0, 1.0},
    {"Carbon Monoxide",  "GC_CO",  {GC_CO},                                  1, 0,    0.03,   0, 0.03},
    // The normal range of these two is considered to be zero.
    {"Argon",            "GC_Ar",  {GC_Ar},                                  1, 0,    0,      0, 0.01},
    {"Oxygen",           "GC_O2",  {GC_O2},                                  1, 0,    0,      0, 0.21},
    {"Water",            "GC_H2O", {GC_H2O},                                 1, 0,    0.0005, 0, None},
    {"Hydrogen Sulfite", "GC_H2S", {GC_H2S},                                 1, 0,    0.0002, 0, 1.0},
};

constexpr ComponentRange ISO12213[] = {
    //                                                                          pipeline      wider
    {"Methane",          "GC_C1",  {GC_C1},                                  1, 0.70, 1.0,    0.50, 1.0},
    {"Nitrogen",         "GC_N2",  {GC_N2},                                  1, 0,    0.20,   0, 0.50},
    {"Carbon Dioxide",   "GC_CO2", {GC_CO2},                                 1, 0,    0.20,   0, 0.30},
    {"Ethane",           "GC_C2",  {GC_C2},                                  1, 0,    0.10,   0, 0.20},
    {"Propane",          "GC_C3",  {GC_C3},                                  1, 0,    0.035,  0, 0.05},
    {"Butanes together", "GC_iC4", {GC_iC4, GC_nC4},                         2, 0,    0.015,  0, None},
    {"Pentanes together","GC_iC5", {GC_iC5, GC_nC5},                         2, 0,    0.005,  0, None},
    {"Hexane",           "GC_nC6", {GC_nC6},                                 1, 0,    0.001,  0, None},
    {"Heptane",          "GC_nC7", {GC_nC7},                                 1, 0,    0.0005, 0, None},
    {"Octane and heavier together", "GC_nC8", {GC_nC8, GC_nC9, GC_nC10},     3, 0,    0.0005, 0, None},
    {"Hydrogen",         "GC_H",   {GC_H},                                   1, 0,    0.10,   0, 0.10},
    {"Carbon Monoxide",  "GC_CO",  {GC_CO},                                  1, 0,    0.03,   0, 0.03},
    {"Helium",           "GC_He",  {GC_He},                                  1, 0,    0.005,  0, None},
    {"Water",            "GC_H2O", {GC_H2O},                                 1, 0,    0.00015, 0, None},
};

constexpr ReferenceGas Gases[] = {
    // C1       N2       CO2     C2      C3      H2O H2S H  CO O2  iC4     nC4     iC5     nC5     nC6
    {"Gulf Coast",
     {96.5222,  0.2595,  0.5956, 1.8186, 0.4596, 0,  0,  0, 0, 0,  0.0977, 0.1007, 0.0473, 0.0324, 0.0664}},
    {"Amarillo",
     {90.6724,  3.1284,  0.4676, 4.5279, 0.8280, 0,  0,  0, 0, 0,  0.1037, 0.1563, 0.0321, 0.0443, 0.0393}},
    {"Ekofisk",
     {85.9063,  1.0068,  1.4954, 8.4919, 2.3015, 0,  0,  0, 0, 0,  0.3486, 0.3506, 0.0509, 0.0480, 0}},
    {"High N2",
     {81.4410, 13.4650,  0.9850, 3.3000, 0.6050, 0,  0,  0, 0, 0,  0.1000, 0.1040, 0,      0,      0}},
    {"High CO2-N2",
     {81.2120,  5.7020,  7.5850, 4.3030, 0.8950, 0,  0,  0, 0, 0,  0.1510, 0.1520, 0,      0,      0}},
};
// clang-format on

} // namespace

std::span<const ComponentRange> RangesOfAGA8() {
    return AGA8;
}

std::span<const ComponentRange> RangesOfISO12213() {
    return ISO12213;
}

std::span<const ReferenceGas> ReferenceGases() {
    return Gases;
}

} // namespace gfc::audit
