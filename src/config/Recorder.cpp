#include "config/Recorder.h"

#include "config/FileIni.h"

namespace gfc::config {

std::string RecordPath(const ProjectPaths& paths, std::string_view project) {
    constexpr std::string_view station = "History";
    constexpr std::string_view ending = ".ini";
    std::string path = ConfigFilePath(paths, project, station);
    if (path.empty())
        return path;
    return path.replace(path.size() - ending.size(), ending.size(), ".sqlite");
}

RecordCheck Recorder::Verify(const std::string& record) {
    const auto verification = BeginVerification(record);
    while (verification->Advance()) {
    }
    return verification->SoFar();
}

namespace {

class NothingToVerify : public RecordVerification {
public:
    bool Advance() override { return false; }
    [[nodiscard]] const RecordCheck& SoFar() const override { return check_; }

private:
    RecordCheck check_;
};

} // namespace

std::unique_ptr<RecordVerification> NoRecorder::BeginVerification(const std::string&) {
    return std::make_unique<NothingToVerify>();
}

} // namespace gfc::config
