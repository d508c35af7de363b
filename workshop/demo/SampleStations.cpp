#include "workshop/demo/SampleStations.h"

#include <array>

namespace gfc::workshop {

namespace {

// The package takes one virtual float module of 128 tags or more, one analog of 32 and one long of 8 for
// itself, here the modules named LOG. Only one of a size to be taken stands in each station, so that what a
// station carries is decided by its remaining tags: another such module would end the counting. That is why
// no further module reaches those sizes.

// clang-format off

// Five runs of every kind, also with the composition from a chromatograph: at least 220 floats, 10 analogs,
// 20 digitals and 15 longs beside the LOG modules.
constexpr std::array<SampleModule, 25> Northgate = {{
    {"AI-8 Slot 1",   "AI-8 Analog Input",    "AX",    1, 0, "PT-301 PT-302 TT-301 TT-302 LT-310 LT-311 "
                                                             "AT-330_H2O AT-331_H2S"},
    {"AI-8 Slot 2",   "AI-8 Analog Input",    "AX",    9, 5, "DT-20#"},
    {"AO-4 Slot 3",   "AO-4 Analog Output",   "AY",    1, 0, "PCV-301 PCV-302 FCV-201 FCV-202"},
    {"DI-16 Slot 4",  "DI-16 Digital Input",  "X",     1, 0, "XV-30{1..5}_{OPN,CLS} ESD-100 PAH-301 "
                                                             "PAL-301 LAH-310 FIRE-01 GAS-01"},
    {"DO-8 Slot 5",   "DO-8 Digital Output",  "Y",     1, 0, "XV-30{1..5}_CMD HORN-01 BEACON-01 DO_SPARE"},
    {"PI-8 Slot 6",   "PI-8 Pulse Input",     "LX",    1, 0, "FT-20{1..5}_RAW PI_SPARE_{1..3}"},
    {"CNT-4 Slot 7",  "CNT-4 Counter Output", "LY",    1, 0, "FQ-20{1..4}_OUT"},
    {"MVT Port 1",    "Modbus Master",        "FX",    1, 5, "FT-20#_PRESS FT-20#_TEMP FT-20#_DP"},
    {"GC Port 2",     "Modbus Master",        "FY",    1, 0, "AT-501_CAL_SP AT-501_CYCLE_SP"},
    {"VX_CMD",        "Virtual Module",       "X",   101, 5, "HS-20#_HOLD HS-20#_TOTHOLD HS-20#_RESET "
                                                             "HS-50#_GCEN"},
    {"VY_ALARM",      "Virtual Module",       "Y",   101, 5, "XA-20#_ALM XA-20#_FAIL"},
    {"VAX_LOG",       "Virtual Module",       "AX",  101, 0, "AXLOG_{01..32}"},
    {"VAY_STATUS",    "Virtual Module",       "AY",  101, 5, "NS-20#_FLOW NS-50#_GAS"},
    {"VFX_LOG",       "Virtual Module",       "FX", 1001, 0, "FXLOG_{001..128}"},
    {"VFX_RUNS",      "Virtual Module",       "FX", 1201, 5, "TIT-20#_PV PIT-20#_PV PDIT-20#_PV "
                                                             "DT-20#_PV ID-20#_PIPE ID-20#_ORIF "
                                                             "RGH-20#_K SVT-20#_T"},
    {"VFX_GC",        "Virtual Module",       "FX", 1301, 5, "AT-50#_{C1,N2,CO2,C2,C3,H2O,H2S,H2,CO,O2,"
                                                             "iC4,nC4,iC5,nC5,nC6,nC7,nC8,nC9,nC10,He,Ar} "
                                                             "AT-50#_HV AT-50#_SG"},
    {"VFX_STATION",   "Virtual Module",       "FX", 1501, 0, "PIT-100_ATM TIT-100_AMB PIC-301_SP "
                                                             "PIC-302_SP FIC-201_SP FIC-202_SP "
                                                             "FX_SPARE_{01..14}"},
    {"VFY_RUNS",      "Virtual Module",       "FY", 1001, 5, "FI-20#_VOL FI-20#_MASS FQI-20#_VOL "
                                                             "FQI-20#_MASS"},
    {"VFY_GAS",       "Virtual Module",       "FY", 1101, 5, "GQ-50#_RHOTP GQ-50#_RHOS GQ-50#_Z "
                                                             "GQ-50#_ZS GQ-50#_FPVS GQ-50#_GRS GQ-50#_UNC"},
    {"VLX_LOG",       "Virtual Module",       "LX", 1001, 0, "LXLOG_{1..8}"},
    {"VLX_PULSE",     "Virtual Module",       "LX", 1101, 5, "FT-20#_PLS"},
    {"VLX_SPARE",     "Virtual Module",       "LX", 1201, 0, "LX_SPARE_{1..5}"},
    {"VLY_COUNT",     "Virtual Module",       "LY", 1001, 5, "FQ-20#_CNT"},
    {"VLY_SPARE",     "Virtual Module",       "LY", 1101, 0, "LY_SPARE_{1..5}"},
    {"VY_SPARE",      "Virtual Module",       "Y",   201, 0, "Y_SPARE_{1..4}"},
}};

// Exactly one run of the AGA-3 kind, also with a chromatograph: two runs fail by their digitals, AGA-7 by its
// longs.
constexpr std::array<SampleModule, 9> Eastfield = {{
    {"AI-2 Slot 1",   "AI-2 Analog Input",    "AX",    1, 0, "PT-101 TT-101"},
    {"PI-2 Slot 2",   "PI-2 Pulse Input",     "LX",    1, 0, "FT-101_RAW FT-102_RAW"},
    {"VX_CMD",        "Virtual Module",       "X",   101, 1, "HS-10#_HOLD HS-10#_TOTHOLD HS-10#_RESET "
                                                             "HS-10#_GCEN"},
    {"VAX_LOG",       "Virtual Module",       "AX",  101, 0, "AXLOG_{01..32}"},
    {"VFX_LOG",       "Virtual Module",       "FX", 1001, 0, "FXLOG_{001..128}"},
    {"VFX_RUN",       "Virtual Module",       "FX", 1201, 1, "TIT-10#_PV PIT-10#_PV PDIT-10#_PV "
                                                             "DT-10#_PV ID-10#_PIPE ID-10#_ORIF "
                                                             "RGH-10#_K SVT-10#_T PIT-100_ATM"},
    {"VFX_GC",        "Virtual Module",       "FX", 1301, 1, "AT-10#_{C1,N2,CO2,C2,C3,H2O,H2S,H2,CO,O2,"
                                                             "iC4,nC4,iC5,nC5,nC6,nC7,nC8,nC9,nC10,He,Ar} "
                                                             "AT-10#_HV AT-10#_SG FX_SPARE"},
    {"VFY_RUN",       "Virtual Module",       "FY", 1001, 1, "FI-10#_VOL FI-10#_MASS FQI-10#_VOL "
                                                             "FQI-10#_MASS GQ-10#_RHOTP GQ-10#_RHOS "
                                                             "GQ-10#_Z GQ-10#_ZS GQ-10#_FPVS GQ-10#_GRS "
                                                             "GQ-10#_UNC"},
    {"VLX_LOG",       "Virtual Module",       "LX", 1001, 0, "LXLOG_{1..8}"},
}};

// Too few floats for the AGA-3 kind, but enough for two runs of AGA-7 with a densimeter or one with a
// calculated density. Three longs per run are asked for where the runs are chosen, though each run binds one.
constexpr std::array<SampleModule, 10> Quarry = {{
    {"PI-4 Slot 1",   "PI-4 Pulse Input",     "LX",    1, 0, "FT-401_RAW FT-402_RAW PI_SPARE_{1..2}"},
    {"DI-8 Slot 2",   "DI-8 Digital Input",   "X",     1, 0, "ZS-401_OPN ZS-401_CLS"},
    {"VX_CMD",        "Virtual Module",       "X",   101, 2, "HS-40#_HOLD HS-40#_TOTHOLD HS-40#_RESET"},
    {"VAX_LOG",       "Virtual Module",       "AX",  101, 0, "AXLOG_{01..32}"},
    {"VAY_STATUS",    "Virtual Module",       "AY",  101, 2, "NS-40#_FLOW"},
    {"VFX_LOG",       "Virtual Module",       "FX", 1001, 0, "FXLOG_{001..128}"},
    {"VFX_RUNS",      "Virtual Module",       "FX", 1201, 2, "DT-40#_PV"},
    {"VFY_RUNS",      "Virtual Module",       "FY", 1001, 2, "FI-40#_VOL FI-40#_MASS FQI-40#_VOL "
                                                             "FQI-40#_MASS FY-40#_SPARE"},
    {"VLX_LOG",       "Virtual Module",       "LX", 1001, 0, "LXLOG_{1..8}"},
    {"VLX_PULSE",     "Virtual Module",       "LX", 1101, 2, "FT-40#_PLS LX-40#_SPARE1 LX-40#_SPARE2"},
}};

// Has all LOG modules and next to nothing beside them.
constexpr std::array<SampleModule, 6> Odorizer = {{
    {"AI-4 Slot 1",   "AI-4 Analog Input",    "AX",    1, 0, "LT-701 PT-701 TT-701 FT-701"},
    {"DI-4 Slot 2",   "DI-4 Digital Input",   "X",     1, 0, "LAL-701 PAH-701 P-701_RUN P-701_FLT"},
    {"VAX_LOG",       "Virtual Module",       "AX",  101, 0, "AXLOG_{01..32}"},
    {"VFX_LOG",       "Virtual Module",       "FX", 1001, 0, "FXLOG_{001..128}"},
    {"VFX_DOSE",      "Virtual Module",       "FX", 1201, 0, "FIC-701_SP FIC-701_PV FIC-701_OUT FQI-701"},
    {"VLX_LOG",       "Virtual Module",       "LX", 1001, 0, "LXLOG_{1..8}"},
}};

// No virtual module is large enough for the package.
constexpr std::array<SampleModule, 5> Valve = {{
    {"DI-8 Slot 1",   "DI-8 Digital Input",   "X",     1, 0, "XV-304_OPN XV-304_CLS XV-305_OPN "
                                                             "XV-305_CLS DOOR-01 PWR_FAIL"},
    {"DO-4 Slot 2",   "DO-4 Digital Output",  "Y",     1, 0, "XV-304_CMD XV-305_CMD"},
    {"AI-4 Slot 3",   "AI-4 Analog Input",    "AX",    1, 0, "PT_304 PT_305 TT_304 BATT_V"},
    {"VAX_CALC",      "Virtual Module",       "AX",  101, 0, "AXCALC_{01..31}"},
    {"VFX_CALC",      "Virtual Module",       "FX", 1001, 0, "FXCALC_{01..16}"},
}};

// Two runs of every kind. The first is configured: SampleConfiguration.cpp names registers of this table.
constexpr std::array<SampleModule, 16> Lakeside = {{
    {"AI-8 Slot 1",   "AI-8 Analog Input",    "AX",    1, 0, "PT-601 TT-601 PDT-601A PDT-601B PT-602 "
                                                             "TT-602 PDT-602A PDT-602B"},
    {"AO-2 Slot 2",   "AO-2 Analog Output",   "AY",    1, 0, "PCV-601 FCV-601"},
    {"DI-16 Slot 3",  "DI-16 Digital Input",  "X",     1, 0, "XV-60{1..4}_{OPN,CLS} ESD-600 PAH-601 "
                                                             "PAL-601"},
    {"DO-8 Slot 4",   "DO-8 Digital Output",  "Y",     1, 0, "XV-60{1..4}_CMD"},
    {"PI-4 Slot 5",   "PI-4 Pulse Input",     "LX",    1, 0, "FT-601_RAW FT-602_RAW"},
    {"VX_CMD",        "Virtual Module",       "X",   101, 2, "HS-60#_HOLD HS-60#_TOTHOLD HS-60#_RESET "
                                                             "HS-60#_GCEN"},
    {"VAX_LOG",       "Virtual Module",       "AX",  101, 0, "AXLOG_{01..32}"},
    {"VAY_STATUS",    "Virtual Module",       "AY",  101, 2, "NS-60#_FLOW NS-60#_GAS"},
    {"VFX_LOG",       "Virtual Module",       "FX", 1001, 0, "FXLOG_{001..128}"},
    {"VFX_RUNS",      "Virtual Module",       "FX", 1201, 2, "DT-60#_PV TIT-60#_PV PIT-60#_PV "
                                                             "PDIT-60#_PV ID-60#_PIPE ID-60#_ORIF "
                                                             "RGH-60#_K SVT-60#_T"},
    {"VFX_GC",        "Virtual Module",       "FX", 1301, 2, "AT-60#_{C1,N2,CO2,C2,C3,H2O,H2S,H2,CO,O2,"
                                                             "iC4,nC4,iC5,nC5,nC6,nC7,nC8,nC9,nC10,He,Ar} "
                                                             "AT-60#_HV AT-60#_SG"},
    {"VFX_STATION",   "Virtual Module",       "FX", 1401, 0, "PIT-600_ATM TIT-600_AMB FX_SPARE_{1..6}"},
    {"VFY_RUNS",      "Virtual Module",       "FY", 1001, 2, "FI-60#_VOL FI-60#_MASS FQI-60#_VOL "
                                                             "FQI-60#_MASS"},
    {"VFY_GAS",       "Virtual Module",       "FY", 1101, 2, "GQ-60#_RHOTP GQ-60#_RHOS GQ-60#_Z "
                                                             "GQ-60#_ZS GQ-60#_FPVS GQ-60#_GRS GQ-60#_UNC"},
    {"VLX_LOG",       "Virtual Module",       "LX", 1001, 0, "LXLOG_{1..8}"},
    {"VLX_PULSE",     "Virtual Module",       "LX", 1101, 2, "FT-60#_PLS LX-60#_SPARE1 LX-60#_SPARE2"},
}};

// One run with fixed composition, a second one lacks digitals; names with letters beyond ASCII, as its
// builder wrote them.
constexpr std::array<SampleModule, 11> Skid = {{
    {"EA-8 Ranura 1", "EA-8 Entrada analógica", "AX",    1, 0, "PIT_1201A PIT_1201B TIT_1201A TIT_1201B "
                                                               "PDT_101A PDT_101B"},
    {"ED-8 Ranura 2", "ED-8 Entrada digital",   "X",     1, 0, "XV-304_Abierta"},
    {"SD-4 Ranura 3", "SD-4 Salida digital",    "Y",     1, 0, "Baliza_Señal"},
    {"VX_Órdenes",    "Virtual Module",         "X",   101, 0, "Parar_Cálculo Parar_Totalización "
                                                               "Reposición_Totales"},
    {"VAX_Registro",  "Virtual Module",         "AX",  101, 0, "AX_Registro_{01..32}"},
    {"VAY_Estado",    "Virtual Module",         "AY",  101, 0, "Estado_Medición Estado_Gas"},
    {"VFX_Registro",  "Virtual Module",         "FX", 1001, 0, "FX_Registro_{001..128}"},
    {"VFX_Medición",  "Virtual Module",         "FX", 1201, 0, "TIT_1201A_°C PIT_1201A_bar PDT_101A_mbar "
                                                               "Densidad_Línea Presión_Atmosférica "
                                                               "Ø_Tubería Ø_Placa"},
    {"VFY_Medición",  "Virtual Module",         "FY", 1001, 0, "Caudal_Ñ Caudal_Másico Volumen_Día "
                                                               "Masa_Día Densidad_PT Densidad_Ref "
                                                               "Z_Línea Z_Ref Fpv Densidad_Relativa "
                                                               "Incertidumbre FY_Reserva_{01..24}"},
    {"VLX_Registro",  "Virtual Module",         "LX", 1001, 0, "LX_Registro_{1..8}"},
    {"VLX_Pulsos",    "Virtual Module",         "LX", 1101, 0, "FT_1201A_Pulsos LX_Reserva_{1..3}"},
}};

constexpr std::array<SampleStation, 8> Stations = {{
    {"Northgate_Custody",  "Orm Custody Transfer", "10.20.1.11", 20041187, Northgate},
    {"Eastfield_Meter",    "Orm Single Run",       "10.20.1.21", 20041203, Eastfield},
    {"Quarry_Turbine",     "Orm Turbine Station",  "10.20.1.31", 20052214, Quarry},
    {"Lakeside_Delivery",  "Orm Delivery Point",   "10.20.1.41", 20052231, Lakeside},
    {"Skid_Añelo",         "Skid de medición",     "10.20.2.11", 20063008, Skid},
    {"Odorizer_2",         "Orm Odorizer",         "10.20.2.21", 20063015, Odorizer},
    {"Valve_Site_12",      "Orm Valve Site",       "10.20.2.31", 20063042, Valve},
    {"Pig_Receiver_3",     "Orm Valve Site",       "10.20.2.41", 20063077, {}},
}};

// clang-format on

} // namespace

std::span<const SampleStation> SampleStations() {
    return Stations;
}

} // namespace gfc::workshop
