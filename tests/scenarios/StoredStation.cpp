#include "scenarios/StoredStation.h"

#include "scenarios/Moves.h"
#include "support/InJobs.h"
#include "support/ProjectFiles.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

std::string FileBefore(const StoredStation& stored) {
    FileText file(Golden("wizard/" + stored.Golden + ".ini"));
    if (stored.ByHand)
        stored.ByHand(file);
    return file.Bytes();
}

void ExpectFiles(const StoredStation& stored, const Outside& outside) {
    FileText expected(FileBefore(stored));
    if (stored.Changes)
        stored.Changes(expected);
    auto left = stored.Leaves;
    left.push_back(Outside::File());
    for (const auto& [path, bytes] : ProjectFiles(outside.Program->Files))
        EXPECT_EQ(std::ranges::count(left, path), 1) << path << " is left behind";
    for (const auto& path : left)
        EXPECT_TRUE(outside.Program->Files.Content.contains(path)) << path;
    ExpectSameFile(outside.Content(), expected.Bytes());
}

} // namespace

std::string Outside::File(const std::string& station) {
    return InJobs("KDOrmAGA_plant_" + station + ".ini");
}

std::string& Outside::Content(const std::string& station) const {
    return Program->Files.Content[File(station)];
}

std::string Outside::Key(const std::string& section, const std::string& key) const {
    return FileText(Content()).Value(section, key).value_or("no such key");
}

void Outside::Put(const std::string& section, const std::string& key, const std::string& value) const {
    Content() = FileText(Content()).Set(section, key, value).Bytes();
}

void Outside::RenameTag(const std::string& name, const std::string& newName) const {
    auto& tags = Program->Library.TagsOf.at("North");
    const auto tag = std::ranges::find_if(tags, [&](const auto& each) { return each.TagName == name; });
    ASSERT_NE(tag, tags.end()) << name;
    tag->TagName = newName;
}

Scenario TheScenario(const StoredStation& stored) {
    const auto outside = std::make_shared<Outside>();
    return {stored.Name,
            [=](FakeProgram& program) {
                outside->Program = &program;
                moves::ThreeStations(program);
                outside->Content() = FileBefore(stored);
                if (stored.Beside)
                    stored.Beside(program);
            },
            [=](Story& story) {
                moves::StartUp(story);
                stored.Tell(story, outside);
                if (!stored.EndsByItself)
                    moves::Exit(story);
            },
            [=](FakeProgram&) {
                ExpectFiles(stored, *outside);
                if (stored.After)
                    stored.After(*outside);
            }};
}

namespace moves {

std::string RunNode(int run, const std::string& station) {
    return "All Stations\\" + station + "\\Individual Parameters\\Run " + std::to_string(run);
}

void Choose(Story& story, const std::string& node, const std::string& command) {
    story.ClickNode("GFCPrincipal", "TreeGFC", node).Menu("GFCPrincipal", command);
}

void SeeImage(Story& story, const std::string& node, const std::string& image) {
    story.Check([=](Driver& d) { EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", node), image) << node; });
}

} // namespace moves

} // namespace gfc::test
