#include "Pairs.h"
#include "PlainFile.h"
#include "PlainStation.h"
#include "plan/Apply.h"
#include "plan/Template.h"
#include "support/Fakes.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <map>

// A table that says what a person chooses in the wizard gives the wizard's own bytes: held by the second
// account of the file, for every method with every pair of the other choices.
namespace gfc::test::sweep {
namespace {

using Row = std::vector<std::pair<std::string, std::string>>;

bool IsOneOf(const std::string& text, std::initializer_list<const char*> texts) {
    return std::ranges::find(texts, text) != texts.end();
}

// What stands in the runs as copies, or is a binding, is not said for each run.
bool IsSaidOfRun(const std::string& key) {
    return key.find("KDIO") == key.npos &&
           !IsOneOf(key, {"SystemUnits", "FlowAlgorithm", "GasDensitySource", "StandardT", "StandardP",
                          "Compressible", "FlowingViscosity", "IsentropicCoeff", "PressType", "ExtAtmPress",
                          "AtmPress"});
}

bool IsSaidOfStation(const std::string& section, const std::string& key) {
    if (section == "FlowRuns")
        return IsOneOf(key, {"FlowAlgorithm", "GasDensitySource", "SystemUnits"});
    if (section == "General")
        return key == "UserID";
    return !section.starts_with("Run") && key.find("KDIO") == key.npos &&
           !IsOneOf(key, {"Compressible", "AGA8Method"});
}

// The rows of a table, written from the account's lines and in its own order of columns.
std::vector<Row> RowsOf(const Choice& choice, const PlainFile& file) {
    std::vector<Row> rows;
    for (const int run : choice.Runs) {
        const std::string own = "Run" + std::to_string(run);
        Row row = {{"Station", "north"},
                   {"Runs", std::to_string(run)},
                   {"Tags", "automatic"},
                   {"Compressible", file.Value(own, "Compressible")}};
        std::string section;
        for (const std::string& line : file.Lines()) {
            if (line.starts_with('[')) {
                section = line.substr(1, line.find(']') - 1);
                continue;
            }
            const std::string key = line.substr(0, line.find('=')), value = line.substr(line.find('=') + 1);
            if (section == own ? IsSaidOfRun(key) : IsSaidOfStation(section, key))
                row.emplace_back(key, value);
        }
        // The way through the windows takes the first pulse counter for each run; of itself a table would
        // not.
        if (choice.AGA7())
            row.emplace_back("GasPulseInputKDIOTag", FreeTags().Longs.front().Name);
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string TableOf(const std::vector<Row>& rows) {
    std::vector<std::vector<std::string>> cells(1 + rows.size());
    for (const auto& [title, value] : rows.front())
        cells.front().push_back(title);
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (const auto& [title, value] : rows[i])
            cells[i + 1].push_back(value);
    return plan::WriteSheet(cells);
}

class Plans : public testing::TestWithParam<Choice> {
protected:
    Plans() {
        for (const auto& tag : StationTags())
            Library.TagsOf["North"].push_back(
                {tag.Name, std::stoi(tag.Address), tag.Type, tag.Module, tag.ModuleType});
        Project.ProjectFile = Library.ProjectFile;
        Project.ProjectName = "plant";
        Project.Paths = config::PathsOf(Library.ProjectFile);
        Project.Stations = {{.Name = "North", .Type = {}, .Address = {}}};
    }

    // The bytes that a table comes to; its faults are failures.
    std::string Planned(const std::string& table) {
        plan::Faults faults;
        const auto applied =
            plan::PlanTable(table, Files, Library, Project,
                            {.User = {}, .MayReplace = true, .Strictness = plan::Strictness::AsTheWindows},
                            faults, [](const std::string&) { return true; });
        for (const plan::Fault& fault : faults)
            ADD_FAILURE() << fault.Line();
        return applied.size() == 1 ? applied.front().Change.After : std::string();
    }

    MemoryFiles Files;
    FakeLibrary Library;
    project::Project Project;
};

void ExpectSame(const std::string& planned, const PlainFile& plain, const char* how) {
    const auto expected = plain.Lines();
    std::size_t at = 0;
    for (const std::string& line : expected) {
        ASSERT_EQ(planned.substr(at, line.size() + 2), line + "\r\n") << how;
        at += line.size() + 2;
    }
    EXPECT_EQ(planned.size(), at) << how;
}

TEST_P(Plans, come_to_the_bytes_of_the_wizard_and_templates_come_back) {
    for (const Choice& choice : SweptOf(GetParam())) {
        SCOPED_TRACE(choice.Text());
        const PlainFile plain = FileOf(choice);
        Files.Content.clear();
        ExpectSame(Planned(TableOf(RowsOf(choice, plain))), plain, "a table by hand");
        const std::string file = Project.ConfigFileOf("North");
        Files.Content[file] = plain.Text();
        const config::FileIni ini(Files);
        const auto table = plan::TemplateOf(ini, {{"North", file, &Library.TagsOf["North"]}}, {});
        ExpectSame(Planned(plan::WriteSheet(table)), plain, "a template");
        ASSERT_FALSE(HasFailure());
    }
}

INSTANTIATE_TEST_SUITE_P(Methods, Plans, testing::ValuesIn(Methods()),
                         [](const auto& method) { return method.param.Name(); });

} // namespace
} // namespace gfc::test::sweep
