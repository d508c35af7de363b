#pragma once

#include "platform/InPlace.h"

namespace gfc::platform::posix {

// Writes over what may be written, whoever else has it open.
class PosixInPlace : public InPlaceMachine {
public:
    [[nodiscard]] std::vector<std::string> RecordPaths(const std::string& target) override;
    [[nodiscard]] std::unique_ptr<OpenFile> OpenTarget(const std::string& target) override;
    [[nodiscard]] std::unique_ptr<OpenFile> MakeRecord(const std::string& path,
                                                       const std::string& target) override;
    [[nodiscard]] std::unique_ptr<OpenFile> TakeRecord(const std::string& path) override;
    [[nodiscard]] std::optional<std::string> ReadRecord(const std::string& path) override;
    void Remove(const std::string& path) override;
    [[nodiscard]] bool FlushFolderOf(const std::string& path) override;
    [[nodiscard]] std::string Reason() override;
};

} // namespace gfc::platform::posix
