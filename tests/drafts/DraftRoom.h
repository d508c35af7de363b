#pragma once

#include "drafts/DraftStore.h"
#include "support/FakeTime.h"
#include "support/Fakes.h"
#include "support/MemoryFiles.h"

#include <string>

namespace gfc::test {

// A store of drafts in a machine with nothing else, in memory.
struct DraftRoom {
    MemoryFiles Files;
    FixedZone Zone{0};
    FixedClock Clock{2023, 3, 15, 12, 0};
    FakeSingleInstance Instance;
    FakeLauncher Launcher;
    FakePaths Paths;
    platform::Machine Machine{Files, Zone, Clock, Instance, Launcher, Paths};
    drafts::DraftStore Store{Machine, "/jobs/plant.KPJ"};

    // What the store's file holds; making it where there is none.
    [[nodiscard]] std::string& Bytes() { return Files.Content[Store.File()]; }
};

} // namespace gfc::test
