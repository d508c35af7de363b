#include "platform/ProfileKeys.h"

#include <algorithm>
#include <utility>

namespace gfc::platform {

ProfileKeys::ProfileKeys(std::vector<std::string> names)
    : names_(std::move(names)), table_({names_.begin(), names_.end()}) {}

// The keys behind the other one come first: what a file leaves out is seldom more than a group of them.
ProfileKeys::Line ProfileKeys::LookUp(std::string_view lines, std::size_t other) const {
    constexpr std::size_t group = 32;
    const std::size_t end = std::min(other + group, names_.size());
    for (std::size_t key = other + 1; key < end; ++key)
        if (profile::BeginWithKey(lines, names_[key])) {
            const std::string_view value = profile::TakeValue(lines, names_[key].size());
            return {key, value, lines};
        }
    profile::SectionLines first(lines);
    if (!first.Next())
        return {};
    Line line{{}, {}, lines.substr(first.End())};
    if (const auto entry = first.AsEntry()) {
        line.Key = table_.Find(entry->Key);
        line.Value = entry->Value;
    }
    return line;
}

} // namespace gfc::platform
