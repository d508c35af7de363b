#include "workshop/edit/TagEdits.h"

#include "workshop/import/TagTable.h"
#include "workshop/store/Failure.h"

namespace gfc::workshop {

namespace {

std::string PlaceText(const std::string& registerClass, std::int32_t number) {
    return registerClass + ' ' + std::to_string(number);
}

std::string Called(const Station& station, const Tag& tag) {
    return "tag " + tag.Name + " of station " + station.Name;
}

Tag TagNamed(Project& project, const Station& station, const std::string& name) {
    auto tag = FindTag(project, station.Id, name);
    if (!tag) {
        throw Failure(name + ": station " + station.Name + " has no such tag; \"io-workshop tags " +
                      station.Name + "\" lists them.");
    }
    return *std::move(tag);
}

// The tag itself is in nobody's way: a name may change in the case of its letters alone.
void CheckName(Project& project, const Station& station, const Tag& tag, const std::string& name) {
    if (const std::string fault = FaultUnder("Tag", name); !fault.empty()) {
        throw Failure("New name of " + Called(station, tag) + ": " + fault + "; choose another name.");
    }
    const auto holder = FindTag(project, station.Id, name);
    if (holder && holder->Name != tag.Name) {
        throw Failure(name + ": station " + station.Name + " has a tag " + holder->Name + " at " +
                      PlaceText(*holder) + " already; choose another name, or rename that tag first.");
    }
}

void CheckRegister(Project& project, const Station& station, const Tag& tag, const std::string& text) {
    if (const std::string fault = FaultUnder("Register", text); !fault.empty()) {
        throw Failure("New register of " + Called(station, tag) + ": " + fault + ".");
    }
    const std::int32_t number = NumberOf(text);
    const auto holder = FindTagAt(project, station.Id, tag.Class, number);
    if (holder && holder->Name != tag.Name) {
        throw Failure(PlaceText(tag.Class, number) + ": " + Called(station, *holder) +
                      " stands there already; choose another register, or move that tag first.");
    }
}

std::string Rename(Project& project, const Station& station, const Tag& tag, const std::string& name) {
    CheckName(project, station, tag, name);
    RenameTag(project, station.Id, tag.Name, name);
    return "Renamed " + Called(station, tag) + " to " + name + ".";
}

std::string Move(Project& project, const Station& station, const Tag& tag, const std::string& text) {
    CheckRegister(project, station, tag, text);
    MoveTag(project, station.Id, tag.Name, NumberOf(text));
    return "Moved " + Called(station, tag) + " from " + PlaceText(tag) + " to " +
           PlaceText(tag.Class, NumberOf(text)) + ".";
}

std::string Remove(Project& project, const Station& station, const Tag& tag, const std::string& /*none*/) {
    RemoveTag(project, station.Id, tag.Name);
    return "Removed " + Called(station, tag) + " from " + PlaceText(tag) + ".";
}

template <typename Change>
std::string CarryOut(Project& project, const EditOfTag& edit, Change change) {
    Transaction transaction(project.Data()); // what was looked up must still hold when it is changed
    const Station station = StationNamed(project, edit.Station);
    const std::string done = change(project, station, TagNamed(project, station, edit.Tag), edit.Target);
    transaction.Commit();
    return done;
}

} // namespace

std::string PlaceText(const Tag& tag) {
    return PlaceText(tag.Class, tag.Register);
}

std::string RenameTag(Project& project, const EditOfTag& edit) {
    return CarryOut(project, edit, Rename);
}

std::string MoveTag(Project& project, const EditOfTag& edit) {
    return CarryOut(project, edit, Move);
}

std::string RemoveTag(Project& project, const EditOfTag& edit) {
    return CarryOut(project, edit, Remove);
}

} // namespace gfc::workshop
