#pragma once

#include "config/FileIni.h"
#include "plan/Change.h"
#include "plan/Rebind.h"

#include <string>
#include <vector>

// One configuration, taken to other stations or bound anew in its own.
namespace gfc::plan {

// A configured station, read once for all destinations.
struct Source {
    BoundStation Bound;
    std::string Bytes;       // of its file
    std::string FlowSection; // where the common parameters stand: "AGA3" or "AGA7"
};

// Why a station can be no source, as a sentence; empty where it was taken up.
[[nodiscard]] std::string TakeSource(platform::Files& files, const project::Project& project,
                                     StationTags station, Source& source);

// What becomes of one destination.
struct StationPlan {
    std::string Station;
    std::string File;
    config::FileState Before;
    std::vector<Line> Lines; // empty where the tags' names are taken over as they are
    std::string Refused;     // why nothing can be written there, a sentence; empty where it can

    [[nodiscard]] bool IsComplete() const { return Refused.empty() && MissingIn(Lines) == 0; }
    [[nodiscard]] bool ReplacesOther(const Source& source) const;
};

// The destination may be the source itself: then its file keeps all but the tags.
[[nodiscard]] StationPlan PlanFor(platform::Files& files, const project::Project& project,
                                  const Source& source, const Destination& to);
// The copy with the tags as the source names them.
[[nodiscard]] StationPlan PlanPlainCopy(platform::Files& files, const project::Project& project,
                                        const Source& source, const std::string& station);

// The file that comes of it. A variable without a tag is left unbound.
[[nodiscard]] Change ChangeFor(const project::Project& project, const Source& source,
                               const StationPlan& plan);

} // namespace gfc::plan
