#include "platform/Machine.h"

namespace gfc::platform {

std::string ProfilePath(Paths& paths, std::string_view name) {
    const bool bare = name.find_first_of("/\\") == std::string_view::npos;
    const std::string folder = bare ? paths.ProfileFolder() : std::string{};
    return folder.empty() ? std::string(name) : folder + Separator + std::string(name);
}

RealMachine::RealMachine()
    : files_(MakeFiles()), timeZone_(MakeTimeZone()), clock_(MakeClock()),
      singleInstance_(MakeSingleInstance()), launcher_(MakeLauncher()), paths_(MakePaths()) {
    SilenceSystem();
}

Machine RealMachine::Seams() {
    return {*files_, *timeZone_, *clock_, *singleInstance_, *launcher_, *paths_};
}

} // namespace gfc::platform
