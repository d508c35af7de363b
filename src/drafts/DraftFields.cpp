#include "drafts/DraftFields.h"

#include "config/CommonLayout.h"
#include "config/RunLayout.h"

#include <variant>

namespace gfc::drafts {

namespace {

struct RunRecords {
    config::RunIO& IO;
    config::RunGas& Gas;
    config::RunMechanical& Mechanical;
};

// Null for what belongs to the whole station. A fixed value stands where the binding would.
std::string* PlaceOf(const config::RunRow& row, config::BindingPart part, const RunRecords& run) {
    if (const auto* text = std::get_if<std::string config::RunMechanical::*>(&row.Field))
        return &(run.Mechanical.**text);
    if (const auto* text = std::get_if<std::string config::RunIO::*>(&row.Field))
        return &(run.IO.**text);
    if (const auto* tag = std::get_if<config::TagBinding config::RunIO::*>(&row.Field))
        return &config::PartOf(run.IO.**tag, part);
    if (const auto* gas = std::get_if<config::GasBinding>(&row.Field))
        return &config::PartOf(run.Gas[gas->Slot], part);
    return nullptr;
}

void EachTextOf(const RunRecords& run, const std::string& lead, const Visit& visit) {
    for (const config::RunRow& row : config::RunRows())
        config::ForEachPart(row, [&](config::BindingPart part) {
            if (std::string* const place = PlaceOf(row, part, run))
                visit(lead + config::KeyOf(row, part, config::KeyUse::FullWrite), *place);
        });
}

} // namespace

void EachOwnText(Draft& draft, const Visit& visit) {
    visit("Id", draft.Id);
    visit("Station", draft.Station.CurrentStation);
    visit("User", draft.Station.UserId);
    visit("Begun", draft.Begun);
    visit("Kept", draft.Kept);
    visit("StandsAt", draft.StandsAt);
    visit("FileMark", draft.FileMark);
}

// Without the project and the person: they are those of who goes on.
void EachCommonText(config::StationConfig& station, const Visit& visit) {
    for (const config::CommonRow& row : config::CommonRows()) {
        std::string* const place = config::CommonPlaceOf(row.Written, station);
        if (place == nullptr || place == &station.ProjectFile || place == &station.CurrentStation ||
            place == &station.UserId)
            continue;
        visit("Common." + std::to_string(static_cast<int>(row.Section)) + "." + std::string(row.Key), *place);
    }
    // Some stand in the sections of the runs alone.
    for (const config::RunRow& row : config::RunRows())
        if (const auto* copy = std::get_if<config::CommonCopy>(&row.Field))
            visit("EachRun." + std::string(row.Name), station.*copy->Value);
}

void EachRunText(config::RunArrays& runs, const Visit& visit) {
    for (std::size_t element = 0; element < runs.IO.size(); ++element)
        EachTextOf({runs.IO[element], runs.Gas[element], runs.Mechanical[element]},
                   "Run." + std::to_string(element) + ".", visit);
}

} // namespace gfc::drafts
