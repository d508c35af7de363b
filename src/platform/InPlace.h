#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The save of a file that cannot be replaced, because another program has it open or because its folder takes
// no new file: its bytes are written over while a record of the old and the new ones stands beside it. Who
// dies on the way leaves the record, by which the next access puts the old bytes back.
namespace gfc::platform {

// What a writer is about to do to a file.
struct UndoRecord {
    std::string Target; // full path
    std::string Old;
    std::string New;

    [[nodiscard]] std::string Bytes() const;
    // Nothing of bytes that are not a whole record: its writer died before he touched the file.
    [[nodiscard]] static std::optional<UndoRecord> Of(std::string_view bytes);
    // True if a file that holds this is neither the old nor the new one, nor anything that somebody else has
    // made of it since, but has been left half-way: each byte is one of the two, or none yet.
    [[nodiscard]] bool IsHalfWay(std::string_view now) const;
};

// The name of the record of a file, given by its full path, in a folder that holds the records of all files.
[[nodiscard]] std::string RecordNameOf(std::string_view target);

// A file that is open for writing; it is closed with this object.
class OpenFile {
public:
    virtual ~OpenFile() = default;
    [[nodiscard]] virtual std::optional<std::string> ReadAll() = 0;
    [[nodiscard]] virtual bool WriteAt(std::uint64_t at, std::string_view bytes) = 0;
    [[nodiscard]] virtual bool SetSize(std::uint64_t size) = 0;
    [[nodiscard]] virtual bool Flush() = 0;
};

// What the machine does for such a save. A call that fails leaves its reason with the system.
class InPlaceMachine {
public:
    virtual ~InPlaceMachine() = default;
    // Where the record of a file may stand, by preference: beside it, or in the user's own folder.
    [[nodiscard]] virtual std::vector<std::string> RecordPaths(const std::string& target) = 0;
    // Beside whatever other programs do with it; null if it is missing or may not be written.
    [[nodiscard]] virtual std::unique_ptr<OpenFile> OpenTarget(const std::string& target) = 0;
    // A file where none was, for those who may use the target, and held against other writers as long as the
    // object lives; null if there is one.
    [[nodiscard]] virtual std::unique_ptr<OpenFile> MakeRecord(const std::string& path,
                                                               const std::string& target) = 0;
    // Of a writer who is no more; null if there is no such file, or if its writer lives.
    [[nodiscard]] virtual std::unique_ptr<OpenFile> TakeRecord(const std::string& path) = 0;
    // The bytes of any writer's record; nothing if there is none.
    [[nodiscard]] virtual std::optional<std::string> ReadRecord(const std::string& path) = 0;
    virtual void Remove(const std::string& path) = 0;
    [[nodiscard]] virtual bool FlushFolderOf(const std::string& path) = 0;
    // The system's words for the call that failed last.
    [[nodiscard]] virtual std::string Reason() = 0;
};

// Nothing once the file holds these bytes, safe on disk; else the reason, and the file holds the old ones.
[[nodiscard]] std::optional<std::string> WriteInPlace(InPlaceMachine& machine, const std::string& target,
                                                      std::string_view bytes);

// To be asked before a file is read or written: puts back what a writer left half-way when he died. The old
// bytes, for who reads, where that cannot be done now or where the writer is still at it; else nothing.
[[nodiscard]] std::optional<std::string> PutBackHalfWay(InPlaceMachine& machine, const std::string& target);

} // namespace gfc::platform
