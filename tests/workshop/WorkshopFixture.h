// A folder, a state folder and a way to run the command, all of them one test's own.
#pragma once

#include "support/Shell.h"
#include "support/TempFolder.h"
#include "support/TestFolders.h"
#include "workshop/store/Project.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace gfc::workshop {

inline std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

/// The text of the Failure that `call` throws; empty when it throws none.
template <typename Call>
std::string FailureOf(Call call) {
    try {
        call();
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
    return {};
}

class WorkshopFixture : public testing::Test {
    test::TempFolder folder_;

protected:
    using Outcome = test::Outcome;

    WorkshopFixture() : Folder(folder_.Path()) { SetVariable("XDG_STATE_HOME", In("state")); }
    ~WorkshopFixture() override { SetVariable("XDG_STATE_HOME", ""); }

    /// Runs io-workshop with `arguments` as a shell would split them; single quotes hold a word together.
    static Outcome Run(const std::string& arguments) {
        return test::RunInShell("'" + (test::BinFolder() / "io-workshop").string() + "' " + arguments);
    }

    [[nodiscard]] std::string In(const std::string& name) const {
        return (Folder / name).make_preferred().string();
    }
    [[nodiscard]] std::string Quoted(const std::string& name) const { return "'" + In(name) + "'"; }

    /// A project with station North, three tags in two modules, and station South without tags.
    Project MakeSmallProject(const std::string& name = "small.KPJ") {
        Project project = Project::Create(Folder / name);
        const std::int64_t north = AddStation(project, {0, "North", "Orm", "10.0.0.5", 4711});
        AddStation(project, {0, "South", "", "", 0});
        TagAppender appender(project, north);
        appender.Append({"PIT-101", "FX", 1001, "VFX_RUN", "Virtual Module", "static pressure"});
        appender.Append({"XV-304", "X", 7, "DI-16 Slot 3", "DI-16 Digital Input", ""});
        appender.Append({"TIT_1201A", "FX", 1000, "VFX_RUN", "Virtual Module", ""});
        return project;
    }

    /// Of this process and of those that it starts; an empty value takes it away.
    static void SetVariable(const char* name, const std::string& value) {
#ifdef _WIN32
        ::_putenv_s(name, value.c_str());
#else
        value.empty() ? ::unsetenv(name) : ::setenv(name, value.c_str(), 1);
#endif
    }

    const std::filesystem::path Folder;
};

} // namespace gfc::workshop
