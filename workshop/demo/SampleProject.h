// The sample project: a small gas plant to look around in.
#pragma once

#include <filesystem>

namespace gfc::workshop {

struct SampleFiles {
    std::filesystem::path Project;       ///< plant.KPJ
    std::filesystem::path Configuration; ///< of the one station that is configured
};
[[nodiscard]] SampleFiles SampleFilesIn(const std::filesystem::path& folder);

enum class Existing {
    Refuse,
    ReplaceSample ///< an existing sample is made anew; any other file in its place is left alone
};

/// Makes the project and the configuration, and the folder if needed. Throws Failure and leaves what was
/// there when files are in the way.
SampleFiles MakeSample(const std::filesystem::path& folder, Existing existing);

} // namespace gfc::workshop
