// The gate before real libraries that answer what no library should.
#include "project/AddOnExports.h"
#include "support/HostileWays.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <ostream>

namespace gfc::test {

namespace {

using CallCounter = int (*)(const char*);

std::unique_ptr<project::AddOnLibrary> Gate(const HostileFolder& folder, std::size_t way,
                                            CallCounter* calls = nullptr) {
    std::string error;
    auto library = project::LoadAddOnLibrary(
        [&](const std::string& path) {
            auto loaded = HostileFolder::Load(path, way, [] {});
            if (calls != nullptr)
                *calls = HostileFolder::CallsOf(loaded);
            return loaded;
        },
        folder.Path(), error);
    EXPECT_NE(library, nullptr) << error;
    return library;
}

class HostileGate : public testing::TestWithParam<std::size_t> {
protected:
    [[nodiscard]] static const HostileWay& Row() { return HostileWays[GetParam()]; }

    void ExpectCalls(const std::string& function, int calls) const {
        EXPECT_EQ(CallsOf(("kdaddon_VB" + function).c_str()), calls) << function;
    }

    HostileFolder Folder;
    CallCounter CallsOf = nullptr;
    std::unique_ptr<project::AddOnLibrary> Library = Gate(Folder, GetParam(), &CallsOf);
};

TEST_P(HostileGate, gives_what_can_be_read_and_no_more) {
    ASSERT_NE(Library, nullptr);
    EXPECT_EQ(Library->GetProjectFile().size(), 255U);
    const auto stations = Library->GetStations();
    ASSERT_TRUE(stations.has_value());
    EXPECT_EQ(stations->size(), Row().Stations);
    std::size_t told = 0;
    const auto tags = Library->ReadTags("North", "/jobs/plant.KPJ", [&told](std::string_view) { ++told; });
    EXPECT_EQ(tags.size(), Row().Tags);
    EXPECT_EQ(told, Row().Tags);
    for (const auto& tag : tags)
        EXPECT_EQ(tag.TagName, std::string(40, 'x')) << "cut at the width of its field";
    Library->AddFileToLoad("North", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini");
    EXPECT_EQ(Library->RemoveFileToLoad("North", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini"), -1);
    Library->CoInitialize();
    EXPECT_EQ(Library->Fault(), "");
    Library.reset();
    for (const char* once :
         {"GetProjectFile", "GetStaList", "ReadTagList", "AddFileToLoad", "RemoveFileToLoad", "CoInitialize"})
        ExpectCalls(once, 1);
    ExpectCalls("FreeData", Row().Stations > 0 ? 1 : 0);
    ExpectCalls("FreeTagList", Row().TagsGivenBack);
    for (const char* never : {"CoUninitialize", "GetFilesToLoadList", "SetStaParam"})
        ExpectCalls(never, 0);
}

INSTANTIATE_TEST_SUITE_P(Ways, HostileGate, testing::Range(std::size_t{0}, std::size(HostileWays)),
                         [](const auto& played) { return HostileWays[played.param].Name; });

// Reckoned when it is asked for, and not by the compiler.
double Third(double dividend) {
    volatile double three = 3;
    return dividend / three;
}

TEST(HostileGate, goes_on_calculating_as_before) {
    const HostileFolder folder;
    const auto library = Gate(folder, std::size(HostileWays) - 1);
    ASSERT_NE(library, nullptr);
    const double before = Third(-1);
    const std::function<void()> calls[] = {
        [&] { library->CoInitialize(); },
        [&] { (void)library->GetProjectFile(); },
        [&] { (void)library->GetStations(); },
        [&] { (void)library->ReadTags("N", "p", {}); },
        [&] { library->AddFileToLoad("N", "l", "t"); },
        [&] { (void)library->RemoveFileToLoad("N", "l", "t"); },
    };
    for (const auto& call : calls) {
        call();
        EXPECT_EQ(std::fegetround(), FE_TONEAREST);
        EXPECT_EQ(Third(-1), before);
        volatile double zero = 0;
        EXPECT_TRUE(std::isinf(1 / zero)) << "and nothing traps";
        volatile long double precise = 1;
        EXPECT_NE(precise + 1e-16L, precise) << "nor is anything cut to less";
    }
}

TEST(AddOnExports, are_looked_for_under_three_names) {
    EXPECT_EQ(project::ExportedNames({"name", true, 20}),
              (std::vector<std::string>{"name", "_name@20", "name@20"}));
    EXPECT_EQ(project::ExportedNames({"name", false, -1}), std::vector<std::string>{"name"});
}

#if defined(_WIN32) && !defined(_WIN64)
// A library and the one of the three names under which it exports its functions.
struct Kind {
    const char* Library;
    std::size_t Name;
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.Library;
}

class ExportKind : public testing::TestWithParam<Kind> {};

TEST_P(ExportKind, is_found_and_called) {
    const HostileFolder folder(GetParam().Library);
    const auto names = project::ExportedNames(project::AddOnFunctionNamed("kdaddon_VBGetProjectFile"));
    const auto loaded = HostileFolder::Load(folder.Path() + '\\' + project::AddOnFileName(), 6, [] {});
    ASSERT_NE(loaded.Library, nullptr) << loaded.Error;
    for (std::size_t name = 0; name < names.size(); ++name)
        EXPECT_EQ(loaded.Library->Symbol(names[name].c_str()) != nullptr, name == GetParam().Name)
            << names[name];
    const auto library = Gate(folder, 6);
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->GetProjectFile().substr(0, 6), "/jobs/");
    EXPECT_EQ(library->GetStations().value().size(), 3U);
    EXPECT_EQ(library->ReadTags("N", "p", {}).size(), 3U);
    library->AddFileToLoad("N", "l", "t");
    EXPECT_EQ(library->RemoveFileToLoad("N", "l", "t"), -1);
    library->CoInitialize();
    EXPECT_EQ(library->Fault(), "");
}

INSTANTIATE_TEST_SUITE_P(Names, ExportKind,
                         testing::Values(Kind{"hostile_library", 0}, Kind{"hostile_library_underscored", 1},
                                         Kind{"hostile_library_sized", 2}),
                         [](const auto& played) { return played.param.Library; });

TEST(OtherConvention, is_told_by_the_first_call_and_called_no_more) {
    const HostileFolder folder("hostile_library_cdecl");
    const auto library = Gate(folder, 6);
    ASSERT_NE(library, nullptr);
    library->CoInitialize();
    EXPECT_EQ(library->Fault(), "") << "a call without arguments is the same in both";
    EXPECT_EQ(library->GetProjectFile(), "");
    const std::string fault = library->Fault();
    EXPECT_EQ(fault, folder.Path() +
                         "\\kdaddon_VBwrapper.dll: The function kdaddon_VBGetProjectFile took 0 of "
                         "the 8 bytes that it was handed: it is made for another calling "
                         "convention (cdecl instead of stdcall).");
    EXPECT_FALSE(library->GetStations().has_value());
    EXPECT_TRUE(library->ReadTags("N", "p", {}).empty());
    library->AddFileToLoad("N", "l", "t");
    EXPECT_EQ(library->RemoveFileToLoad("N", "l", "t"), 0);
    EXPECT_EQ(library->Fault(), fault);
}
#endif

} // namespace

} // namespace gfc::test
