#include "workshop/usage/ConfigurationFile.h"

#include "workshop/text/CodePage.h"
#include "workshop/text/Letters.h"
#include "workshop/text/Paths.h"

#include <algorithm>
#include <set>

namespace gfc::workshop {

namespace {

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n";
    const std::size_t first = std::min(text.find_first_not_of(Blanks), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

class Reader {
public:
    void Take(std::string_view line) {
        if (line.starts_with('[')) {
            section_ = Trimmed(line.substr(1, line.find(']') - 1));
            counts_ = sections_.insert(Folded(section_)).second;
            keys_.clear();
        } else if (const std::size_t equals = line.find('='); counts_ && equals != std::string_view::npos) {
            const std::string_view key = Trimmed(line.substr(0, equals));
            if (keys_.insert(Folded(key)).second) {
                entries_.push_back({FromCodePage(section_), FromCodePage(key),
                                    FromCodePage(Trimmed(line.substr(equals + 1)))});
            }
        }
    }
    [[nodiscard]] std::vector<ConfigurationEntry> Finish() { return std::move(entries_); }

private:
    std::vector<ConfigurationEntry> entries_;
    std::string_view section_;
    bool counts_ = false; // nothing does before the first section
    std::set<std::string> sections_;
    std::set<std::string> keys_;
};

} // namespace

std::filesystem::path ConfigurationFileOf(const Project& project, const std::string& station) {
    const std::string name = "KDOrmAGA_" + PathText(project.File().stem()) + "_" + station + ".ini";
    return project.File().parent_path() / PathOf(name);
}

std::vector<ConfigurationEntry> EntriesOf(std::string_view bytes) {
    Reader reader;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        reader.Take(Trimmed(bytes.substr(0, end)));
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return reader.Finish();
}

std::string ValueOf(const std::vector<ConfigurationEntry>& entries, std::string_view section,
                    std::string_view key) {
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const ConfigurationEntry& entry) {
        return SameName(entry.Section, section) && SameName(entry.Key, key);
    });
    return found == entries.end() ? std::string{} : found->Value;
}

} // namespace gfc::workshop
