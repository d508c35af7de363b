#pragma once

#include "drafts/Draft.h"

#include <functional>

namespace gfc::drafts {

using Visit = std::function<void(const std::string& name, std::string& text)>;

// Calls with the name and the place of each text that a draft holds, apart from its lists. Which texts a
// configuration consists of is told by the tables of its file's layout. The records of as many runs as are
// prepared are gone through.
void EachOwnText(Draft& draft, const Visit& visit);
void EachCommonText(config::StationConfig& station, const Visit& visit);
void EachRunText(config::RunArrays& runs, const Visit& visit);

} // namespace gfc::drafts
