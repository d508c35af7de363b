#pragma once

#include "fuzz/MemoryVfs.h"
#include "support/TempFolder.h"
#include "workshop/store/Project.h"

#include <functional>
#include <string>

namespace gfc::fuzz {

// Makes a project as the workshop does, on disk, and puts its bytes in memory under the same path. What
// stands on disk is not read again, but a project is looked for there before it is opened.
inline std::string PutProject(const std::string& name, const std::function<void(workshop::Project&)>& fill) {
    static const test::TempFolder folder;
    UseMachineVfs();
    {
        auto project = workshop::Project::Create(folder.Path(name));
        fill(project);
    }
    UseMemoryVfs();
    MemoryFile(folder.Path(name)) = folder.Get(name);
    return folder.Path(name);
}

} // namespace gfc::fuzz
