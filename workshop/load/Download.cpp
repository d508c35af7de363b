#include "workshop/load/Download.h"

#include "workshop/store/Failure.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/Paths.h"

#include <optional>
#include <string_view>
#include <system_error>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

// A target is absolute on the station and becomes relative here; either separator parts it. Empty when a
// piece of it is no plain name, as ".." would lead out of the folder.
std::optional<fs::path> TargetBelow(std::string_view target) {
    fs::path below;
    while (!target.empty()) {
        const std::size_t end = std::min(target.find_first_of("/\\"), target.size());
        const std::string_view piece = target.substr(0, end);
        target.remove_prefix(std::min(end + 1, target.size()));
        if (piece.empty()) {
            continue;
        }
        if (!IsFileName(piece)) {
            return std::nullopt;
        }
        below /= PathOf(piece);
    }
    return below.empty() ? std::nullopt : std::optional(below);
}

std::string Fault(const FileToLoad& file, const std::string& text) {
    return file.Station + ": " + text;
}

// Empty when the file was copied to `to`, whole.
std::string CopyTo(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (!fs::is_regular_file(from, error)) {
        return PathText(from) + " is missing; configure the station again or take the entry out.";
    }
    try {
        const std::string bytes = ReadWhole(from);
        MakeFolder(to.parent_path());
        ReplaceWhole(to, bytes);
        return {};
    } catch (const Failure& failure) {
        return failure.what();
    }
}

void DownloadOne(const Project& project, const FileToLoad& file, const fs::path& folder,
                 DownloadResult& result) {
    const auto target = TargetBelow(file.Target);
    if (!IsFileName(file.Station) || !target) {
        result.Faults.push_back(Fault(file, "the target " + file.Target + " would leave the folder."));
        return;
    }
    const fs::path to = folder / PathOf(file.Station) / *target;
    const std::string fault = CopyTo(LocalPath(project, file.Local), to);
    if (fault.empty()) {
        result.Written.push_back(to);
    } else {
        result.Faults.push_back(Fault(file, fault));
    }
}

} // namespace

fs::path LocalPath(const Project& project, const std::string& local) {
    const fs::path path = PathOf(local);
    return path.is_absolute() ? path : project.File().parent_path() / path;
}

DownloadResult Download(Project& project, const fs::path& folder, const std::set<std::string>& refused) {
    DownloadResult result;
    for (const FileToLoad& file : ListFilesToLoad(project)) {
        if (refused.contains(file.Station)) {
            result.Faults.push_back(Fault(file, "has errors and was left out; mend them, or use --force."));
        } else {
            DownloadOne(project, file, folder, result);
        }
    }
    return result;
}

} // namespace gfc::workshop
