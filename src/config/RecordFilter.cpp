#include "config/RecordFilter.h"

#include "config/RunLayout.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::config {

namespace {

bool Holds(const std::string& text, const std::string& part) {
    return part.empty() || services::FoldCase(text).find(services::FoldCase(part)) != std::string::npos;
}

} // namespace

bool RecordFilter::Wants(const RecordEntry& entry) const {
    const bool ofStation = Stations.empty() || std::ranges::any_of(Stations, [&](const std::string& name) {
                               return services::EqualNoCase(name, entry.Station);
                           });
    return ofStation && Holds(entry.User, User) && entry.Time >= Since &&
           (Until.empty() || entry.Time.substr(0, Until.size()) <= Until);
}

bool RecordFilter::Wants(const KeyChange& change, const std::string& caption) const {
    const bool ofRun = Run == 0 || services::EqualNoCase(change.Section, RunSection(Run));
    return ofRun && (Holds(change.Key, Key) || Holds(caption, Key));
}

} // namespace gfc::config
