#pragma once

#include "audit/Check.h"
#include "config/VarINIFile.h"
#include "config/Vocabulary.h"
#include "project/TagInventory.h"

#include <string>
#include <string_view>
#include <vector>

// A station's file that is sound in everything, with the tags that it binds, and what can be done to both.
namespace gfc::test {

struct SampleChoices {
    std::string_view Algorithm = config::algorithm::AGA3;
    std::string_view Source = config::source::AGA8;
    std::string_view Units = config::units::US;
    bool Chromatograph = false;
    bool ExternalDiameters = false;
    bool GageFixed = false;
    bool GageExternal = false;
    std::vector<int> Runs = {1, 2};
};

class SampleStation {
public:
    explicit SampleStation(const SampleChoices& choices = {});

    // One key of the file; a section or key that is missing is added.
    SampleStation& Set(std::string_view section, std::string_view key, const std::string& value);
    SampleStation& Remove(std::string_view section, std::string_view key);
    SampleStation& RemoveSection(const std::string& section);
    // Lines at the end of the file.
    SampleStation& Append(const std::string& lines);
    // The first place alone.
    SampleStation& Replace(const std::string& text, const std::string& by);
    // Both bindings take the tag of the first one.
    SampleStation& BindAlike(std::string_view section, std::string_view stem, std::string_view otherSection,
                             std::string_view otherStem);
    // The tag that a binding names gets another name, in the file and in the station.
    SampleStation& Name(std::string_view section, std::string_view stem, const std::string& name);

    [[nodiscard]] std::string Value(std::string_view section, std::string_view key) const;
    [[nodiscard]] project::Tag& TagOf(std::string_view section, std::string_view stem);
    [[nodiscard]] audit::StationReport Check() const;
    [[nodiscard]] audit::StationReport CheckWithoutTags() const;

    std::string Bytes;
    project::TagList Tags;
    std::string Station = "North";
    std::string Project = "plant";

private:
    void AddTag(std::string_view type, std::string_view module, int address, config::TagBinding& binding);
    void AddModules(config::StationConfig& station);
    void BindAll(config::StationConfig& station);
};

} // namespace gfc::test
