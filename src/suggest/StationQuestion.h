#pragma once

#include "suggest/Known.h"

namespace gfc::suggest {

// What to ask for; what is empty is taken from the station's file.
struct Choices {
    std::string Standard;             // as the file writes it: "AGA3"
    std::string Source;               // "AGA8"
    bool CompositionMeasured = false; // counts where a source is given
    std::vector<int> Runs;            // 1 to 5
};

// All unbound variables of the runs, under the station's own choices and those given; tags are all of the
// station's. Without wants where neither the file nor the choices say for which standard, source and runs.
[[nodiscard]] Question QuestionFor(const config::FileIni& ini, const project::Project& project,
                                   const std::string& station, project::TagList tags, const Choices& choices);

} // namespace gfc::suggest
