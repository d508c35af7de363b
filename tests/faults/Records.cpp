#include "faults/Records.h"

#include "platform/Files.h"
#include "record/ProjectRecorder.h"
#include "record/Sha256.h"
#include "support/FakeTime.h"

#include <map>
#include <sstream>
#include <utility>
#include <vector>

namespace gfc::test::faults {

namespace {

namespace fs = std::filesystem;

const std::string Prefix = "KDOrmAGA_";
const std::string Ending = "_History.sqlite";
const std::string Damaged = "DAMAGED ";
const std::string Behind = "BEHIND ";

// Stations by their names, and the hash of what each has; none for who has nothing.
using Hashes = std::map<std::string, std::string>;

Hashes HashesOnDisk(const fs::path& folder, const std::string& project) {
    Hashes hashes;
    const std::string start = Prefix + project + "_";
    // As the program reads them, which puts right first what a dead writer has left half-way.
    const auto files = platform::MakeFiles();
    for (const auto& found : fs::directory_iterator(folder)) {
        const std::string name = found.path().filename().string();
        if (!name.starts_with(start) || !name.ends_with(".ini"))
            continue;
        if (const auto bytes = files->Read(found.path().string()))
            hashes[name.substr(start.size(), name.size() - start.size() - 4)] = record::Sha256(*bytes);
    }
    return hashes;
}

std::string ProjectOf(const std::string& record) {
    return record.substr(Prefix.size(), record.size() - Prefix.size() - Ending.size());
}

std::string TextOf(const fs::path& folder, const std::string& name) {
    const FixedClock clock(2023, 3, 15, 12, 0);
    const FixedZone zone(0);
    record::ProjectRecorder recorder(clock, zone, "operator");
    const std::string file = (folder / name).string();
    std::string text;
    Hashes known;
    for (const config::RecordEntry& entry : recorder.Entries(file, {})) {
        text += entry.Station + " " + entry.Command + " " + entry.User + " " + entry.FileHash + "\n";
        known[entry.Station] = entry.FileHash;
    }
    if (const auto check = recorder.Verify(file); check.Damage)
        text += Damaged + check.Damage->Reason + "\n";
    std::erase_if(known, [](const auto& station) { return station.second.empty(); });
    const Hashes there = HashesOnDisk(folder, ProjectOf(name));
    Hashes either = known;
    either.insert(there.begin(), there.end());
    for (const auto& [station, hash] : either)
        if (!there.contains(station) || !known.contains(station) || known.at(station) != there.at(station))
            text += Behind + station + "\n";
    return text;
}

std::vector<std::string> LinesOf(const Entry* record) {
    std::vector<std::string> lines;
    std::istringstream text(record == nullptr ? std::string() : record->Bytes);
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

bool IsRecord(const std::string& name) {
    return name.ends_with(Ending);
}

bool IsOfRecord(const std::string& name) {
    return IsRecord(name) || name.ends_with(Ending + "-journal");
}

void ReadRecords(const fs::path& folder, Content& content) {
    for (auto& [name, entry] : content)
        if (IsRecord(name))
            entry = {TextOf(folder, name), 0};
    std::erase_if(content, [](const auto& file) { return IsOfRecord(file.first) && !IsRecord(file.first); });
}

bool IsBehind(const Entry& record) {
    return record.Bytes.starts_with(Behind) || record.Bytes.find("\n" + Behind) != std::string::npos;
}

std::string FaultInRecord(const Entry* before, const Entry* now) {
    const auto had = LinesOf(before);
    const auto has = LinesOf(now);
    std::map<std::string, std::string> last; // entry by station
    for (std::size_t i = 0; i < has.size(); ++i) {
        if (has[i].starts_with(Damaged))
            return has[i];
        if (i < had.size() && has[i] != had[i] && !had[i].starts_with(Behind))
            return "the record has lost an entry: " + had[i];
        const std::string station = has[i].substr(0, has[i].find(' '));
        if (!has[i].starts_with(Behind) && std::exchange(last[station], has[i]) == has[i])
            return "the record has an entry twice: " + has[i];
    }
    return has.size() < had.size() ? "the record has lost entries" : "";
}

std::string WhatIsNotMadeUp(const fs::path& folder, const std::string& project) {
    const std::string text = TextOf(folder, Prefix + project + Ending);
    return IsBehind({text, 0}) || text.find(Damaged) != std::string::npos ? text : std::string();
}

} // namespace gfc::test::faults
