#pragma once

#include "config/FileIni.h"
#include "plan/Columns.h"
#include "project/Project.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::plan {

struct TemplateStation {
    std::string Station;
    std::string File;
    const project::TagList* Tags; // of the station, to tell those of one name apart; null where unknown
};

// A plan that says what these stations are, a row for each run that is on: applied it gives the same files.
// tags is empty for the tags by their names, else what the column Tags is to say. Columns that would be empty
// are left out, but those that every plan has.
[[nodiscard]] std::vector<std::vector<std::string>>
TemplateOf(const config::FileIni& ini, const std::vector<TemplateStation>& stations, std::string_view tags);

} // namespace gfc::plan
