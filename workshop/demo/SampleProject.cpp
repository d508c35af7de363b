#include "workshop/demo/SampleProject.h"

#include "workshop/demo/SampleConfiguration.h"
#include "workshop/demo/SampleTags.h"
#include "workshop/store/Beside.h"
#include "workshop/store/Failure.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/store/Project.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/Paths.h"

#include <string>
#include <system_error>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view ConfigurationTarget = "/etc/stacfg/kdormaga.ini";

bool StandsSample(const fs::path& file) {
    try {
        return Project::Open(file, Access::Read).IsSample();
    } catch (const Failure&) {
        return false; // some other file: all the more to be left alone
    }
}

void CheckWay(const SampleFiles& files, Existing existing) {
    const bool project = fs::exists(files.Project);
    if (project && !StandsSample(files.Project)) {
        throw Failure(PathText(files.Project) +
                      ": is there already and is not the sample; choose another folder.");
    }
    if (existing == Existing::Refuse && project) {
        throw Failure(PathText(files.Project) + ": the sample is there already; --force makes it anew.");
    }
    if (!project && fs::exists(files.Configuration)) {
        throw Failure(PathText(files.Configuration) + ": is there already; choose another folder.");
    }
}

void AddStationOf(Project& project, const SampleStation& sample) {
    const StationTags made = StationTagsOf(sample);
    TagAppender(project, AddStation(project, made.TheStation)).Append(made.Tags);
}

void FillProject(const fs::path& file, const fs::path& configuration) {
    Project project = Project::Create(file);
    Transaction transaction(project.Data());
    project.MarkAsSample();
    for (const SampleStation& station : SampleStations()) {
        AddStationOf(project, station);
    }
    if (!AddFileToLoad(project, {std::string(ConfiguredStation), PathText(configuration),
                                 std::string(ConfigurationTarget), -1})) {
        throw Failure("The sample lacks its configured station.");
    }
    transaction.Commit();
}

} // namespace

SampleFiles SampleFilesIn(const fs::path& folder) {
    const fs::path whole = fs::absolute(folder).lexically_normal();
    return {whole / "plant.KPJ", whole / PathOf("KDOrmAGA_plant_" + std::string(ConfiguredStation) + ".ini")};
}

SampleFiles MakeSample(const fs::path& folder, Existing existing) {
    const SampleFiles files = SampleFilesIn(folder);
    CheckProjectPath(files.Project);
    MakeFolder(folder);
    CheckWay(files, existing);
    // A project half made must never bear the name.
    Beside beside(files.Project);
    FillProject(beside.Path(), files.Configuration);
    ReplaceWhole(files.Configuration, SampleConfiguration(PathText(files.Project)));
    beside.MoveIntoPlace();
    return files;
}

} // namespace gfc::workshop
