#pragma once

#include "config/Recorder.h"

#include <iterator>

namespace gfc::test {

// Keeps what it is told, in memory.
class FakeRecorder : public config::NoRecorder {
public:
    void Record(std::vector<config::FileChange> changes) override {
        Recorded.insert(Recorded.end(), std::make_move_iterator(changes.begin()),
                        std::make_move_iterator(changes.end()));
    }
    bool IsBusy() override { return Busy; }
    std::string Trouble() override { return TheTrouble; }

    std::vector<config::FileChange> Recorded;
    std::string TheTrouble;
    bool Busy = false;
};

} // namespace gfc::test
