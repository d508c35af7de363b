#pragma once

#include "Choice.h"

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

// The file that a combination must give, written out line by line.
namespace gfc::test::sweep {

class PlainFile {
public:
    void Begin(std::string section) { sections_.push_back({std::move(section), {}}); }
    void Put(std::string key, std::string value);
    [[nodiscard]] std::string Text() const;
    [[nodiscard]] std::vector<std::string> Lines() const;
    // Without regard to case; empty if there is none.
    [[nodiscard]] std::string Value(const std::string& section, const std::string& key) const;

private:
    struct Section {
        std::string Name;
        std::vector<std::pair<std::string, std::string>> Keys;
    };
    std::vector<Section> sections_;
    std::unordered_map<std::string, std::string> values_; // by section and key in small letters
};

// Station "North" of project "/jobs/plant.KPJ" by user 4711, all variables bound automatically, all editors
// accepted; the machine's clock and zone are those below.
[[nodiscard]] PlainFile FileOf(const Choice& choice);

constexpr int LocalHour = 12, LocalMinute = 37;
constexpr int ZoneBias = -330; // five and a half hours ahead of GMT
constexpr const char* GMTHour = "7";
constexpr const char* GMTMinute = "7";
constexpr const char* LocalTime = "12:37";
constexpr const char* DensityStandard = "0.7";
constexpr int AccelabarEntry(const Choice& choice) {
    return choice.Units; // another size in each unit system
}

} // namespace gfc::test::sweep
