#include "fuzz/Input.h"
#include "fuzz/MemoryProject.h"
#include "fuzz/Target.h"
#include "workshop/library/Records.h"
#include "workshop/store/Failure.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"

#include <algorithm>

// Any bytes as a project of the stand-in workshop: it is refused in words, or it answers.
namespace gfc::fuzz {

namespace {

using workshop::Access;

void Fill(workshop::Project& project) {
    const auto north = AddStation(project, {0, "North", "Orm", "10.0.0.1", 7});
    (void)AddStation(project, {0, "South", "", "", 0});
    workshop::TagAppender tags(project, north);
    tags.Append({"FT-1", "FX", 1, "VF0", "Virtual Module", "Flow"});
    tags.Append({"XV-1", "Y", 2, "DO", "DO-16 Card", ""});
    (void)AddFileToLoad(project, {"North", "a.ini", "/etc/b.ini", -1});
    project.MarkAsSample();
    // Small pages, so that what is damaged is seldom empty.
    project.Data().Run("PRAGMA page_size = 512; VACUUM");
}

const std::string& ProjectPath() {
    static const std::string path = PutProject("p.KPJ", Fill);
    return path;
}

const std::string& Sound() {
    static const std::string sound = MemoryFile(ProjectPath());
    return sound;
}

// A sound project with bytes of it replaced here and there.
std::string Damaged(Input& input) {
    std::string bytes = Sound();
    while (!input.IsEmpty()) {
        const std::size_t at = (input.Byte() * 256u + input.Byte()) % bytes.size();
        const std::string_view patch = input.Text(31);
        bytes.replace(at, std::min(patch.size(), bytes.size() - at), patch);
    }
    return bytes;
}

// One question and one change for each input: to open the project costs most of the time already.
void Look(workshop::Project& project, std::size_t what) {
    if (what == 0) {
        for (const auto& station : ListStations(project))
            (void)CountTags(project, station.Id);
    } else if (what == 1) {
        (void)workshop::TagRecords(project, "North");
    } else if (what == 2) {
        (void)StationRecords(project);
        (void)project.IsSample();
    } else {
        (void)ListFilesToLoad(project);
    }
}

void Change(workshop::Project& project, std::size_t what) {
    if (what == 0) {
        if (const auto station = FindStation(project, "North"))
            workshop::RenameTag(project, station->Id, "FT-1", "FT-2");
    } else if (what == 1) {
        (void)AddFileToLoad(project, {"North", "a.ini", "/etc/a.ini", -1});
    } else {
        (void)RemoveFileToLoad(project, "North", "/etc/b.ini");
    }
}

} // namespace

void Project(std::string_view bytes) {
    (void)Sound(); // before anything else stands at its path
    Input input(bytes);
    const std::size_t first = input.Byte();
    const std::size_t what = first % 4;
    const std::string project = what < 2 ? Damaged(input) : std::string(input.Rest());
    ForgetMemoryFiles(ProjectPath()); // with what an earlier one left beside it
    MemoryFile(ProjectPath()) = project;
    try {
        auto opened = workshop::Project::Open(ProjectPath(), what % 2 == 0 ? Access::Read : Access::Write);
        Look(opened, first / 4 % 4);
        if (what % 2 != 0)
            Change(opened, first / 16 % 3);
    } catch (const workshop::Failure& failure) {
        Require(*failure.what() != '\0', "a refusal says why");
    }
}

} // namespace gfc::fuzz
