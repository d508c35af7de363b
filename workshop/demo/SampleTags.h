// The tables of the sample as stations with their tags.
#pragma once

#include "workshop/demo/SampleStations.h"
#include "workshop/store/Tags.h"

namespace gfc::workshop {

[[nodiscard]] StationTags StationTagsOf(const SampleStation& sample);

/// A station that carries one run of the configurator, to be changed into a station of one's own.
[[nodiscard]] StationTags TemplateStation();

} // namespace gfc::workshop
