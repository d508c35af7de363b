#include "config/FileIni.h"

#include "platform/ProfileIndex.h"
#include "platform/ProfileKeys.h"
#include "services/CodePage.h"
#include "services/Utf8.h"
#include "services/Utilidades.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace gfc::config {
namespace {

constexpr std::string_view FilePrefix = "KDOrmAGA_";
constexpr std::string_view FileEnding = ".ini";

#ifdef _WIN32
constexpr std::string_view NeverInNames = "/\\<>:\"|?*";
#else
constexpr std::string_view NeverInNames = "/\\"; // the other machine's too: the name goes with the project
#endif

bool IsControl(char byte) {
    return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

bool FileNameBears(std::string_view name) {
    return name.find_first_of(NeverInNames) == std::string_view::npos &&
           std::ranges::none_of(name, IsControl);
}

// One byte for each character, as the machine's own calls replace what the page lacks.
std::string BytesOf(std::string_view utf8) {
    if (auto bytes = services::ToCodePage(utf8))
        return *std::move(bytes);
    std::string bytes;
    while (!utf8.empty()) {
        const std::size_t length = services::FirstCharacter(utf8).Length;
        bytes += services::ToCodePage(utf8.substr(0, length)).value_or("?");
        utf8.remove_prefix(length);
    }
    return bytes;
}

std::string ValueBytes(std::string_view value) {
    constexpr std::string_view ends("\0\r\n", 3);
    return BytesOf(value.substr(0, value.find_first_of(ends)));
}

// The bytes of a name. Nearly every one is plain and stands for itself, without a copy.
class NameBytes {
public:
    explicit NameBytes(std::string_view utf8) : plain_(services::IsPlain(utf8)), bytes_(utf8) {
        if (!plain_)
            bytes_ = converted_ = BytesOf(utf8);
    }
    NameBytes(const NameBytes&) = delete;
    NameBytes& operator=(const NameBytes&) = delete;
    operator std::string_view() const { return bytes_; }

private:
    bool plain_;
    std::string converted_;
    std::string_view bytes_;
};

// From a profile, or from the index of one.
template <class Source>
std::string ReadFrom(Source& source, std::string_view section, std::string_view key) {
    return services::FromCodePage(source.Read(NameBytes(section), NameBytes(key)));
}

// Each text that is found goes to its place, which is then taken off the list; those that stay there are the
// missing keys'. All lines are looked through for letters that need a conversion at once, and not each value
// for itself. Texts go into the memory that is there.
void ReadInto(std::span<std::string*> places, const platform::ProfileKeys& keys, std::string_view bytes,
              std::string_view section) {
    std::ptrdiff_t left = 0;
    for (std::string* place : places)
        if (place != nullptr) {
            place->clear();
            ++left;
        }
    const std::string_view lines = platform::profile::LinesOf(bytes, platform::profile::CallName(section));
    const bool plain = services::IsPlain(lines);
    keys.Read(lines, [&, places](std::size_t key, std::string_view value) {
        std::string* const place = std::exchange(places[key], nullptr);
        if (place == nullptr)
            return true;
        plain ? void(place->append(value)) : services::AssignFromCodePage(*place, value);
        return --left > 0;
    });
}

// For the empty path.
Outcome NoPlace() {
    return {"The name of the station, or the path of the project, cannot be that of a file",
            Standing::Missing};
}

bool IsComplete(std::span<std::string* const> places) {
    return std::ranges::all_of(places, [](const std::string* place) { return place == nullptr; });
}

} // namespace

std::string ConfigFilePrefixOf(std::string_view projectFolder) {
    return std::string(projectFolder).append(1, platform::Separator).append(FilePrefix);
}

ProjectPaths PathsOf(std::string_view projectFile) {
    ProjectPaths paths;
    paths.ProjectFolder = platform::WithOwnSeparators(platform::ParentFolder(projectFile));
    // A path without a folder leaves no place for the files: better none than the root.
    if (projectFile.find_first_of("/\\") != std::string_view::npos)
        paths.ConfigFilePrefix = ConfigFilePrefixOf(paths.ProjectFolder);
    return paths;
}

std::string ConfigFilePath(const ProjectPaths& paths, std::string_view project, std::string_view station) {
    const std::string name = services::TrimFixedString(station);
    if (paths.ConfigFilePrefix.empty() || !FileNameBears(project) || !FileNameBears(name))
        return {};
    std::string path;
    path.reserve(paths.ConfigFilePrefix.size() + project.size() + 1 + name.size() + FileEnding.size());
    path.append(paths.ConfigFilePrefix).append(project);
    if (!name.empty())
        path.append("_").append(name);
    return path.append(FileEnding);
}

std::optional<std::string> NameInConfigFile(std::string_view path) {
    std::string_view name = path.substr(path.find_last_of("/\\") + 1); // the whole where there is none
    if (!name.starts_with(FilePrefix) || !name.ends_with(FileEnding) ||
        name.size() < FilePrefix.size() + FileEnding.size())
        return std::nullopt;
    name.remove_prefix(FilePrefix.size());
    name.remove_suffix(FileEnding.size());
    return std::string(name);
}

bool ConfigFileExists(const FileIni& ini, const ProjectPaths& paths, std::string_view project,
                      std::string_view station) {
    return ini.FileExists(ConfigFilePath(paths, project, station));
}

std::string FileIni::ReadKey(std::string_view section, std::string_view key, const std::string& file) const {
    if (file.empty())
        return {};
    if (FileBatch* batch = OpenBatch(file))
        return batch->profile_ ? ReadFrom(batch->Index(), section, key) : std::string{};
    const auto profile = platform::ProfileFile::Open(files_, file);
    return profile ? ReadFrom(profile->Profile(), section, key) : std::string{};
}

void FileIni::ReadKeys(std::string_view section, const platform::ProfileKeys& keys, const std::string& file,
                       std::span<std::string*> places) const {
    const FileBatch* batch = OpenBatch(file);
    const auto single = batch || file.empty() ? std::nullopt : platform::ProfileFile::Open(files_, file);
    const auto& profile = batch ? batch->profile_ : single;
    const std::string_view bytes =
        profile ? std::string_view(profile->Profile().Bytes()) : std::string_view();
    ReadInto(places, keys, bytes, NameBytes(section));
}

bool FileIni::ReadFirstKeys(std::string_view section, const platform::ProfileKeys& keys,
                            const std::string& file, std::span<std::string*> places) const {
    constexpr std::size_t enough = 4096; // ten times what stands before the end of a file's first sections
    if (!file.empty() && OpenBatch(file) == nullptr) {
        const auto start = files_.ReadStart(file, enough);
        const bool whole = !start || start->size() < enough;
        // The last line of a part may be cut.
        const std::string_view bytes = start ? std::string_view(*start) : std::string_view();
        std::vector<std::string*> missing(places.begin(), places.end());
        ReadInto(missing, keys, whole ? bytes : bytes.substr(0, bytes.rfind('\n') + 1), NameBytes(section));
        if (whole || IsComplete(missing))
            return start || files_.Exists(file);
    }
    ReadKeys(section, keys, file, places);
    return FileExists(file);
}

bool FileIni::WriteKey(std::string_view section, std::string_view key,
                       const std::optional<std::string>& value, const std::string& file) {
    return Change(file, [&](platform::Profile& profile) {
        const auto bytes = value ? std::optional(ValueBytes(*value)) : std::nullopt;
        profile.Write(BytesOf(section), BytesOf(key), bytes);
    });
}

bool FileIni::WriteSection(std::string_view section, const std::vector<KeyValue>& body,
                           const std::string& file) {
    return Change(file, [&](platform::Profile& profile) {
        std::vector<std::string> items;
        items.reserve(body.size());
        for (const KeyValue& line : body)
            items.push_back(BytesOf(line.Key) + "=" + ValueBytes(line.Value));
        profile.ReplaceSection(BytesOf(section), items);
    });
}

bool FileIni::WriteLines(std::string_view section, const std::vector<std::string>& lines,
                         const std::string& file) {
    return Change(file, [&](platform::Profile& profile) {
        std::vector<std::string> items;
        items.reserve(lines.size());
        for (const std::string& line : lines)
            items.push_back(ValueBytes(line));
        if (!items.empty())
            items.back() += "\r\n";
        profile.ReplaceSection(BytesOf(section), items);
    });
}

bool FileIni::FileExists(const std::string& file) const {
    if (FileBatch* batch = OpenBatch(file))
        batch->Save();
    return !file.empty() && files_.Exists(file);
}

Outcome FileIni::Store(const std::string& file, const Changes& changes) {
    FileBatch batch(*this, file);
    changes(*this);
    return batch.Store();
}

Outcome FileIni::StoreAnew(const std::string& file, const Changes& changes,
                           const std::function<bool()>& makeWay) {
    if (file.empty())
        return NoPlace();
    std::string bytes;
    {
        FileBatch batch(*this, file, FileBatch::Beginning::FromNothing);
        changes(*this);
        bytes = batch.TakeBytes();
    }
    const auto before = files_.Read(file);
    return files_.PutAnew(file, bytes, makeWay) ? Outcome() : Failure(file, before.value_or(""), bytes);
}

Outcome FileIni::StoreBytes(const std::string& file, std::string_view bytes) {
    if (file.empty())
        return NoPlace();
    Touch(file);
    const auto before = files_.Read(file);
    return files_.Replace(file, bytes) ? Outcome() : Failure(file, before.value_or(""), bytes);
}

Outcome FileIni::DeleteConfigFile(const std::string& file) {
    if (file.empty())
        return NoPlace();
    Touch(file);
    FileBatch* batch = OpenBatch(file);
    if (batch != nullptr)
        batch->Save();
    Outcome outcome;
    if (!files_.Delete(file))
        outcome = {files_.LastFailure(), files_.Exists(file) ? Standing::AsBefore : Standing::Missing};
    if (batch != nullptr)
        batch->Reload();
    return outcome;
}

Outcome FileIni::CopyConfigFile(const std::string& from, const std::string& to) {
    if (from.empty() || to.empty())
        return NoPlace();
    Touch(to);
    for (const std::string* file : {&from, &to})
        if (FileBatch* batch = OpenBatch(*file))
            batch->Save();
    Outcome outcome;
    if (!files_.CopyNew(from, to))
        outcome = {files_.LastFailure(), files_.Exists(to) ? Standing::Other : Standing::Missing};
    if (FileBatch* batch = OpenBatch(to))
        batch->Reload();
    return outcome;
}

Outcome FileIni::Failure(const std::string& file, std::string_view before, std::string_view wanted) const {
    std::string reason = files_.LastFailure();
    const auto now = files_.Read(file);
    if (!now)
        return {std::move(reason), files_.Exists(file) ? Standing::Unreadable : Standing::Missing};
    return {std::move(reason), *now == wanted   ? Standing::AsWanted
                               : *now == before ? Standing::AsBefore
                                                : Standing::Other};
}

FileBatch* FileIni::OpenBatch(const std::string& file) const {
    const auto found =
        std::ranges::find_if(batches_, [&](const FileBatch* batch) { return batch->file_ == file; });
    return found == batches_.end() ? nullptr : *found;
}

void FileIni::Touch(const std::string& file) const {
    if (OnTouch && !file.empty())
        OnTouch(file);
}

bool FileIni::Change(const std::string& file, const Edit& edit) {
    if (file.empty())
        return false;
    Touch(file);
    if (FileBatch* batch = OpenBatch(file)) {
        if (!batch->profile_)
            return false;
        batch->index_.reset();
        edit(batch->profile_->Edit());
        return batch->changed_ = true;
    }
    auto profile = platform::ProfileFile::Open(files_, file);
    if (!profile)
        return false;
    edit(profile->Edit());
    return profile->Save();
}

FileBatch::FileBatch(const FileIni& ini, const std::string& file)
    : FileBatch(ini, file, Beginning::AsItStands) {}

FileBatch::FileBatch(const FileIni& ini, const std::string& file, Beginning beginning)
    : ini_(ini), outermost_(ini.OpenBatch(file) == nullptr) {
    if (!outermost_)
        return;
    file_ = file;
    if (beginning == Beginning::FromNothing)
        profile_ = platform::ProfileFile::New(ini_.files_, file_);
    else
        Reload();
    ini_.batches_.push_back(this);
}

FileBatch::~FileBatch() {
    if (!outermost_)
        return;
    Save();
    std::erase(ini_.batches_, this);
}

// What cannot be stored is dropped: whoever is told begins again from the file as it stands then.
Outcome FileBatch::Store() {
    if (!outermost_)
        return {};
    if (file_.empty())
        return NoPlace();
    if (!profile_)
        return {unreadable_, Standing::AsBefore};
    if (Save())
        return {};
    changed_ = false;
    return ini_.Failure(file_, profile_->BytesBefore(), profile_->Profile().Bytes());
}

std::string FileBatch::TakeBytes() {
    changed_ = false;
    return profile_->Profile().Bytes();
}

// A batch that only read does not touch the file.
bool FileBatch::Save() {
    if (!changed_)
        return true;
    changed_ = !profile_->Save();
    return !changed_;
}

platform::ProfileIndex& FileBatch::Index() {
    if (!index_)
        index_ = std::make_unique<platform::ProfileIndex>(profile_->Profile());
    return *index_;
}

void FileBatch::Reload() {
    changed_ = false;
    index_.reset();
    profile_.reset();
    if (!file_.empty())
        profile_ = platform::ProfileFile::Open(ini_.files_, file_);
    if (!profile_)
        unreadable_ = ini_.files_.LastFailure();
}

} // namespace gfc::config
