#include "Contest.h"
#include "Floors.h"
#include "Material.h"
#include "peers/Peers.h"

#include <map>
#include <memory>

// One key of a station's file, the whole way each time.
namespace gfc::bench {

namespace {

// QSettings keeps what it has read of the last thirty files and takes it up again for one that has not
// changed since. So many files in turn make each access a complete one, for everybody.
constexpr std::size_t FilesInTurn = 64;

constexpr std::size_t FileSize = 32 * 1024;

// In the last run's section, as far from the top as a key can be.
constexpr const char* Key = "AGA8StatusKDIORegAddr";

struct Files {
    explicit Files(int scale) {
        const std::string bytes = LongStationFile(FileSize * static_cast<std::size_t>(scale));
        Section = bytes.substr(bytes.rfind("\n[") + 2);
        Section.resize(Section.find(']'));
        for (std::size_t i = 0; i < FilesInTurn; ++i)
            Put(Paths.emplace_back(InFolder.File("station" + std::to_string(i) + ".ini")), bytes);
    }
    [[nodiscard]] const std::string& Next() { return Paths[++turn_ % FilesInTurn]; }

    Folder InFolder;
    std::vector<std::string> Paths;
    std::string Section;

private:
    std::size_t turn_ = 0;
};

// Made once for each scale: at the largest they take longer to make than to be read.
Files& FilesAt(int scale) {
    static std::map<int, Files> files;
    return files.try_emplace(scale, scale).first->second;
}

using Access = std::function<std::string(const std::string& path, const std::string& section)>;

Work Reading(Access access) {
    return [access = std::move(access)](benchmark::State& state, int scale) {
        Files& files = FilesAt(scale);
        if (access(files.Next(), files.Section).empty())
            state.SkipWithError("the key was not found");
        for (auto _ : state)
            benchmark::DoNotOptimize(access(files.Next(), files.Section));
    };
}

using Change =
    std::function<void(const std::string& path, const std::string& section, const std::string& value)>;

Work Writing(Change change) {
    return [change = std::move(change)](benchmark::State& state, int scale) {
        Files& files = FilesAt(scale);
        int value = 0;
        for (auto _ : state)
            change(files.Next(), files.Section, std::to_string(1000 + ++value % 9000));
    };
}

void ContestReading() {
    const std::shared_ptr<platform::Files> files = platform::MakeFiles();
    const auto ini = std::make_shared<config::FileIni>(*files);
    Contest("read_key", Ours, Reading([files, ini](const std::string& path, const std::string& section) {
                return ini->ReadKey(section, Key, path);
            }));
    Contest("read_key", Floor, Reading([](const std::string& path, const std::string&) {
                return PlainScan(PlainRead(path), std::string(Key) + "=");
            }));
    for (const Peer& peer : Peers())
        Contest("read_key", peer.Name, Reading([&peer](const std::string& path, const std::string& section) {
                    return peer.Read(path, section, Key);
                }));
}

void ContestWriting() {
    const std::shared_ptr<platform::Files> files = platform::MakeFiles();
    const auto ini = std::make_shared<config::FileIni>(*files);
    Contest("write_key", Ours,
            Writing([files, ini](const std::string& path, const std::string& section,
                                 const std::string& value) { ini->WriteKey(section, Key, value, path); }));
    // The bytes are at hand: the floor neither reads nor changes.
    Contest("write_key", Floor, [](benchmark::State& state, int scale) {
        Files& turn = FilesAt(scale);
        const std::string bytes = PlainRead(turn.Next());
        for (auto _ : state)
            PlainReplace(turn.Next(), bytes);
    });
    for (const Peer& peer : Peers())
        if (peer.Write != nullptr)
            Contest("write_key", peer.Name,
                    Writing([&peer](const std::string& path, const std::string& section,
                                    const std::string& value) { peer.Write(path, section, Key, value); }));
}

} // namespace

void ContestKeys() {
    ContestReading();
    ContestWriting();
}

} // namespace gfc::bench
