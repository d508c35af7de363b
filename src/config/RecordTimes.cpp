#include "config/RecordTimes.h"

namespace gfc::config {

const RecordEntry* EntryAt(const std::vector<RecordEntry>& entries, const std::string& time) {
    const RecordEntry* last = nullptr;
    for (const RecordEntry& entry : entries)
        if (entry.Time < time)
            last = &entry;
    if (last == nullptr && !entries.empty() && entries.front().Command == command::Found)
        last = &entries.front();
    return last;
}

} // namespace gfc::config
