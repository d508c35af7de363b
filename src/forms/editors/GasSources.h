#pragma once

#include "forms/editors/EditorParts.h"

#include <string>

// From which other runs the editors of fixed gas data can copy, and what they find there. Runs are counted
// from 0.
namespace gfc::forms {

// While the whole station is in hand (the wizard and the configurator) other runs' values are in memory;
// otherwise they are read from the station's file.
[[nodiscard]] bool GasSourcesAreInFile(const Session& session);

// Enables each other active run, and the copy button if there is one. In memory a run is active by RunList
// and must have the witness entered already; in the file its own flag alone counts.
void OfferGasSources(const Program& program, const std::string& file, config::GasSlot witness,
                     SourceRuns& runs, ui::CommandButton& copy);

// -1 if none is chosen.
[[nodiscard]] int ChosenSource(const SourceRuns& runs);

// The values in memory of an active run; null if it has none.
[[nodiscard]] const config::RunGas* GasInMemory(const Session& session, int run);

// What an editor has left in GasComposition, into a run's record: the values of the family in use.
void TakeFixedGas(const config::StationConfig& station, config::RunGas& record);

// The refusals that both editors have in common; what is "gas composition" or "gas properties".
void RefuseIncompleteGas(ui::Screen& screen);
void RefuseCopyWithoutSource(ui::Screen& screen, const std::string& title, const std::string& what);

} // namespace gfc::forms
