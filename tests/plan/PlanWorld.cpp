#include "PlanWorld.h"

#include "config/FileIni.h"
#include "suggest/Known.h"
#include "support/InJobs.h"
#include "support/TestFolders.h"

#include <algorithm>
#include <map>
#include <set>

namespace gfc::test {

namespace {

std::string ModuleTypeOf(const std::string& type) {
    return type.front() == 'A' || type.size() == 1 ? "Physical " + type : "Virtual " + type;
}

} // namespace

PlanWorld::PlanWorld() {
    Library.ProjectFile = InJobs("plant.KPJ");
    Project.ProjectFile = Library.ProjectFile;
    Project.ProjectName = project::ProjectNameOf(Library.ProjectFile);
    Project.Paths = config::PathsOf(Library.ProjectFile);
}

void PlanWorld::Configure(const std::string& station, const std::string& goldenFile) {
    const std::string file = FileOf(station);
    Files.Content[file] = Golden(goldenFile);
    config::FileIni ini(Files);
    ini.WriteKey("General", "Project", Library.ProjectFile, file);
    ini.WriteKey("General", "OrmStation", station, file);
    project::TagList tags = TagsInModule("VF0", "Virtual FI", "FX", "LOGF-", 128);
    tags += TagsInModule("VL0", "Virtual LI", "LX", "LOGL-", 8);
    tags += TagsInModule("VA0", "Virtual AI", "AX", "LOGA-", 32);
    // Room for what the gates ask for beyond what is bound.
    tags += TagsInModule("SPARE-F", "Virtual FI", "FX", "SF-", 60, 3001);
    tags += TagsInModule("SPARE-A", "Physical AI", "AX", "SA-", 6, 3001);
    tags += TagsInModule("SPARE-D", "Physical DI", "X", "SD-", 8, 3001);
    std::map<std::string, project::TagList> byType;
    std::set<std::string> seen;
    for (const auto& bound : suggest::BoundInFile(ini, file)) {
        const auto& [tag, type, address] = bound.Binding;
        if (seen.insert(type + address).second)
            byType[type].push_back({tag, std::stoi(address), type, "MOD-" + type, ModuleTypeOf(type)});
    }
    for (const auto& [type, list] : byType)
        tags += list;
    Library.TagsOf[station] = tags;
    Project.Stations.push_back({.Name = station, .Type = {}, .Address = {}});
    Library.Stations = Project.Stations;
}

void PlanWorld::BuildAlike(const std::string& station, const std::string& like, const Renaming& rename,
                           std::mt19937* shuffle) {
    project::TagList tags = Library.TagsOf[like];
    for (project::Tag& tag : tags)
        if (!std::string(tag.TagName).starts_with("LOG")) {
            tag.TagName = rename(tag.TagName);
            tag.RegAddr += 300;
        }
    if (shuffle != nullptr)
        std::ranges::shuffle(tags, *shuffle);
    std::ranges::stable_sort(tags, {}, [](const project::Tag& tag) { return std::string(tag.ModuleName); });
    Library.TagsOf[station] = tags;
    Project.Stations.push_back({.Name = station, .Type = {}, .Address = {}});
    Library.Stations = Project.Stations;
}

plan::Source PlanWorld::SourceOf(const std::string& station) {
    plan::Source source;
    const auto against = plan::TakeSource(Files, Project, {station, Library.TagsOf[station]}, source);
    if (!against.empty())
        throw std::runtime_error(against);
    return source;
}

plan::StationPlan PlanWorld::PlanFor(const plan::Source& source, const std::string& station) {
    return plan::PlanFor(Files, Project, source, plan::Destination({station, Library.TagsOf[station]}));
}

} // namespace gfc::test
