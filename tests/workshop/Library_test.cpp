#include "WorkshopFixture.h"
#include "project/AddOnInterface.h"
#include "support/TestFolders.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/store/OpenProject.h"

#include <cstring>
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace gfc::workshop {

using namespace project;

#ifdef _WIN32
constexpr const char* LibraryFile = "kdaddon_VBwrapper.dll";
void* LoadAt(const std::filesystem::path& path) {
    return ::LoadLibraryW(path.c_str());
}
void* SymbolIn(void* library, const char* name) {
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(library), name));
}
void Release(void* library) {
    ::FreeLibrary(static_cast<HMODULE>(library));
}
#else
constexpr const char* LibraryFile = "kdaddon_VBwrapper.so";
void* LoadAt(const std::filesystem::path& path) {
    return ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
}
void* SymbolIn(void* library, const char* name) {
    return ::dlsym(library, name);
}
void Release(void* library) {
    ::dlclose(library);
}
#endif

// Anew for each test, so that none finds what another left in it.
class Library : public WorkshopFixture {
protected:
    Library() : handle_(LoadAt(test::BinFolder() / LibraryFile)) {}
    ~Library() override {
        if (handle_ != nullptr) {
            Release(handle_);
        }
    }
    void SetUp() override { ASSERT_NE(handle_, nullptr) << LibraryFile; }

    template <typename Function>
    [[nodiscard]] Function Get(const char* name) const {
        return reinterpret_cast<Function>(SymbolIn(handle_, name));
    }

    void OpenSmallProject() {
        MakeSmallProject();
        RecordProject(Folder / "small.KPJ");
    }
    [[nodiscard]] TagRequest RequestFor(const std::string& station) const {
        TagRequest request{};
        std::memcpy(request.Station, station.data(), station.size());
        std::memcpy(request.ProjectFile, In("small.KPJ").data(), In("small.KPJ").size());
        return request;
    }

    [[nodiscard]] std::int32_t ReadTags(TagRequest& request, void*& tags) const {
        return Get<AddOnReadTagList>("kdaddon_VBReadTagList")(&request, &tags);
    }
    [[nodiscard]] std::int16_t ReadStations(std::int32_t& count, void*& stations) const {
        std::string text;
        return Get<AddOnGetStaList>("kdaddon_VBGetStaList")(&count, &stations, 1, text.data());
    }
    std::int32_t AddFile(std::string station, std::string local, std::string target) const {
        std::string text;
        return Get<AddOnAddFileToLoad>("kdaddon_VBAddFileToLoad")(station.data(), local.data(), target.data(),
                                                                  -1, text.data());
    }
    std::int16_t RemoveFile(std::string station, std::string local, std::string target) const {
        std::string text;
        return Get<AddOnRemoveFileToLoad>("kdaddon_VBRemoveFileToLoad")(station.data(), local.data(),
                                                                        target.data(), text.data());
    }

private:
    void* handle_;
};

TEST_F(Library, exports_every_function_of_the_interface_and_nothing_of_its_own_code) {
    for (const AddOnFunction& function : AddOnFunctions) {
        EXPECT_NE(Get<void*>(std::string(function.Name).c_str()), nullptr) << function.Name;
    }
    EXPECT_EQ(Get<void*>("_ZN3gfc8workshop12FitsCodePageESt17basic_string_viewIcSt11char_traitsIcEE"),
              nullptr);
    Get<AddOnCoInitialize>("kdaddon_VBCoInitialize")();
    Get<AddOnCoUninitialize>("kdaddon_VBCoUninitialize")();
}

TEST_F(Library, hands_out_the_path_of_the_open_project_padded_with_nul) {
    OpenSmallProject();
    std::string buffer(255, 'x');
    EXPECT_NE(Get<AddOnGetProjectFile>("kdaddon_VBGetProjectFile")(buffer.data(), 255), 0);
    const std::string path = In("small.KPJ");
    EXPECT_EQ(buffer, path + std::string(255 - path.size(), '\0'));
}

TEST_F(Library, hands_out_nothing_but_nul_when_no_project_is_open) {
    std::string buffer(255, 'x');
    EXPECT_EQ(Get<AddOnGetProjectFile>("kdaddon_VBGetProjectFile")(buffer.data(), 255), 0);
    EXPECT_EQ(buffer, std::string(255, '\0'));
    RecordProject(Folder / "gone.KPJ");
    buffer.assign(255, 'x');
    EXPECT_EQ(Get<AddOnGetProjectFile>("kdaddon_VBGetProjectFile")(buffer.data(), 255), 0);
    EXPECT_EQ(buffer, std::string(255, '\0'));
}

TEST_F(Library, fails_when_the_path_does_not_fit_the_buffer) {
    OpenSmallProject();
    const std::string path = In("small.KPJ");
    const auto getProjectFile = Get<AddOnGetProjectFile>("kdaddon_VBGetProjectFile");
    std::string buffer(path.size(), 'x'); // no room for the closing NUL
    EXPECT_EQ(getProjectFile(buffer.data(), static_cast<std::int32_t>(buffer.size())), 0);
    EXPECT_EQ(buffer, std::string(path.size(), '\0'));
    EXPECT_EQ(getProjectFile(buffer.data(), 0), 0);
    EXPECT_EQ(getProjectFile(buffer.data(), -1), 0);
    EXPECT_EQ(getProjectFile(nullptr, 255), 0);
}

TEST_F(Library, path_comes_in_the_code_page) {
    std::filesystem::create_directory(Folder / u8"Añelo");
    static_cast<void>(Project::Create(Folder / u8"Añelo" / "small.KPJ"));
    RecordProject(Folder / u8"Añelo" / "small.KPJ");
    std::string buffer(255, 'x');
    EXPECT_NE(Get<AddOnGetProjectFile>("kdaddon_VBGetProjectFile")(buffer.data(), 255), 0);
    const std::string separator(1, static_cast<char>(std::filesystem::path::preferred_separator));
    EXPECT_EQ(buffer.c_str(), Folder.string() + separator + "A\xF1" + "elo" + separator + "small.KPJ");
}

TEST_F(Library, hands_out_stations_byte_for_byte) {
    OpenSmallProject();
    std::int32_t count = -1;
    void* stations = nullptr;
    ASSERT_NE(ReadStations(count, stations), 0);
    ASSERT_EQ(count, 2);
    std::string expected(424, '\0');
    expected.replace(0, 5, "North").replace(80, 3, "Orm").replace(160, 8, "10.0.0.5");
    expected.replace(208, 4, std::string("\x67\x12\0\0", 4)); // 4711
    expected.replace(212, 5, "South");
    EXPECT_EQ(std::string(static_cast<const char*>(stations), 424), expected);
    Get<AddOnFreeData>("kdaddon_VBFreeData")(stations);
}

TEST_F(Library, station_lists_live_until_each_is_given_back) {
    OpenSmallProject();
    std::int32_t count = 0;
    void* first = nullptr;
    void* second = nullptr;
    ASSERT_NE(ReadStations(count, first), 0);
    ASSERT_NE(ReadStations(count, second), 0);
    EXPECT_NE(first, second);
    const auto freeData = Get<AddOnFreeData>("kdaddon_VBFreeData");
    freeData(first);
    EXPECT_STREQ(static_cast<const char*>(second), "North");
    freeData(second);
    freeData(second); // once more, or what was never lent: nothing happens
    freeData(nullptr);
    freeData(&count);
}

TEST_F(Library, station_list_of_an_empty_project_succeeds_with_none) {
    static_cast<void>(Project::Create(Folder / "empty.KPJ"));
    RecordProject(Folder / "empty.KPJ");
    std::int32_t count = 9;
    void* stations = this;
    EXPECT_NE(ReadStations(count, stations), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(stations, nullptr);
}

TEST_F(Library, station_list_fails_without_a_readable_project) {
    std::int32_t count = 9;
    void* stations = this;
    EXPECT_EQ(ReadStations(count, stations), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(stations, nullptr);
    WriteBytes(Folder / "bad.KPJ", std::string(3000, 'x'));
    RecordProject(Folder / "bad.KPJ");
    EXPECT_EQ(ReadStations(count, stations), 0);
    EXPECT_EQ(Get<AddOnGetStaList>("kdaddon_VBGetStaList")(nullptr, nullptr, 1, nullptr), 0);
}

TEST_F(Library, hands_out_tags_byte_for_byte_in_delivery_order) {
    OpenSmallProject();
    TagRequest request = RequestFor("North");
    void* tags = nullptr;
    ASSERT_EQ(ReadTags(request, tags), 3);
    std::string expected(372 * 3, '\0');
    expected.replace(0, 7, "PIT-101").replace(40, 2, "\xE9\x03").replace(44, 2, "FX"); // 1001
    expected.replace(170, 7, "VFX_RUN").replace(210, 14, "Virtual Module");
    expected.replace(372, 6, "XV-304").replace(412, 1, "\x07").replace(416, 1, "X");
    expected.replace(542, 12, "DI-16 Slot 3").replace(582, 19, "DI-16 Digital Input");
    expected.replace(744, 9, "TIT_1201A").replace(784, 2, "\xE8\x03").replace(788, 2, "FX"); // 1000
    expected.replace(914, 7, "VFX_RUN").replace(954, 14, "Virtual Module");
    EXPECT_EQ(std::string(static_cast<const char*>(tags), expected.size()), expected);
    Get<AddOnFreeTagList>("kdaddon_VBFreeTagList")();
    Get<AddOnFreeTagList>("kdaddon_VBFreeTagList")();
}

TEST_F(Library, tag_texts_fill_and_are_cut_at_their_field_in_the_code_page) {
    Project project = MakeSmallProject();
    TagAppender appender(project, FindStation(project, "South")->Id);
    std::string forty;
    for (int i = 0; i < 40; ++i) {
        forty += "Ñ";
    }
    appender.Append({forty, "LY", 2147483647, "M", "Virtual", ""});
    appender.Append({forty + "xyz", "LY", 1, "Módulo", std::string(90, 'v'), ""});
    TagRequest request = RequestFor("South");
    void* tags = nullptr;
    ASSERT_EQ(ReadTags(request, tags), 2);
    const char* bytes = static_cast<const char*>(tags);
    EXPECT_EQ(std::string(bytes, 44), std::string(40, '\xD1') + "\xFF\xFF\xFF\x7F");
    EXPECT_EQ(std::string(bytes + 372, 44), std::string(40, '\xD1') + std::string("\1\0\0\0", 4));
    EXPECT_EQ(std::string(bytes + 542, 7), std::string("M\xF3"
                                                       "dulo\0",
                                                       7));
    EXPECT_EQ(std::string(bytes + 582, 82),
              std::string(80, 'v') + std::string(2, '\0')); // Reserved11 stays empty
}

TEST_F(Library, a_new_request_takes_the_place_of_the_old_list) {
    OpenSmallProject();
    TagRequest request = RequestFor("North");
    void* tags = nullptr;
    ASSERT_EQ(ReadTags(request, tags), 3);
    request = RequestFor("South");
    EXPECT_EQ(ReadTags(request, tags), 0);
    EXPECT_EQ(tags, nullptr);
}

TEST_F(Library, tags_of_a_request_without_path_come_from_the_open_project) {
    OpenSmallProject();
    TagRequest request = RequestFor("North");
    std::memset(request.ProjectFile, 0, sizeof request.ProjectFile);
    void* tags = nullptr;
    EXPECT_EQ(ReadTags(request, tags), 3);
}

TEST_F(Library, tags_of_what_is_not_there_are_none) {
    OpenSmallProject();
    void* tags = this;
    TagRequest unknown = RequestFor("West");
    EXPECT_EQ(ReadTags(unknown, tags), 0);
    EXPECT_EQ(tags, nullptr);
    TagRequest unterminated;
    std::memset(&unterminated, 'a', sizeof unterminated);
    EXPECT_EQ(ReadTags(unterminated, tags), -1);
    const auto readTagList = Get<AddOnReadTagList>("kdaddon_VBReadTagList");
    EXPECT_EQ(readTagList(nullptr, &tags), -1);
    EXPECT_EQ(readTagList(&unknown, nullptr), -1);
}

TEST_F(Library, request_is_left_as_it_was) {
    OpenSmallProject();
    TagRequest request = RequestFor("North");
    const TagRequest before = request;
    void* tags = nullptr;
    ASSERT_EQ(ReadTags(request, tags), 3);
    EXPECT_EQ(std::memcmp(&before, &request, sizeof request), 0);
}

TEST_F(Library, enters_a_file_to_load_once_however_often_it_is_told) {
    OpenSmallProject();
    EXPECT_NE(AddFile("North", "/jobs/A\xF1o.ini", "/etc/stacfg/kdormaga.ini"), 0);
    EXPECT_NE(AddFile("North", "/jobs/b.ini", "/etc/stacfg/kdormaga.ini"), 0);
    EXPECT_NE(AddFile("South", "/jobs/A\xF1o.ini", "/etc/stacfg/kdormaga.ini"), 0);
    Project project = Project::Open(Folder / "small.KPJ", Access::Read);
    const auto files = ListFilesToLoad(project);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].Local, "/jobs/b.ini");
    EXPECT_EQ(files[1].Local, "/jobs/Año.ini");
    EXPECT_EQ(files[1].Target, "/etc/stacfg/kdormaga.ini");
    EXPECT_EQ(files[1].Flag, -1);
}

TEST_F(Library, taking_out_a_file_that_is_not_listed_harms_nothing) {
    OpenSmallProject();
    AddFile("North", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini");
    EXPECT_EQ(RemoveFile("South", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini"), 0);
    EXPECT_EQ(RemoveFile("West", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini"), 0);
    EXPECT_EQ(RemoveFile("North", "/elsewhere/a.ini", "/etc/stacfg/kdormaga.ini"), 1);
    EXPECT_EQ(RemoveFile("North", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini"), 0);
}

TEST_F(Library, files_to_load_fail_without_project_station_or_path) {
    EXPECT_EQ(AddFile("North", "/jobs/a.ini", "/etc/x"), 0);
    EXPECT_EQ(RemoveFile("North", "/jobs/a.ini", "/etc/x"), 0);
    OpenSmallProject();
    EXPECT_EQ(AddFile("West", "/jobs/a.ini", "/etc/x"), 0);
    EXPECT_EQ(AddFile("North", "", "/etc/x"), 0);
    EXPECT_EQ(AddFile("North", "/jobs/a.ini", ""), 0);
    EXPECT_EQ(Get<AddOnAddFileToLoad>("kdaddon_VBAddFileToLoad")(nullptr, nullptr, nullptr, -1, nullptr), 0);
    EXPECT_EQ(Get<AddOnRemoveFileToLoad>("kdaddon_VBRemoveFileToLoad")(nullptr, nullptr, nullptr, nullptr),
              0);
}

} // namespace gfc::workshop
