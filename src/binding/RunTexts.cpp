#include "binding/RunTexts.h"

#include "config/RunLayout.h"
#include "platform/ProfileKeys.h"
#include "services/CodePage.h"

#include <algorithm>
#include <cstddef>

namespace gfc::binding {

namespace {

// Where the keys of a variable stand among those that are read.
struct KeysOfRow {
    std::size_t Tag, Type, RegAddr;
};

struct Keys {
    platform::ProfileKeys Names;
    std::vector<KeysOfRow> Rows; // in the order of the catalogue
    std::size_t ExtMechParam, ExtCCorrFactors;
};

// In the order in which the program writes them: the section is then read fastest.
std::vector<std::string> NamesInFile() {
    std::vector<std::string> names;
    for (const config::RunRow& row : config::RunRows())
        config::ForEachPart(row, [&](config::BindingPart part) {
            names.push_back(config::KeyOf(row, part, config::KeyUse::FullWrite));
        });
    return names;
}

// The place of a name, which is added if it is not there; case does not count.
std::size_t PlaceIn(std::vector<std::string>& names, std::string_view name) {
    const auto found = std::ranges::find_if(
        names, [&](const std::string& there) { return services::EqualBytesNoCase(there, name); });
    const auto place = static_cast<std::size_t>(found - names.begin());
    if (found == names.end())
        names.emplace_back(name);
    return place;
}

Keys MakeKeys() {
    std::vector<std::string> names = NamesInFile();
    const auto place = [&names](std::string_view name) { return PlaceIn(names, name); };
    std::vector<KeysOfRow> rows;
    for (const VariableRow& row : Catalogue())
        rows.push_back({place(row.TagKey()), place(CheckedTypeKey(row)), place(row.AddressKey())});
    const std::size_t mechanical = place("ExtMechParam");
    const std::size_t corrections = place("ExtCCorrFactors");
    return {platform::ProfileKeys(std::move(names)), std::move(rows), mechanical, corrections};
}

const Keys& AllKeys() {
    static const Keys keys = MakeKeys();
    return keys;
}

} // namespace

std::string CheckedTypeKey(const VariableRow& row) {
    return row.Stem == "VolCalorificValueKDIO" ? "RelativeDensityKDIOType" : row.TypeKey();
}

void RunTexts::Read(const config::FileIni& ini, const std::string& section, const std::string& file) {
    const platform::ProfileKeys& names = AllKeys().Names;
    texts_.resize(names.Count());
    std::vector<std::string*> places;
    places.reserve(texts_.size());
    for (std::string& text : texts_)
        places.push_back(&text);
    ini.ReadKeys(section, names, file, places);
}

config::TagBinding RunTexts::BindingOf(const VariableRow& row) const {
    const KeysOfRow& keys = AllKeys().Rows.at(static_cast<std::size_t>(&row - Catalogue().data()));
    return {.Tag = texts_.at(keys.Tag), .Type = texts_.at(keys.Type), .RegAddr = texts_.at(keys.RegAddr)};
}

const std::string& RunTexts::ExtMechParam() const {
    return texts_.at(AllKeys().ExtMechParam);
}

const std::string& RunTexts::ExtCCorrFactors() const {
    return texts_.at(AllKeys().ExtCCorrFactors);
}

} // namespace gfc::binding
