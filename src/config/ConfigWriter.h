#pragma once

#include "config/FileIni.h"
#include "config/VarINIFile.h"

// The full write of a station's configuration file, section by section from the model. Values go out as they
// stand; an empty one gives a line that ends in "=". Results of the writes are deliberately not looked at.
namespace gfc::config {

// FlagAGA7 must be right: it alone names the section of the common flow parameters.
void WriteCommonSections(FileIni& ini, const StationConfig& station, const std::string& file);

// The section of the gas model alone, whatever the source.
void WriteGasSection(FileIni& ini, const StationConfig& station, const std::string& file);

// run is 0 to 4, element its place in the run arrays; an element that is not there counts as an empty one.
void WriteRunSection(FileIni& ini, const StationConfig& station, const std::string& file, int run,
                     int element);

// The common sections, then each run whose flag in RunList is exactly "Yes", from the whole-station
// arrangement. One replace of the file. Deleting an older file is the caller's; a run's section that is not
// written stays in it.
void SaveWholeConfiguration(FileIni& ini, const StationConfig& station, const std::string& file);

} // namespace gfc::config
