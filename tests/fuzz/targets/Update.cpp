#include "config/ConfigReader.h"
#include "config/InPlaceUpdate.h"
#include "config/Vocabulary.h"
#include "fuzz/Input.h"
#include "fuzz/PlainProfile.h"
#include "fuzz/Target.h"
#include "services/CodePage.h"
#include "support/MemoryFiles.h"

#include <array>

// Changes of a file key by key: the same in a batch as one by one, nothing else touched, and what was written
// is what is read.
namespace gfc::fuzz {

namespace {

const std::string Path = "case.ini";
constexpr std::array<const char*, 4> Sections = {"FlowRuns", "Run1", "run1", "AGA3"};
constexpr std::array<const char*, 4> Keys = {"Run1", "FlowAlgorithm", "GasPressKDIOTag", "AtmPress"};
constexpr std::size_t UpdateKinds = 7;
constexpr std::size_t LongestValue = 40;
constexpr std::size_t LongestWrites = 100;

struct Store {
    test::MemoryFiles Files;
    config::FileIni Ini{Files};

    explicit Store(std::string_view bytes) { Files.Content[Path] = bytes; }
    [[nodiscard]] const std::string& Bytes() { return Files.Content[Path]; }
};

// What a profile keeps of a value.
std::string Kept(std::string_view value) {
    PlainProfile plain("[s]");
    plain.Write("s", "k", value.substr(0, value.find_first_of(std::string_view("\0\r\n", 3))));
    return services::FromCodePage(plain.Read("s", "k"));
}

void WriteOne(Input& input, config::FileIni& ini) {
    const std::string section = Sections.at(input.Below(Sections.size()));
    const std::string key = Keys.at(input.Below(Keys.size()));
    const std::size_t kind = input.Below(4);
    const std::string_view value = input.Text(LongestValue);
    const std::string text = services::FromCodePage(value);
    if (kind == 0) {
        ini.WriteKey(section, key, std::nullopt, Path);
    } else if (kind == 1) {
        ini.WriteSection(section, {{key, text}}, Path);
    } else {
        ini.WriteKey(section, key, text, Path);
        Require(ini.ReadKey(section, key, Path) == Kept(value), "the value comes back");
    }
}

// The model as the file has it, with the flags that the callers set beside it.
config::StationConfig StationOf(const config::FileIni& ini) {
    config::StationConfig station;
    LoadStationConfig(ini, station, Path);
    LoadRun(ini, station, Path, 1);
    station.Measured = station.GasDensitySource == config::source::Measured;
    station.FlagAGA7 = station.FlowAlgorithm == config::algorithm::AGA7;
    return station;
}

void UpdateRun(std::size_t kind, int run, config::FileIni& ini) {
    const config::StationConfig station = StationOf(ini);
    if (kind == 5)
        WriteAddedRunKeys(ini, station, station.Runs.Mechanical.front(), run, Path);
    else if (kind == 6)
        SaveConfiguratorChanges(ini, station, Path);
    else
        WriteRunBindings(ini, station, static_cast<int>(kind), run, Path);
}

std::vector<std::string> TouchedBy(std::size_t kind, int run) {
    if (kind == 6)
        return {"General", "Station", "FlowRuns", "AGA3", "AGA7", "Run1", "Run2", "Run3", "Run4", "Run5"};
    return {"FlowRuns", "Run" + std::to_string(run)};
}

void WriteAll(Input writes, config::FileIni& ini) {
    while (!writes.IsEmpty())
        WriteOne(writes, ini);
}

void CheckBatch(Input& input) {
    const Input writes(input.Text(LongestWrites));
    const std::string_view file = input.Rest();
    Store single(file);
    WriteAll(writes, single.Ini);
    Store batched(file);
    {
        const config::FileBatch batch(batched.Ini, Path);
        WriteAll(writes, batched.Ini);
    }
    Require(single.Bytes() == batched.Bytes(), "a batch gives the bytes of the single writes");
}

void CheckUpdate(std::size_t kind, Input& input) {
    const int run = 1 + static_cast<int>(input.Below(config::MaxRuns));
    Store store(input.Rest());
    const std::string before = store.Bytes();
    UpdateRun(kind, run, store.Ini);
    const auto touched = TouchedBy(kind, run);
    Require(PlainProfile(before).LinesOutside(touched) == PlainProfile(store.Bytes()).LinesOutside(touched),
            "the lines of other sections stay");
}

} // namespace

void Update(std::string_view bytes) {
    Input input(bytes);
    const std::size_t kind = input.Below(2 * UpdateKinds);
    if (kind < UpdateKinds)
        CheckUpdate(kind, input);
    else
        CheckBatch(input);
}

} // namespace gfc::fuzz
