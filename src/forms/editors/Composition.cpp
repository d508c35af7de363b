#include "forms/editors/Composition.h"

#include <algorithm>
#include <string>

namespace gfc::forms {

using Slot = config::GasSlot;

// Deliberate: what leaving a field checks differs in six rows from the field itself (1, 16, 17, 21, 22, 27).
// Fields 17 and 21 never get a check of their own.
// clang-format off
const std::array<ComponentRow, config::Components> ComponentRows{{
    // no., label, component, default                                tests, selects, by the length of
    //                                                               shape         range
    { 1, "Nitrogen",        Slot::GC_N2,   "0.002595", { 1,  1,  1}, { 1,  1, 10}},
    { 8, "Water",           Slot::GC_H2O,  "0.000000", { 8,  8,  8}, { 8,  8,  8}},
    { 9, "Helium",          Slot::GC_He,   "0.000000", { 9,  9,  9}, { 9,  9,  9}},
    {10, "Methane",         Slot::GC_C1,   "0.965222", {10, 10, 10}, {10, 10, 10}},
    {11, "Ethane",          Slot::GC_C2,   "0.018186", {11, 11, 11}, {11, 11, 11}},
    {12, "Propane",         Slot::GC_C3,   "0.004596", {12, 12, 12}, {12, 12, 12}},
    {13, "iButane",         Slot::GC_iC4,  "0.000977", {13, 13, 13}, {13, 13, 13}},
    {14, "nButane",         Slot::GC_nC4,  "0.001007", {14, 14, 14}, {14, 14, 14}},
    {15, "iPentane",        Slot::GC_iC5,  "0.000473", {15, 15, 15}, {15, 15, 15}},
    {16, "nPentane",        Slot::GC_nC5,  "0.000324", {16, 16, 13}, {16, 16, 16}},
    {17, "nHexane",         Slot::GC_nC6,  "0.000664", {16, 16, 16}, {16, 16, 16}},
    {18, "nHeptane",        Slot::GC_nC7,  "0.000000", {18, 18, 18}, {18, 18, 18}},
    {19, "nOctane ",        Slot::GC_nC8,  "0.000000", {19, 19, 19}, {19, 19, 19}},
    {20, "nNonane",         Slot::GC_nC9,  "0.000000", {20, 20, 20}, {20, 20, 20}},
    {21, "nDecane",         Slot::GC_nC10, "0.000000", {13, 13, 13}, {20, 20, 20}},
    {22, "Oxygen",          Slot::GC_O2,   "0.000000", {22, 22, 13}, {22, 22, 22}},
    {23, "Carbon Monoxide", Slot::GC_CO,   "0.000000", {23, 23, 23}, {23, 23, 23}},
    {24, "Hydrogen",        Slot::GC_H,    "0.000000", {24, 24, 24}, {24, 24, 24}},
    {25, "Carbon Dioxide",  Slot::GC_CO2,  "0.005956", {25, 25, 25}, {25, 25, 25}},
    {26, "H2S",             Slot::GC_H2S,  "0.000000", {26, 26, 26}, {26, 26, 26}},
    {27, "Argon",           Slot::GC_Ar,   "0.000000", {27, 13, 13}, {27, 13, 27}},
}};
// clang-format on

namespace {

std::size_t IndexOf(int number) {
    const auto found = std::ranges::find(ComponentRows, number, &ComponentRow::Number);
    return static_cast<std::size_t>(found - ComponentRows.begin());
}

} // namespace

CompositionFields::Entry::Entry(ui::Frame& place, const ComponentRow& row)
    : Label(place, "Label" + std::to_string(row.Number), row.Label),
      Text(place, "Text" + std::to_string(row.Number)) {}

CompositionFields::CompositionFields(ui::Frame& place) {
    for (std::size_t i = 0; i < entries_.size(); ++i)
        entries_[i] = std::make_unique<Entry>(place, ComponentRows[i]);
}

ui::TextBox& CompositionFields::operator[](int number) {
    return entries_.at(IndexOf(number))->Text;
}

} // namespace gfc::forms
