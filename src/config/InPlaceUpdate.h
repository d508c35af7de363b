#pragma once

#include "config/FileIni.h"
#include "config/VarINIFile.h"

#include <span>
#include <string_view>

// Changes a configuration file key by key, so that whatever the operation does not concern stays in it: other
// runs, and keys that the model does not hold. A file that is not there comes into being with the touched
// sections only. run is the run's number, 1 to 5.
namespace gfc::config {

// The bindings of one kind (1 run inputs, 2 run outputs, 3 gas outputs, 4 gas inputs) from element 0 of the
// run arrays. Enables the run whatever the kind; any other kind does nothing more. Kind 1 also deletes what
// the choices no longer allow, kind 4 never deletes.
void WriteRunBindings(FileIni& ini, const StationConfig& station, int kind, int run, const std::string& file);

// Keys of a run's section that stand apart from the bindings, in the order in which they are written.
namespace runkeys {
extern const std::span<const std::string_view> CommonValues; // base conditions, gas, algorithm and source
extern const std::span<const std::string_view> Pressure;     // pressure type and atmospheric pressure
extern const std::span<const std::string_view> Mechanical;   // pipe, orifice and tap, without ExtMechParam
extern const std::span<const std::string_view> ExtMechParam;
extern const std::span<const std::string_view> Accelabar;
} // namespace runkeys

// Common values are taken from the station, except that Compressible is always "Yes" here, and mechanical
// ones from the record.
void WriteRunKeys(FileIni& ini, const StationConfig& station, const RunMechanical& mechanical,
                  std::span<const std::string_view> keys, int run, const std::string& file);

// What a newly added run needs besides its bindings: both its flags in FlowRuns as "Yes", the common values,
// and what the algorithm asks for.
void WriteAddedRunKeys(FileIni& ini, const StationConfig& station, const RunMechanical& mechanical, int run,
                       const std::string& file);

// Keys of the common section of the flow algorithm, from the model as it stands, Compressible too.
void WriteFlowKeys(FileIni& ini, const StationConfig& station, std::span<const std::string_view> keys,
                   const std::string& file);

// The configurator's save of a stored configuration: the common values, and their copies in every run that is
// configured, enabled or not. The registers of the working modules must have been resolved before.
void SaveConfiguratorChanges(FileIni& ini, const StationConfig& station, const std::string& file);

} // namespace gfc::config
