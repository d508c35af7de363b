#pragma once

#include "config/Outcome.h"
#include "platform/ProfileFile.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::platform {
class ProfileIndex;
class ProfileKeys;
} // namespace gfc::platform

// The station's configuration file: the only gates to it, and what is read and written through them.
namespace gfc::config {

// Where the files of the open project stand.
struct ProjectPaths {
    std::string ProjectFolder;    // no trailing separator
    std::string InstallFolder;    // read at start-up; nothing reads it afterwards
    std::string ConfigFilePrefix; // ProjectFolder, separator, "KDOrmAGA_"; empty if there is no folder
};

[[nodiscard]] std::string ConfigFilePrefixOf(std::string_view projectFolder);
// The folder and prefix of a project file; its path may bear either separator. InstallFolder stays empty.
[[nodiscard]] ProjectPaths PathsOf(std::string_view projectFile);
// station is cut at its first NUL; with an empty one the file is prefix + project + ".ini". The empty text
// where project or station hold what no file name can bear, a separator or a control character: such a
// station has no file, and no path leads out of the folder.
[[nodiscard]] std::string ConfigFilePath(const ProjectPaths& paths, std::string_view project,
                                         std::string_view station);

// The reverse for a full path: what stands between "KDOrmAGA_" and ".ini", project and station with "_"
// between them. Nothing for any other file.
[[nodiscard]] std::optional<std::string> NameInConfigFile(std::string_view path);

// One line of a section: the key in the form in which it is written, and its value.
struct KeyValue {
    std::string Key;
    std::string Value;
};

class FileIni;

// True if the station's file is there; that alone is what makes a station configured.
[[nodiscard]] bool ConfigFileExists(const FileIni& ini, const ProjectPaths& paths, std::string_view project,
                                    std::string_view station);

class FileBatch;

// Each call is one complete access to the file, unless a FileBatch is open for that file. A call with the
// empty path finds nothing and changes nothing. No call throws or reports anything beyond its result.
class FileIni {
public:
    explicit FileIni(platform::Files& files) : files_(files) {}
    FileIni(const FileIni&) = delete;
    FileIni& operator=(const FileIni&) = delete;

    // At most 254 characters, a longer value is cut; a missing key, section or file gives the empty text.
    [[nodiscard]] std::string ReadKey(std::string_view section, std::string_view key,
                                      const std::string& file) const;
    // The same for many keys of a section, in one access. The text of each goes to its place; null for one
    // that is not wanted. There must be a place for each key; afterwards the list is used up.
    void ReadKeys(std::string_view section, const platform::ProfileKeys& keys, const std::string& file,
                  std::span<std::string*> places) const;
    // ReadKeys for keys that stand near the file's beginning: of a long file no more is read than its first
    // lines, if all keys are found there. The result is that of FileExists.
    bool ReadFirstKeys(std::string_view section, const platform::ProfileKeys& keys, const std::string& file,
                       std::span<std::string*> places) const;
    // An absent value deletes the key. False if the file could not be written; within Store that says so. A
    // value ends at its first NUL or line break, since it would otherwise break the lines of the file; a
    // character that the code page lacks is written as "?".
    bool WriteKey(std::string_view section, std::string_view key, const std::optional<std::string>& value,
                  const std::string& file);
    // Replaces the whole content of the section; adds it at the end of the file, or makes the file, where it
    // is missing. Values as in WriteKey.
    bool WriteSection(std::string_view section, const std::vector<KeyValue>& body, const std::string& file);
    // The same with lines for people to read, which must not be empty, and an empty one behind the last; the
    // next write of the section replaces that one too.
    bool WriteLines(std::string_view section, const std::vector<std::string>& lines, const std::string& file);
    [[nodiscard]] bool FileExists(const std::string& file) const;

    using Changes = std::function<void(FileIni&)>;
    // Runs these changes of the file in a batch; done once all of them stand on the disk, else none does.
    Outcome Store(const std::string& file, const Changes& changes);
    // The same on a file that starts from nothing. What stands in its place is taken away by makeWay, once
    // all the new bytes stand safe beside it.
    Outcome StoreAnew(const std::string& file, const Changes& changes, const std::function<bool()>& makeWay);
    // The file with exactly these bytes, in the place of what stands there; for a whole state of a file that
    // is brought in. Not within a batch of the file.
    Outcome StoreBytes(const std::string& file, std::string_view bytes);
    // Done if a file was there and is gone.
    Outcome DeleteConfigFile(const std::string& file);
    // Not done if the target exists already.
    Outcome CopyConfigFile(const std::string& from, const std::string& to);

    // Told of each file before it is written, made or deleted; what stands on disk then is what stood there
    // before the first change of a batch. May be empty.
    std::function<void(const std::string& file)> OnTouch;

private:
    friend class FileBatch;
    using Edit = std::function<void(platform::Profile&)>;

    [[nodiscard]] FileBatch* OpenBatch(const std::string& file) const;
    // For what has just failed; wanted: what the file was to hold.
    [[nodiscard]] Outcome Failure(const std::string& file, std::string_view before,
                                  std::string_view wanted) const;
    bool Change(const std::string& file, const Edit& edit);
    void Touch(const std::string& file) const;

    platform::Files& files_;
    mutable std::vector<FileBatch*> batches_; // one per file at most
};

// While it lives, the accesses to one file share one read at its start and one replace at its end; reads see
// what was written before them, and the file ends with the bytes that the single accesses would have given. A
// batch within a batch for the same file is part of the outer one. Copying, deleting and the question for the
// file's existence first put on disk what is pending.
class FileBatch {
public:
    FileBatch(const FileIni& ini, const std::string& file);
    // What is changed and not stored by then is stored, and whether that succeeds is nobody's business: for
    // what must not fail without a word there is FileIni::Store.
    ~FileBatch();
    FileBatch(const FileBatch&) = delete;
    FileBatch& operator=(const FileBatch&) = delete;

private:
    friend class FileIni;
    enum class Beginning { AsItStands, FromNothing };
    FileBatch(const FileIni& ini, const std::string& file, Beginning beginning);

    Outcome Store();
    // Nothing is stored of it then.
    [[nodiscard]] std::string TakeBytes();
    bool Save();
    void Reload();
    // The profile must be there.
    [[nodiscard]] platform::ProfileIndex& Index();

    const FileIni& ini_;
    bool outermost_;
    std::string file_; // of the outermost alone
    bool changed_ = false;
    std::optional<platform::ProfileFile> profile_;  // none where the file cannot be read
    std::string unreadable_;                        // the system's reason, where it cannot
    std::unique_ptr<platform::ProfileIndex> index_; // of the profile as it stands, from a reading to a change
};

} // namespace gfc::config
