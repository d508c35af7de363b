#pragma once

#include "platform/InPlace.h"

namespace gfc::platform::windows {

// Writes over what other programs have open and let others write to, as the profile functions of the system
// do. Paths are UTF-8.
class WindowsInPlace : public InPlaceMachine {
public:
    [[nodiscard]] std::vector<std::string> RecordPaths(const std::string& target) override;
    [[nodiscard]] std::unique_ptr<OpenFile> OpenTarget(const std::string& target) override;
    [[nodiscard]] std::unique_ptr<OpenFile> MakeRecord(const std::string& path,
                                                       const std::string& target) override;
    [[nodiscard]] std::unique_ptr<OpenFile> TakeRecord(const std::string& path) override;
    [[nodiscard]] std::optional<std::string> ReadRecord(const std::string& path) override;
    void Remove(const std::string& path) override;
    // The system flushes the entry with the file.
    [[nodiscard]] bool FlushFolderOf(const std::string&) override { return true; }
    [[nodiscard]] std::string Reason() override;
};

} // namespace gfc::platform::windows
