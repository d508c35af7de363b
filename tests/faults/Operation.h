#pragma once

#include "faults/Room.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// What a person does to files, as the trials know it.
namespace gfc::test::faults {

// What a person was told.
using Words = std::vector<std::string>;

// What begins so tells of something that was not done.
inline constexpr const char* FailureMark = "failed: ";

// Told by an operation when all is ready and the part that is to be tried begins; what it says on its way;
// and whether the person who is told of a failure tries again, as often as it takes until the disk is mended,
// or gives it up.
struct Stage {
    std::function<void()> Begin;
    std::function<void(const std::string&)> Say;
    std::function<bool()> TriesAgain;
};

struct Operation {
    std::string Name;
    // What stands in the folder before.
    std::function<void(const std::filesystem::path&)> Lay;
    // Must come back whatever fails; an exception is an end without words.
    std::function<void(const std::filesystem::path&, const Stage&)> Play;
    // What the folder holds, as its users see it.
    std::function<Content(const std::filesystem::path&)> Look = ContentOf;
    // The file, by the end of its name, that may also be missing or be as this other one was before: where
    // the operation deletes first, or copies and then changes the copy.
    std::string Between = {};
    std::string BetweenAs = {};
    // A part of what is said when the operation has failed, and then the file Between must be as it was.
    std::string Refusal = {};
    // What matters of a file's bytes, where what fails on the way may rightly change the rest of them.
    std::function<std::string(const std::string& name, std::string bytes)> Essence = {};
    // The file in which this operation changes single keys, so that what another program changed in it since
    // it was read must still be there. Empty for operations that make or delete whole files.
    std::string ChangesKeysOf = {};
    // It reads the record first, and cannot go on without it.
    bool NeedsRecord = false;
    // An entry of the record is all that it makes.
    bool IsOfRecord = false;
    // The next start after a death: must find its way about, and remove what was left behind.
    std::function<void(const std::filesystem::path&)> StartAgain = {};
};

[[nodiscard]] std::vector<Operation> ProgramOperations();
[[nodiscard]] std::vector<Operation> WorkshopOperations();
[[nodiscard]] std::vector<Operation> PlanOperations();
[[nodiscard]] std::vector<Operation> RecordOperations();
[[nodiscard]] std::vector<Operation> DraftOperations();

} // namespace gfc::test::faults
