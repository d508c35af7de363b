#include "suggest/Meaning.h"

namespace gfc::suggest {

namespace {

using enum naming::Subject;
using List = std::vector<naming::Subject>;

// Every row may say gas and its calculation, where nothing else is said of them.
const std::vector<Meaning>& Table() {
    // clang-format off
    static const std::vector<Meaning> table = {
        {"GasDensityKDIO",         {Density},                  {Flowing, Gas, Pipe}},
        {"GasTempKDIO",            {Temperature},              {Flowing, Gas, Pipe, Flow, Static}},
        {"GasPressKDIO",           {Pressure},                 {Flowing, Gas, Pipe, Static, Flow}},
        {"GasDPKDIO",              {Differential},             {Pressure, Orifice, Gas, Flow}},
        {"PipeDiaKDIO",            {Pipe, Diameter},           {}},
        {"OrificeDiaKDIO",         {Orifice, Diameter},        {}},
        {"PipeAbsRoughnessKDIO",   {Roughness},                {Pipe}},
        {"OrificeServiceTimeKDIO", {ServiceTime},              {Orifice}},
        {"GasPulseInputKDIO",      {Pulses},                   {Flow, Volume, Gas, Totalize}},
        {"CommonPaKDIO",           {Atmospheric},              {Pressure, Static}},
        {"GFCRunHoldKDIO",         {Hold},                     {Flow, Running, FlowCalculation, Gas}},
        {"GFCRunHoldKDIO",         {Running},                  {Flow, FlowCalculation}},
        {"GFCRunHoldKDIO",         {Enable, Flow},             {FlowCalculation}},
        {"GFCTotalizeHoldKDIO",    {Totalize, Hold},           {Flow, Volume, Running}},
        {"GFCTotalizeHoldKDIO",    {Totalize, Enable},         {Flow, Volume}},
        {"GFCTotalizeHoldKDIO",    {Totalize},                 {Flow, Volume, Running}},
        {"ResetTotalsKDIO",        {Reset},                    {Totalize, Volume, Flow, Mass}},
        {"StdVolFlowKDIO",         {Flow},                     {Standard, Volume, Rate}},
        {"StdVolFlowKDIO",         {Rate, Volume},             {Standard}},
        {"StdMassFlowKDIO",        {Flow, Mass},               {Rate, Standard}},
        {"StdMassFlowKDIO",        {Rate, Mass},               {}},
        {"GasVolumeKDIO",          {Volume},                   {Standard, Totalize}},
        {"GasMassKDIO",            {Mass},                     {Totalize, Standard}},
        {"AGA3StatusKDIO",         {Status},                   {Flow, FlowCalculation}},
        {"AGA8rhotpKDIO",          {Density},                  {Flowing, Flow}},
        {"AGA8rhosKDIO",           {Density, Standard},        {}},
        {"AGA8zKDIO",              {Compressibility},          {Flowing, Flow}},
        {"AGA8zsKDIO",             {Compressibility, Standard},{}},
        {"AGA8fpvsKDIO",           {Supercompressibility},     {}},
        {"AGA8GRsKDIO",            {RelativeDensity},          {Density, Standard}},
        {"AGA8uncertKDIO",         {Uncertainty},              {}},
        {"AGA8StatusKDIO",         {Status, GasCalculation},   {Gas}},
        {"AGA8StatusKDIO",         {Status, Gas},              {}},
        {"GC_C1KDIO",              {Methane},                  {Analyser}},
        {"GC_N2KDIO",              {Nitrogen},                 {Analyser}},
        {"GC_CO2KDIO",             {CarbonDioxide},            {Analyser}},
        {"GC_C2KDIO",              {Ethane},                   {Analyser}},
        {"GC_C3KDIO",              {Propane},                  {Analyser}},
        {"GC_H2OKDIO",             {Water},                    {Analyser}},
        {"GC_H2SKDIO",             {HydrogenSulfide},          {Analyser}},
        {"GC_HKDIO",               {Hydrogen},                 {Analyser}},
        {"GC_COKDIO",              {CarbonMonoxide},           {Analyser}},
        {"GC_O2KDIO",              {Oxygen},                   {Analyser}},
        {"GC_iC4KDIO",             {IsoButane},                {Analyser}},
        {"GC_nC4KDIO",             {NormalButane},             {Analyser}},
        {"GC_iC5KDIO",             {IsoPentane},               {Analyser}},
        {"GC_nC5KDIO",             {NormalPentane},            {Analyser}},
        {"GC_nC6KDIO",             {Hexane},                   {Analyser}},
        // Whether all from hexane on is entered as hexane is the engineer's choice, and so is never sure.
        {"GC_nC6KDIO",             {HexanePlus},               {Analyser, Hexane}},
        {"GC_nC7KDIO",             {Heptane},                  {Analyser}},
        {"GC_nC8KDIO",             {Octane},                   {Analyser}},
        {"GC_nC9KDIO",             {Nonane},                   {Analyser}},
        {"GC_nC10KDIO",            {Decane},                   {Analyser}},
        {"GC_HeKDIO",              {Helium},                   {Analyser}},
        {"GC_ArKDIO",              {Argon},                    {Analyser}},
        {"GCEnableKDIO",           {Enable, Analyser},         {Gas}},
        {"GCEnableKDIO",           {Enable, Gas},              {}},
        {"VolCalorificValueKDIO",  {CalorificValue},           {Analyser, Volume}},
        {"RelativeDensityKDIO",    {RelativeDensity},          {Analyser, Density}},
        {"XCO2KDIO",               {CarbonDioxide},            {Analyser}},
        {"XH2KDIO",                {Hydrogen},                 {Analyser}},
    };
    // clang-format on
    return table;
}

} // namespace

std::span<const Meaning> Meanings() {
    return Table();
}

std::vector<const Meaning*> MeaningsOf(const binding::VariableRow& row) {
    std::vector<const Meaning*> found;
    for (const Meaning& meaning : Table())
        if (meaning.Stem == row.Stem)
            found.push_back(&meaning);
    return found;
}

bool IsInput(const binding::VariableRow& row) {
    return row.Stage != binding::BindingStage::RunOutputs && row.Stage != binding::BindingStage::GasOutputs;
}

} // namespace gfc::suggest
