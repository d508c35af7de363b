#include "workshop/demo/SampleTags.h"

#include "workshop/demo/TagPattern.h"

#include <algorithm>

namespace gfc::workshop {

namespace {

// The smallest station of the sample that carries a run of every density source.
constexpr std::string_view TemplateSample = "Eastfield_Meter";

void AppendModule(std::vector<Tag>& tags, const SampleModule& module) {
    std::int32_t address = module.Register;
    for (const std::string& name : ExpandTags(module.Tags, module.Runs)) {
        tags.push_back({name, std::string(module.Class), address++, std::string(module.Name),
                        std::string(module.Type), ""});
    }
}

} // namespace

StationTags StationTagsOf(const SampleStation& sample) {
    StationTags made;
    made.TheStation = {0, std::string(sample.Name), std::string(sample.Type), std::string(sample.Address),
                       sample.SerialNumber};
    for (const SampleModule& module : sample.Modules) {
        AppendModule(made.Tags, module);
    }
    return made;
}

StationTags TemplateStation() {
    const auto samples = SampleStations();
    const auto sample = std::find_if(samples.begin(), samples.end(), [](const SampleStation& station) {
        return station.Name == TemplateSample;
    });
    StationTags made = StationTagsOf(*sample);
    made.TheStation.Name = "My_Station";
    return made;
}

} // namespace gfc::workshop
