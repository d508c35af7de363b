#include "workshop/import/TagImport.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>

namespace gfc::workshop {

namespace {

std::string Folded(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// What a station has so far, in the project and in the rows above.
struct StationState {
    Station Known; // its Id is 0 while the project does not have it
    std::map<std::string, std::string> ModuleTypes;
    std::set<std::string> Names;
    std::set<std::string> Registers;
    std::vector<Tag> NewTags;
};

class Import {
public:
    Import(Project& project, ImportMode mode, ImportResult& result)
        : project_(project), mode_(mode), result_(result) {}

    void Take(const TableRow& row) {
        StationState& station = StateOf(row.Station);
        TakeProperties(station, row);
        if (HoldsTag(row)) {
            TakeTag(station, row);
        }
    }

    void Store() {
        for (const std::string& name : order_) {
            StoreStation(states_.at(name));
        }
        result_.Stations = order_.size();
    }

private:
    StationState& StateOf(const std::string& name) {
        const auto [place, isNew] = states_.try_emplace(Folded(name));
        if (isNew) {
            order_.push_back(place->first);
            place->second = Begin(name);
        }
        return place->second;
    }

    StationState Begin(const std::string& name) {
        StationState state;
        state.Known = FindStation(project_, name).value_or(Station{0, name, "", "", 0});
        if (mode_ == ImportMode::Add && state.Known.Id != 0) {
            for (const Tag& tag : ListTags(project_, state.Known.Id)) {
                Remember(state, tag);
            }
        }
        return state;
    }

    static void Remember(StationState& state, const Tag& tag) {
        state.ModuleTypes.emplace(Folded(tag.Module), tag.ModuleType);
        state.Names.insert(Folded(tag.Name));
        state.Registers.insert(tag.Class + ' ' + std::to_string(tag.Register));
    }

    // The properties of a station are given once or alike on each row; an empty field says nothing.
    void TakeProperties(StationState& station, const TableRow& row) {
        TableRow& given = properties_[Folded(row.Station)];
        Agree(given.Station, row.Station, row, "Station");
        Agree(given.StationType, row.StationType, row, "Station Type");
        Agree(given.Address, row.Address, row, "IP Address");
        Agree(given.SerialNumber, row.SerialNumber, row, "Serial Number");
        Station& known = station.Known;
        known.Type = given.StationType.empty() ? known.Type : given.StationType;
        known.Address = given.Address.empty() ? known.Address : given.Address;
        known.SerialNumber = given.SerialNumber.empty() ? known.SerialNumber : NumberOf(given.SerialNumber);
    }

    void Agree(std::string& given, const std::string& text, const TableRow& row, const char* column) {
        if (given.empty()) {
            given = text;
        } else if (!text.empty() && text != given) {
            Complain(row, column, "\"" + text + "\" differs from \"" + given + "\" further up");
        }
    }

    void TakeTag(StationState& station, const TableRow& row) {
        Tag tag = TagOf(row);
        const auto [module, isNew] = station.ModuleTypes.try_emplace(Folded(tag.Module), tag.ModuleType);
        if (!isNew && module->second != tag.ModuleType) {
            Complain(row, "Module Type", "module \"" + tag.Module + "\" has type \"" + module->second + "\"");
        }
        if (!station.Names.insert(Folded(tag.Name)).second) {
            Complain(row, "Tag", "the station has a tag \"" + tag.Name + "\" already");
        }
        const std::string place = tag.Class + ' ' + std::to_string(tag.Register);
        if (!station.Registers.insert(place).second) {
            Complain(row, "Register", "the station has a tag at " + place + " already");
        }
        station.NewTags.push_back(std::move(tag));
    }

    void Complain(const TableRow& row, const char* column, std::string text) {
        result_.Complaints.push_back({row.Row, column, std::move(text)});
    }

    void StoreStation(StationState& state) {
        Station& station = state.Known;
        if (station.Id == 0) {
            station.Id = AddStation(project_, station);
        } else {
            UpdateStation(project_, station);
        }
        if (mode_ == ImportMode::Replace) {
            RemoveTags(project_, station.Id);
        }
        TagAppender appender(project_, station.Id);
        for (const Tag& tag : state.NewTags) {
            appender.Append(tag);
        }
        result_.Tags += state.NewTags.size();
    }

    Project& project_;
    ImportMode mode_;
    ImportResult& result_;
    std::map<std::string, StationState> states_;
    std::map<std::string, TableRow> properties_;
    std::vector<std::string> order_; // of appearance, in which new stations come into the project
};

} // namespace

ImportResult ImportTags(Project& project, const std::filesystem::path& csv, ImportMode mode) {
    TagTable table = ReadTagTable(ReadCsv(csv));
    ImportResult result;
    result.Complaints = std::move(table.Complaints);
    Transaction transaction(project.Data());
    Import import(project, mode, result);
    for (const TableRow& row : table.Rows) {
        import.Take(row);
    }
    if (result.Complaints.empty()) {
        import.Store();
        transaction.Commit();
    }
    std::stable_sort(result.Complaints.begin(), result.Complaints.end(),
                     [](const Complaint& a, const Complaint& b) { return a.Row < b.Row; });
    return result;
}

} // namespace gfc::workshop
