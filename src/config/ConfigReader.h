#pragma once

#include "config/FileIni.h"
#include "config/VarINIFile.h"

// Reads a station's configuration file into the model. What the file does not hold ends as the empty text;
// nothing is reported. run is the run's number, 1 to 5.
namespace gfc::config {

// The common part. RunList, ActiveRunCount, FlagAGA7 and Measured stay as they were: whoever opens the
// station sets them.
void LoadStationConfig(const FileIni& ini, StationConfig& station, const std::string& file);

// One run into element 0 of the run arrays, which become a single-run arrangement, and its fixed gas values
// into GasComposition. GasDensitySource must have been loaded before.
void LoadRun(const FileIni& ini, StationConfig& station, const std::string& file, int run);

// A run's fixed gas values alone, into GasComposition: the 21 components where the source is of the detail
// family, the four gross properties otherwise. The slots of the other family stay as they were.
void LoadFixedComposition(const FileIni& ini, StationConfig& station, const std::string& file, int run);

// A run's fixed mechanical data alone, with the copies of PressType, ExtAtmPress and AtmPress.
[[nodiscard]] RunMechanical LoadRunMechanical(const FileIni& ini, const std::string& file, int run);

} // namespace gfc::config
