#pragma once

#include "config/FileIni.h"
#include "project/Project.h"
#include "suggest/Suggest.h"

namespace gfc::suggest {

// What a station's file binds, of runs that are off as well; empty without a file.
[[nodiscard]] std::vector<BoundVariable> BoundInFile(const config::FileIni& ini, const std::string& file);

// What the records of a run bind; element is that of the run arrays, run is 1 to 5.
[[nodiscard]] std::vector<BoundVariable> BoundInRecords(const config::StationConfig& station, int element,
                                                        int run);

// The configured stations of the project but for one, with what they bind.
[[nodiscard]] std::vector<OtherStation>
OtherStationsOf(const config::FileIni& ini, const project::Project& project, std::string_view station);

// The runs that a station's file has on, ascending; none without a file.
[[nodiscard]] std::vector<int> RunsInFile(const config::FileIni& ini, const std::string& file);

// One line for people: "North: run 2, Pressure". For run 0 no run is said.
[[nodiscard]] std::string PlaceOf(std::string_view station, const Want& variable);

// Where the project's stations use a tag, each in a line as PlaceOf has it. A register is the same in two
// stations by chance, so that in others than its own the name must be the same, too.
[[nodiscard]] std::vector<std::string> WhereUsed(const config::TagBinding& tag, std::string_view station,
                                                 const std::vector<BoundVariable>& own,
                                                 const std::vector<OtherStation>& others);

} // namespace gfc::suggest
