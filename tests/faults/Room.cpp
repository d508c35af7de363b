#include "faults/Room.h"

#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace gfc::test::faults {

namespace fs = std::filesystem;

namespace {

Entry EntryOf(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    struct stat state {};
    (void)::stat(file.c_str(), &state);
    return {bytes.str(), state.st_mode & 07777U};
}

void Put(const fs::path& file, const Entry& entry) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << entry.Bytes;
    (void)::chmod(file.c_str(), entry.Mode);
}

} // namespace

Content ContentOf(const fs::path& folder) {
    Content content;
    for (const auto& found : fs::recursive_directory_iterator(folder)) {
        const std::string name = found.path().lexically_relative(folder).string();
        if (found.is_directory())
            content[name + "/"] = {};
        else
            content[name] = EntryOf(found.path());
    }
    return content;
}

void Restore(const fs::path& folder, const Content& content) {
    const Content now = ContentOf(folder);
    // From the end, so that what stands in a folder goes before it.
    for (auto found = now.rbegin(); found != now.rend(); ++found)
        if (!content.contains(found->first))
            fs::remove(folder / found->first);
    for (const auto& [name, entry] : content) {
        const auto found = now.find(name);
        if (found != now.end() && found->second == entry)
            continue;
        if (name.ends_with('/'))
            fs::create_directory(folder / name);
        else
            Put(folder / name, entry);
    }
}

bool IsLeftover(const std::string& name) {
    const std::string last = name.substr(name.find_last_of('/') + 1);
    // One without a number belongs to a person.
    const bool numbered = last.find(".ini-") != std::string::npos ||
                          last.find(".log-") != std::string::npos ||
                          last.find(".drafts-") != std::string::npos;
    return (last.starts_with(".gfc-save-") && numbered) || last.starts_with(".gfc-undo-") ||
           last.ends_with(".undo") || last.starts_with("tmpTags_") || last.ends_with(".KPJ-journal") ||
           last.ends_with(".io-workshop-new") || last.ends_with(".io-workshop-new-journal");
}

Room::Room() {
    std::error_code error;
    const fs::path inMemory = "/dev/shm";
    const fs::path base = ::access(inMemory.c_str(), W_OK) == 0 && fs::is_directory(inMemory, error)
                              ? inMemory
                              : fs::temp_directory_path();
    std::string name = (base / "gfc-faults-XXXXXX").string();
    folder_ = ::mkdtemp(name.data());
}

Room::~Room() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

} // namespace gfc::test::faults
