#include "platform/Files.h"
#include "project/AddOnGate.h"
#include "project/AddOnInterface.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace gfc::project {

namespace {

// A library of C functions that answer what the test has laid down.
struct Answers {
    std::vector<char> ProjectFile;
    std::int32_t ProjectResult = 1;
    std::int16_t StationResult = 1;
    std::int32_t StationCount = 0;
    std::int32_t TagCount = 0;
    bool NoArray = false;
    std::vector<char> Stations; // one byte first, so that the array starts at an odd address
    std::vector<char> Tags;
    std::string WrittenBack;

    std::vector<std::string> Calls;
    std::vector<TagRequest> Requests;
    void* Freed = nullptr;
};

Answers* answers = nullptr;

void Call(const std::string& call) {
    answers->Calls.push_back(call);
}

void* ArrayIn(std::vector<char>& bytes) {
    return answers->NoArray || bytes.empty() ? nullptr : bytes.data() + 1;
}

extern "C" {

static std::int32_t GFC_ADDON_CALL FakeGetProjectFile(char* buffer, std::int32_t size) {
    Call("GetProjectFile " + std::to_string(size));
    std::copy(answers->ProjectFile.begin(), answers->ProjectFile.end(), buffer);
    return answers->ProjectResult;
}

static std::int16_t GFC_ADDON_CALL FakeGetStaList(std::int32_t* count, void** stations, std::int32_t one,
                                                  char* text) {
    Call("GetStaList " + std::to_string(one) + " '" + text + "'");
    std::strcpy(text, answers->WrittenBack.c_str());
    *count = answers->StationCount;
    *stations = ArrayIn(answers->Stations);
    return answers->StationResult;
}

static void GFC_ADDON_CALL FakeFreeData(void* stations) {
    Call("FreeData");
    answers->Freed = stations;
}

static std::int32_t GFC_ADDON_CALL FakeReadTagList(TagRequest* request, void** tags) {
    Call("ReadTagList");
    answers->Requests.push_back(*request);
    std::memset(request, '#', sizeof *request);
    *tags = ArrayIn(answers->Tags);
    return answers->TagCount;
}

static void GFC_ADDON_CALL FakeFreeTagList() {
    Call("FreeTagList");
}

static std::int32_t GFC_ADDON_CALL FakeAddFileToLoad(char* station, char* local, char* target,
                                                     std::int32_t flag, char* text) {
    Call(std::string("Add ") + station + "|" + local + "|" + target + "|" + std::to_string(flag) + "|" +
         text);
    for (char* place : {station, local, target, text})
        std::strcpy(place, answers->WrittenBack.c_str());
    return 1;
}

static std::int16_t GFC_ADDON_CALL FakeRemoveFileToLoad(char* station, char* local, char* target,
                                                        char* text) {
    Call(std::string("Remove ") + station + "|" + local + "|" + target + "|" + text);
    for (char* place : {station, local, target, text})
        std::strcpy(place, answers->WrittenBack.c_str());
    return -7;
}

static void GFC_ADDON_CALL FakeCoInitialize() {
    Call("CoInitialize");
}

static void GFC_ADDON_CALL NeverCalled() {
    ADD_FAILURE() << "this function is never called";
}

} // extern "C"

template <class Function>
void* Address(Function* function) {
    return reinterpret_cast<void*>(function);
}

const std::map<std::string, void*>& FakeFunctions() {
    static const std::map<std::string, void*> functions = {
        {"kdaddon_VBGetProjectFile", Address(&FakeGetProjectFile)},
        {"kdaddon_VBGetStaList", Address(&FakeGetStaList)},
        {"kdaddon_VBFreeData", Address(&FakeFreeData)},
        {"kdaddon_VBReadTagList", Address(&FakeReadTagList)},
        {"kdaddon_VBFreeTagList", Address(&FakeFreeTagList)},
        {"kdaddon_VBAddFileToLoad", Address(&FakeAddFileToLoad)},
        {"kdaddon_VBRemoveFileToLoad", Address(&FakeRemoveFileToLoad)},
        {"kdaddon_VBCoInitialize", Address(&FakeCoInitialize)},
        {"kdaddon_VBCoUninitialize", Address(&NeverCalled)},
        {"kdaddon_VBGetFilesToLoadList", Address(&NeverCalled)},
        {"kdaddon_VBSetStaParam", Address(&NeverCalled)},
    };
    return functions;
}

class FakeDynamicLibrary : public platform::DynamicLibrary {
public:
    explicit FakeDynamicLibrary(std::string missing) : missing_(std::move(missing)) {}
    void* Symbol(const char* name) const override {
        const auto found = FakeFunctions().find(name);
        return name == missing_ || found == FakeFunctions().end() ? nullptr : found->second;
    }

private:
    std::string missing_;
};

class AddOnGate : public testing::Test {
protected:
    AddOnGate() {
        answers = &Given;
        Load();
    }
    ~AddOnGate() override { answers = nullptr; }

    void Load(const std::string& missing = {}) {
        Library = LoadAddOnLibrary(
            [this, missing](const std::string& path) {
                LoadedPath = path;
                return platform::LibraryLoad{std::make_unique<FakeDynamicLibrary>(missing), {}};
            },
            "/opt/gfc", Error);
    }

    // Appends a record to the odd-addressed array.
    template <class Record>
    static void Append(std::vector<char>& array, const Record& record) {
        if (array.empty())
            array.push_back('\0');
        const char* bytes = reinterpret_cast<const char*>(&record);
        array.insert(array.end(), bytes, bytes + sizeof record);
    }

    void GiveStation(const StationRecord& record) {
        Append(Given.Stations, record);
        ++Given.StationCount;
    }
    void GiveTag(const TagRecord& record) {
        Append(Given.Tags, record);
        ++Given.TagCount;
    }

    Answers Given;
    std::string LoadedPath;
    std::string Error;
    std::unique_ptr<AddOnLibrary> Library;
};

template <std::size_t Width>
void Put(const std::string& text, char (&field)[Width]) {
    std::memcpy(field, text.data(), std::min(text.size(), Width));
}

TEST_F(AddOnGate, is_loaded_from_the_program_folder_by_full_path) {
    ASSERT_NE(Library, nullptr);
    EXPECT_EQ(LoadedPath, std::string("/opt/gfc") + platform::Separator + AddOnFileName());
    EXPECT_EQ(Error, "");
    EXPECT_TRUE(Given.Calls.empty());
}

TEST_F(AddOnGate, hands_on_the_reason_of_a_library_that_does_not_load) {
    const auto none = LoadAddOnLibrary(
        [](const std::string& path) {
            return platform::LibraryLoad{nullptr, path + ": no such file"};
        },
        "/opt", Error);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(Error, std::string("/opt") + platform::Separator + AddOnFileName() + ": no such file");
}

TEST_F(AddOnGate, is_loaded_from_nowhere_where_the_program_folder_is_not_known) {
    const auto none = LoadAddOnLibrary(
        [](const std::string& path) {
            ADD_FAILURE() << path << " was asked for";
            return platform::LibraryLoad{};
        },
        {}, Error);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(Error, "The folder of the program is not known");
}

TEST_F(AddOnGate, requires_no_function_that_is_never_called) {
    for (const auto& function : AddOnFunctions) {
        if (function.Called)
            continue;
        Load(std::string(function.Name));
        EXPECT_NE(Library, nullptr) << function.Name;
        EXPECT_EQ(Error, "");
    }
}

TEST_F(AddOnGate, requires_every_function_that_is_called) {
    for (const auto& function : AddOnFunctions) {
        if (!function.Called)
            continue;
        Load(std::string(function.Name));
        EXPECT_EQ(Library, nullptr) << function.Name;
        EXPECT_NE(Error.find(AddOnFileName()), std::string::npos) << Error;
        EXPECT_NE(Error.find(function.Name), std::string::npos) << Error;
        EXPECT_EQ(Error, std::string("/opt/gfc") + platform::Separator + AddOnFileName() + ": the function " +
                             std::string(function.Name) + " is missing");
    }
}

TEST_F(AddOnGate, gives_the_project_file_up_to_its_first_nul) {
    const std::string path("C:\\jobs\\Pla\xF1o.KPJ\0rest", 22);
    Given.ProjectFile.assign(path.begin(), path.end());
    EXPECT_EQ(Library->GetProjectFile(), "C:\\jobs\\Pla\xC3\xB1o.KPJ");
    EXPECT_EQ(Given.Calls, std::vector<std::string>{"GetProjectFile 255"});
}

TEST_F(AddOnGate, gives_no_project_file_when_the_buffer_stays_blank) {
    Given.ProjectResult = 0;
    EXPECT_EQ(Library->GetProjectFile(), "");
}

TEST_F(AddOnGate, goes_by_the_buffer_and_not_by_the_result) {
    Given.ProjectResult = 0;
    Given.ProjectFile = {'a', '.', 'k', 'p', 'j'};
    EXPECT_EQ(Library->GetProjectFile(), "a.kpj");
}

TEST_F(AddOnGate, takes_a_project_file_that_fills_its_buffer) {
    Given.ProjectFile.assign(255, 'p');
    EXPECT_EQ(Library->GetProjectFile(), std::string(255, 'p'));
}

TEST_F(AddOnGate, copies_the_stations_and_frees_them_after) {
    StationRecord north{};
    Put("North", north.Name);
    Put("Orm 5", north.Type);
    Put("10.0.0.1", north.Address);
    north.SerialNumber = 12345;
    StationRecord bare{};
    Put("Estaci\xF3n", bare.Name);
    bare.SerialNumber = -1;
    GiveStation(north);
    GiveStation(bare);

    const auto stations = Library->GetStations();
    ASSERT_TRUE(stations.has_value());
    ASSERT_EQ(stations->size(), 2U);
    EXPECT_EQ(stations->at(0).Name, "North");
    EXPECT_EQ(stations->at(0).Type, "Orm 5");
    EXPECT_EQ(stations->at(0).Address, "10.0.0.1");
    EXPECT_EQ(stations->at(0).SerialNumber, 12345);
    EXPECT_EQ(stations->at(1).Name, "Estaci\xC3\xB3n");
    EXPECT_EQ(stations->at(1).Type, "");
    EXPECT_EQ(stations->at(1).Address, "");
    EXPECT_EQ(stations->at(1).SerialNumber, -1);
    EXPECT_EQ(Given.Calls, (std::vector<std::string>{"GetStaList 1 ''", "FreeData"}));
    EXPECT_EQ(Given.Freed, Given.Stations.data() + 1);
}

TEST_F(AddOnGate, cuts_unterminated_fields_at_their_width) {
    StationRecord full;
    std::memset(&full, 'n', sizeof full);
    GiveStation(full);
    const auto stations = Library->GetStations();
    ASSERT_TRUE(stations.has_value());
    EXPECT_EQ(stations->front().Name, std::string(80, 'n'));
    EXPECT_EQ(stations->front().Type, std::string(80, 'n'));
    EXPECT_EQ(stations->front().Address, std::string(20, 'n'));
}

TEST_F(AddOnGate, tells_a_failed_station_call_from_an_empty_list) {
    Given.StationResult = 0;
    EXPECT_FALSE(Library->GetStations().has_value());
    Given.StationResult = 1;
    const auto none = Library->GetStations();
    ASSERT_TRUE(none.has_value());
    EXPECT_TRUE(none->empty());
}

TEST_F(AddOnGate, takes_a_negative_count_or_no_array_as_no_stations) {
    Given.StationCount = -5;
    EXPECT_TRUE(Library->GetStations().value().empty());
    Given.StationCount = 5;
    Given.NoArray = true;
    EXPECT_TRUE(Library->GetStations().value().empty());
    EXPECT_EQ(Given.Freed, nullptr);
}

TEST_F(AddOnGate, copies_the_tags_in_order_telling_each_name) {
    TagRecord first{};
    Put("Caudal_\xD1", first.TagName);
    first.RegAddr = 1001;
    Put("FX", first.RegType);
    Put("VF1", first.ModuleName);
    Put("Virtual FI", first.ModuleType);
    TagRecord full;
    std::memset(&full, 't', sizeof full);
    GiveTag(first);
    GiveTag(full);

    std::vector<std::string> told;
    const auto tags = Library->ReadTags("North", "/jobs/plant.KPJ",
                                        [&](std::string_view name) { told.emplace_back(name); });
    ASSERT_EQ(tags.size(), 2U);
    EXPECT_EQ(tags[0].TagName, "Caudal_\xC3\x91");
    EXPECT_EQ(tags[0].RegAddr, 1001);
    EXPECT_EQ(tags[0].RegType, "FX");
    EXPECT_EQ(tags[0].ModuleName, "VF1");
    EXPECT_EQ(tags[0].ModuleType, "Virtual FI");
    EXPECT_EQ(tags[1].TagName, std::string(40, 't'));
    EXPECT_EQ(tags[1].RegType, std::string(10, 't'));
    EXPECT_EQ(tags[1].ModuleName, std::string(40, 't'));
    EXPECT_EQ(tags[1].ModuleType, std::string(80, 't'));
    EXPECT_EQ(told, (std::vector<std::string>{"Caudal_\xC3\x91", std::string(40, 't')}));
    EXPECT_EQ(Given.Calls, (std::vector<std::string>{"ReadTagList", "FreeTagList"}));
}

TEST_F(AddOnGate, tells_neighbours_of_different_modules_apart) {
    const auto tag = [](const char* type, const char* module, const char* moduleType) {
        TagRecord record{};
        Put("T", record.TagName);
        Put(type, record.RegType);
        Put(module, record.ModuleName);
        Put(moduleType, record.ModuleType);
        return record;
    };
    // Each differs from the one before in one text, the second not at all.
    for (const auto& record : {tag("FX", "M\xD1", "Virtual"), tag("FX", "M\xD1", "Virtual"),
                               tag("FY", "M\xD1", "Virtual"), tag("FY", "N", "Virtual"), tag("FY", "N", "")})
        GiveTag(record);
    std::vector<std::string> texts;
    for (const Tag& each : Library->ReadTags("North", "/jobs/plant.KPJ", {}))
        texts.push_back(std::string(each.RegType) + "|" + std::string(each.ModuleName) + "|" +
                        std::string(each.ModuleType));
    EXPECT_EQ(texts, (std::vector<std::string>{"FX|M\xC3\x91|Virtual", "FX|M\xC3\x91|Virtual",
                                               "FY|M\xC3\x91|Virtual", "FY|N|Virtual", "FY|N|"}));
}

TEST_F(AddOnGate, blanks_the_request_before_each_call) {
    (void)Library->ReadTags("A long station name", "/jobs/plant.KPJ", {});
    (void)Library->ReadTags("\xC3\x91", "/p.KPJ", {});
    ASSERT_EQ(Given.Requests.size(), 2U);
    TagRequest expected{};
    Put("\xD1", expected.Station);
    Put("/p.KPJ", expected.ProjectFile);
    EXPECT_EQ(std::memcmp(&Given.Requests[1], &expected, sizeof expected), 0);
}

TEST_F(AddOnGate, cuts_a_station_name_at_the_width_of_the_request) {
    (void)Library->ReadTags(std::string(300, 's'), std::string(300, 'p'), {});
    TagRequest expected{};
    std::memset(expected.Station, 's', sizeof expected.Station);
    std::memset(expected.ProjectFile, 'p', sizeof expected.ProjectFile);
    ASSERT_EQ(Given.Requests.size(), 1U);
    EXPECT_EQ(std::memcmp(&Given.Requests[0], &expected, sizeof expected), 0);
}

TEST_F(AddOnGate, copies_the_tags_where_nobody_is_to_be_told) {
    TagRecord record{};
    Put("FT-1", record.TagName);
    GiveTag(record);
    const auto tags = Library->ReadTags("North", "/p.KPJ", {});
    ASSERT_EQ(tags.size(), 1U);
    EXPECT_EQ(tags.front().TagName, "FT-1");
}

TEST_F(AddOnGate, takes_an_array_without_a_count_as_no_stations) {
    GiveStation({});
    for (const int count : {0, -1}) {
        Given.StationCount = count;
        EXPECT_TRUE(Library->GetStations().value().empty());
    }
}

TEST_F(AddOnGate, frees_tags_only_when_there_are_some) {
    EXPECT_TRUE(Library->ReadTags("North", "/p.KPJ", {}).empty());
    Given.TagCount = -3;
    EXPECT_TRUE(Library->ReadTags("North", "/p.KPJ", {}).empty());
    EXPECT_EQ(Given.Calls, (std::vector<std::string>{"ReadTagList", "ReadTagList"}));
}

TEST_F(AddOnGate, takes_a_count_without_an_array_as_no_tags) {
    Given.TagCount = 3;
    Given.NoArray = true;
    EXPECT_TRUE(Library->ReadTags("North", "/p.KPJ", {}).empty());
    EXPECT_EQ(Given.Calls, (std::vector<std::string>{"ReadTagList", "FreeTagList"}));
}

TEST_F(AddOnGate, hands_over_files_to_load_in_the_code_page) {
    Library->AddFileToLoad("Estaci\xC3\xB3n", "/jobs/a.ini", "/etc/stacfg/kdormaga.ini");
    EXPECT_EQ(Library->RemoveFileToLoad("Sur", "/jobs/b.ini", "/etc/stacfg/kdormaga.ini"), -7);
    EXPECT_EQ(Given.Calls,
              (std::vector<std::string>{"Add Estaci\xF3n|/jobs/a.ini|/etc/stacfg/kdormaga.ini|-1|",
                                        "Remove Sur|/jobs/b.ini|/etc/stacfg/kdormaga.ini|"}));
}

TEST_F(AddOnGate, gives_the_library_room_to_write_texts_back) {
    Given.WrittenBack.assign(255, 'w');
    Library->AddFileToLoad("N", "l", "t");
    EXPECT_EQ(Library->RemoveFileToLoad("N", "l", "t"), -7);
    EXPECT_EQ(Given.Calls.size(), 2U);
}

TEST_F(AddOnGate, keeps_texts_that_the_code_page_lacks_from_the_library) {
    const std::string outside = "\xE6\xBC\xA2";
    Library->AddFileToLoad(outside, "l", "t");
    Library->AddFileToLoad("N", outside, "t");
    Library->AddFileToLoad("N", "l", outside);
    EXPECT_EQ(Library->RemoveFileToLoad(outside, "l", "t"), 0);
    EXPECT_EQ(Library->RemoveFileToLoad("N", outside, "t"), 0);
    EXPECT_EQ(Library->RemoveFileToLoad("N", "l", outside), 0);
    EXPECT_TRUE(Library->ReadTags(outside, "/p.KPJ", {}).empty());
    EXPECT_TRUE(Library->ReadTags("N", outside, {}).empty());
    EXPECT_TRUE(Given.Calls.empty());
}

TEST_F(AddOnGate, passes_co_initialize_on) {
    Library->CoInitialize();
    EXPECT_EQ(Given.Calls, std::vector<std::string>{"CoInitialize"});
}

} // namespace

} // namespace gfc::project
