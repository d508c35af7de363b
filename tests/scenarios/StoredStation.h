#pragma once

#include "scenarios/Scenario.h"
#include "support/FileText.h"

#include <memory>

// Stories about a station whose configuration stands already: North, as the wizard has left it, runs 2 and 5
// on.
namespace gfc::test {

// What goes on beside the program, for the acts of a story.
struct Outside {
    FakeProgram* Program = nullptr;

    [[nodiscard]] static std::string File(const std::string& station = "North");
    std::string& Content(const std::string& station = "North") const;
    [[nodiscard]] std::string Key(const std::string& section, const std::string& key) const;
    void Put(const std::string& section, const std::string& key, const std::string& value) const;
    // As the tool does it while the program runs.
    void RenameTag(const std::string& name, const std::string& newName) const;
};
using TheOutside = std::shared_ptr<Outside>;

struct StoredStation {
    std::string Name;
    // One of those in golden/wizard.
    std::string Golden = "aga3_densimeter";
    // What is done to the file by hand before the program starts, and what else is there.
    std::function<void(FileText&)> ByHand = {};
    std::function<void(FakeProgram&)> Beside = {};
    // Between the start and the exit, in the main window.
    std::function<void(Story&, const TheOutside&)> Tell;
    // What of the file must be different at the end, told by rules of the tests alone. The rest of it must be
    // the same byte for byte, and nothing beside it may be left but what Leaves names.
    std::function<void(FileText&)> Changes = {};
    std::vector<std::string> Leaves = {};
    std::function<void(const Outside&)> After = {};
    bool EndsByItself = false;
};
[[nodiscard]] Scenario TheScenario(const StoredStation& stored);

namespace moves {

inline const std::string NorthNode = "All Stations\\North";
inline const std::string RunsNode = NorthNode + "\\Individual Parameters";
[[nodiscard]] std::string RunNode(int run, const std::string& station = "North");

// Selects the node and chooses the entry of the main window's menu.
void Choose(Story& story, const std::string& node, const std::string& command);
// The picture of the node.
void SeeImage(Story& story, const std::string& node, const std::string& image);

} // namespace moves

} // namespace gfc::test
