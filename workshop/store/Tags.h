#pragma once

#include "workshop/store/Project.h"
#include "workshop/store/Stations.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// Register classes: digital, analog, float and long; X for inputs, Y for outputs.
inline constexpr std::array<std::string_view, 8> RegisterClasses = {"X",  "Y",  "AX", "AY",
                                                                    "FX", "FY", "LX", "LY"};

struct Tag {
    std::string Name;
    std::string Class; ///< one of RegisterClasses
    std::int32_t Register = 0;
    std::string Module;
    std::string ModuleType; ///< its first word is "Virtual" for a virtual module
    std::string Description;

    bool operator==(const Tag&) const = default;
};

/// A station with its tags in delivery order.
struct StationTags {
    Station TheStation;
    std::vector<Tag> Tags;
};

/// A tag as it stands in the current row of a query; the texts are valid until the next row.
struct TagView {
    std::string_view Name;
    std::string_view Class;
    std::int32_t Register;
    std::string_view Module;
    std::string_view ModuleType;
    std::string_view Description;
};

/// Calls `take` for every tag of the station in delivery order, after telling `expect` how many will come.
void VisitTags(Project& project, std::int64_t station, const std::function<void(std::size_t)>& expect,
               const std::function<void(const TagView&)>& take);
[[nodiscard]] std::vector<Tag> ListTags(Project& project, std::int64_t station);
[[nodiscard]] std::size_t CountTags(Project& project, std::int64_t station);
/// By name, whatever the case of its letters; a station has one tag of a name.
[[nodiscard]] std::optional<Tag> FindTag(Project& project, std::int64_t station, std::string_view name);
/// A station has one tag at a register of a class.
[[nodiscard]] std::optional<Tag> FindTagAt(Project& project, std::int64_t station,
                                           std::string_view registerClass, std::int32_t number);
/// The next three change one tag where it stands in the delivery order. Each throws Failure when the station
/// has another tag of that name or place; one that the station does not have is let go by.
void RenameTag(Project& project, std::int64_t station, std::string_view name, std::string_view newName);
void MoveTag(Project& project, std::int64_t station, std::string_view name, std::int32_t number);
/// Takes the tag out, and its module with the last tag of it.
void RemoveTag(Project& project, std::int64_t station, std::string_view name);
/// Takes out all tags and modules of the station.
void RemoveTags(Project& project, std::int64_t station);

/// Appends tags to the end of a station's delivery order, making modules as they come.
class TagAppender {
public:
    TagAppender(Project& project, std::int64_t station);
    void Append(const Tag& tag);
    void Append(const std::vector<Tag>& tags);

private:
    std::int64_t ModuleOf(const Tag& tag);

    Project& project_;
    std::int64_t station_;
    std::int64_t place_;
    std::map<std::string, std::int64_t, std::less<>> modules_;
    Statement insert_;
};

} // namespace gfc::workshop
