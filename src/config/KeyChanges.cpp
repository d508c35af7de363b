#include "config/KeyChanges.h"

#include "platform/ProfileLines.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace gfc::config {
namespace {

namespace profile = platform::profile;

// Where the lines stand that begin with a bracket.
std::vector<std::size_t> Headers(std::string_view bytes) {
    std::vector<std::size_t> headers;
    for (std::size_t begin = 0; begin < bytes.size(); begin = profile::LineEnd(bytes, begin)) {
        const auto first = bytes.find_first_not_of(" \t\v", begin);
        if (first != std::string_view::npos && bytes[first] == '[')
            headers.push_back(begin);
    }
    return headers;
}

std::string_view NameOf(std::string_view bytes, std::size_t header) {
    const auto line = profile::WithoutBreak(bytes.substr(header, profile::LineEnd(bytes, header) - header));
    const auto name = line.substr(line.find('[') + 1);
    return profile::Trimmed<profile::IsWhite>(name.substr(0, name.find(']')));
}

void AppendKeys(std::vector<FileKey>& keys, std::string_view bytes, std::size_t header) {
    const std::string section = services::FromCodePage(NameOf(bytes, header));
    std::unordered_set<std::string> seen;
    for (profile::SectionLines lines(bytes, header); lines.Next();)
        if (const auto entry = lines.AsEntry()) {
            std::string key = services::FromCodePage(entry->Key);
            if (seen.insert(services::FoldCase(key)).second)
                keys.push_back({section, std::move(key), services::FromCodePage(entry->Value)});
        }
}

// The keys of a file, and each one's value by the place that it has in any spelling.
struct Placed {
    explicit Placed(std::string_view bytes) : Keys(KeysOf(bytes)) {
        Places.reserve(Keys.size());
        Values.reserve(Keys.size());
        for (const FileKey& key : Keys) {
            Places.push_back(services::FoldCase(key.Section) + '\n' + services::FoldCase(key.Key));
            Values.emplace(Places.back(), &key.Value);
        }
    }

    [[nodiscard]] const std::string* ValueAt(const std::string& place) const {
        const auto found = Values.find(place);
        return found == Values.end() ? nullptr : found->second;
    }

    std::vector<FileKey> Keys;
    std::vector<std::string> Places; // of each key
    std::unordered_map<std::string_view, const std::string*> Values;
};

// A new file is all new, and nothing of it is looked up.
std::vector<KeyChange> AllAdded(std::string_view bytes) {
    std::vector<KeyChange> changes;
    for (FileKey& key : KeysOf(bytes))
        changes.push_back({std::move(key.Section), std::move(key.Key), std::nullopt, std::move(key.Value)});
    return changes;
}

} // namespace

std::vector<FileKey> KeysOf(std::string_view bytes) {
    std::vector<FileKey> keys;
    std::unordered_set<std::string> seen;
    for (const std::size_t header : Headers(bytes))
        if (seen.insert(services::FoldCase(services::FromCodePage(NameOf(bytes, header)))).second)
            AppendKeys(keys, bytes, header);
    return keys;
}

std::vector<KeyChange> ChangesOf(std::string_view before, std::string_view after) {
    if (before.empty())
        return AllAdded(after);
    const Placed old(before);
    const Placed fresh(after);
    std::vector<KeyChange> changes;
    for (std::size_t i = 0; i < old.Keys.size(); ++i) {
        const FileKey& key = old.Keys[i];
        const std::string* now = fresh.ValueAt(old.Places[i]);
        if (now == nullptr)
            changes.push_back({key.Section, key.Key, key.Value, std::nullopt});
        else if (*now != key.Value)
            changes.push_back({key.Section, key.Key, key.Value, *now});
    }
    for (std::size_t i = 0; i < fresh.Keys.size(); ++i) {
        const FileKey& key = fresh.Keys[i];
        if (old.ValueAt(fresh.Places[i]) == nullptr)
            changes.push_back({key.Section, key.Key, std::nullopt, key.Value});
    }
    return changes;
}

} // namespace gfc::config
