// A folder, a state folder and a way to run the command, all of them one test's own.
#pragma once

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
#include <sys/wait.h>
#include <unistd.h>

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
protected:
    struct Outcome {
        int Status;
        std::string Output; ///< what it wrote on either stream
    };

    WorkshopFixture() {
        std::string name = (std::filesystem::temp_directory_path() / "workshop-XXXXXX").string();
        Folder = ::mkdtemp(name.data());
        ::setenv("XDG_STATE_HOME", (Folder / "state").c_str(), 1);
    }
    ~WorkshopFixture() override {
        ::unsetenv("XDG_STATE_HOME");
        std::error_code ignored;
        std::filesystem::remove_all(Folder, ignored);
    }

    /// Runs io-workshop with `arguments` as a shell would split them.
    static Outcome Run(const std::string& arguments) {
        const std::string command =
            "'" + (test::BinFolder() / "io-workshop").string() + "' " + arguments + " 2>&1";
        FILE* pipe = ::popen(command.c_str(), "r");
        std::string output;
        char chunk[4096];
        while (const std::size_t size = std::fread(chunk, 1, sizeof chunk, pipe)) {
            output.append(chunk, size);
        }
        const int status = ::pclose(pipe);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
    }

    [[nodiscard]] std::string In(const std::string& name) const { return (Folder / name).string(); }
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

    std::filesystem::path Folder;
};

} // namespace gfc::workshop
