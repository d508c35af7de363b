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

using Values = std::unordered_map<std::string, std::string>;

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

std::string PlaceOf(const FileKey& key) {
    return services::FoldCase(key.Section) + '\n' + services::FoldCase(key.Key);
}

Values ValuesOf(const std::vector<FileKey>& keys) {
    Values values;
    for (const FileKey& key : keys)
        values.emplace(PlaceOf(key), key.Value);
    return values;
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
    const auto old = KeysOf(before);
    const auto fresh = KeysOf(after);
    const Values oldValues = ValuesOf(old);
    const Values newValues = ValuesOf(fresh);
    std::vector<KeyChange> changes;
    for (const FileKey& key : old) {
        const auto now = newValues.find(PlaceOf(key));
        if (now == newValues.end())
            changes.push_back({key.Section, key.Key, key.Value, std::nullopt});
        else if (now->second != key.Value)
            changes.push_back({key.Section, key.Key, key.Value, now->second});
    }
    for (const FileKey& key : fresh)
        if (!oldValues.contains(PlaceOf(key)))
            changes.push_back({key.Section, key.Key, std::nullopt, key.Value});
    return changes;
}

} // namespace gfc::config
