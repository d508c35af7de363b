#pragma once

#include <filesystem>
#include <map>
#include <string>

// The folder in which operations are made to fail, and what stands in it.
namespace gfc::test::faults {

struct Entry {
    std::string Bytes;
    unsigned Mode = 0;
    bool operator==(const Entry&) const = default;
};

// By path below the folder. Folders stand in it with a separator at their end.
using Content = std::map<std::string, Entry>;

[[nodiscard]] Content ContentOf(const std::filesystem::path& folder);
// Makes the folder hold exactly this.
void Restore(const std::filesystem::path& folder, const Content& content);

// True for what a save or a trial makes beside its file and takes away again.
[[nodiscard]] bool IsLeftover(const std::string& name);

// A folder in memory where the machine has one, since a flush to a disk costs more than all the rest.
class Room {
public:
    Room();
    ~Room();
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;

    [[nodiscard]] const std::filesystem::path& Folder() const { return folder_; }

private:
    std::filesystem::path folder_;
};

} // namespace gfc::test::faults
