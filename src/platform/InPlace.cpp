#include "platform/InPlace.h"

#include <algorithm>
#include <charconv>

namespace gfc::platform {
namespace {

constexpr std::string_view Mark = "gfc-undo 1";

// Tells a whole record from one that was cut short or never reached the disk.
std::uint64_t Sum(std::string_view bytes) {
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return sum;
}

// The line up to its end, which is taken off the bytes.
std::string_view TakeLine(std::string_view& bytes) {
    const std::string_view line = bytes.substr(0, bytes.find('\n'));
    bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
    return line;
}

std::uint64_t TakeNumber(std::string_view& bytes) {
    const std::string_view line = TakeLine(bytes);
    std::uint64_t number = 0;
    std::from_chars(line.data(), line.data() + line.size(), number);
    return number;
}

// What lies beyond the file's end first: where the disk is full nothing has been touched then.
bool Overwrite(OpenFile& file, std::size_t size, std::string_view bytes) {
    const std::size_t common = std::min(size, bytes.size());
    const bool longer = bytes.size() > size;
    return (!longer || (file.WriteAt(common, bytes.substr(common)) && file.Flush())) &&
           file.WriteAt(0, bytes.substr(0, common)) && file.SetSize(bytes.size()) && file.Flush();
}

struct Record {
    std::string Path;
    std::unique_ptr<OpenFile> File;
};

// While it is still held, so that it is no other writer's by then.
void Discard(InPlaceMachine& machine, Record& record) {
    machine.Remove(record.Path);
    record.File.reset();
}

// In the first place that takes it. Without a file, and with the reason of the first place, if none does.
Record MakeRecord(InPlaceMachine& machine, const UndoRecord& record, std::string& reason) {
    const std::string bytes = record.Bytes();
    for (const std::string& path : machine.RecordPaths(record.Target)) {
        Record made{path, machine.MakeRecord(path, record.Target)};
        if (made.File && made.File->WriteAt(0, bytes) && made.File->Flush() && machine.FlushFolderOf(path))
            return made;
        if (reason.empty())
            reason = machine.Reason();
        if (made.File)
            Discard(machine, made);
    }
    return {};
}

// True if nothing more has to be done about that record.
bool Undo(InPlaceMachine& machine, const UndoRecord& record) {
    const auto file = machine.OpenTarget(record.Target);
    const auto now = file ? file->ReadAll() : std::nullopt;
    if (!now)
        return false;
    return !record.IsHalfWay(*now) || Overwrite(*file, now->size(), record.Old);
}

} // namespace

std::string RecordNameOf(std::string_view target) {
    return std::to_string(Sum(target)) + ".undo";
}

std::string UndoRecord::Bytes() const {
    std::string body;
    for (const std::string* part : {&Target, &Old, &New})
        body += std::to_string(part->size()) + '\n';
    body += Target + Old + New;
    return std::string(Mark) + '\n' + std::to_string(Sum(body)) + '\n' + body;
}

std::optional<UndoRecord> UndoRecord::Of(std::string_view bytes) {
    if (TakeLine(bytes) != Mark || TakeNumber(bytes) != Sum(bytes))
        return std::nullopt;
    std::uint64_t sizes[3];
    for (auto& size : sizes)
        size = TakeNumber(bytes);
    UndoRecord record;
    std::string* const parts[] = {&record.Target, &record.Old, &record.New};
    for (int i = 0; i < 3; ++i) {
        *parts[i] = bytes.substr(0, static_cast<std::size_t>(sizes[i]));
        bytes.remove_prefix(parts[i]->size());
    }
    return record;
}

bool UndoRecord::IsHalfWay(std::string_view now) const {
    if (now == Old || now == New || now.size() > std::max(Old.size(), New.size()))
        return false;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const bool old = i < Old.size() && now[i] == Old[i];
        const bool fresh = i < New.size() && now[i] == New[i];
        if (!old && !fresh && now[i] != '\0')
            return false;
    }
    return true;
}

std::optional<std::string> WriteInPlace(InPlaceMachine& machine, const std::string& target,
                                        std::string_view bytes) {
    const auto file = machine.OpenTarget(target);
    auto old = file ? file->ReadAll() : std::nullopt;
    if (!old)
        return machine.Reason();
    const UndoRecord undo{target, std::move(*old), std::string(bytes)};
    std::string reason;
    Record record = MakeRecord(machine, undo, reason);
    if (!record.File)
        return reason;
    if (Overwrite(*file, undo.Old.size(), bytes)) {
        Discard(machine, record);
        return std::nullopt;
    }
    reason = machine.Reason();
    // Where not even that succeeds the record stays for the next access.
    const auto now = file->ReadAll();
    if (now && Overwrite(*file, now->size(), undo.Old))
        Discard(machine, record);
    return reason;
}

std::optional<std::string> PutBackHalfWay(InPlaceMachine& machine, const std::string& target) {
    for (const std::string& path : machine.RecordPaths(target)) {
        const auto bytes = machine.ReadRecord(path);
        if (!bytes)
            continue;
        auto record = UndoRecord::Of(*bytes);
        const bool its = record && record->Target == target;
        Record dead{path, machine.TakeRecord(path)};
        if (dead.File && (!record || (its && Undo(machine, *record))))
            Discard(machine, dead);
        else if (its)
            return std::move(record->Old);
    }
    return std::nullopt;
}

} // namespace gfc::platform
