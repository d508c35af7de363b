#include "SampleStation.h"
#include "config/FileIni.h"
#include "platform/ProfileKeys.h"
#include "support/MemoryFiles.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace gfc::config {
namespace {

const std::string File = "/jobs/KDOrmAGA_plant_North.ini";
const char Own = platform::Separator;

struct FileIniTest : testing::Test {
    test::MemoryFiles Files;
    FileIni Ini{Files};
    std::string& Bytes = Files.Content[File];
};

TEST(ConfigFilePath, joins_folder_project_and_station) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    EXPECT_EQ(paths.ProjectFolder, std::string(1, Own) + "jobs");
    EXPECT_EQ(paths.ConfigFilePrefix, paths.ProjectFolder + Own + "KDOrmAGA_");
    EXPECT_EQ(ConfigFilePath(paths, "plant", "North"),
              paths.ProjectFolder + Own + "KDOrmAGA_plant_North.ini");
}

TEST(ConfigFilePath, takes_a_project_path_with_either_separator) {
    EXPECT_EQ(PathsOf("C:\\Jobs\\Plant.kpj").ProjectFolder, std::string("C:") + Own + "Jobs");
    EXPECT_EQ(PathsOf("C:/Jobs/Plant.kpj").ProjectFolder, std::string("C:") + Own + "Jobs");
    EXPECT_EQ(PathsOf("/plant.KPJ").ConfigFilePrefix, std::string(1, Own) + "KDOrmAGA_");
}

TEST(ConfigFilePath, has_no_place_beside_a_project_without_a_folder) {
    EXPECT_EQ(PathsOf("plant.KPJ").ConfigFilePrefix, "");
    EXPECT_EQ(ConfigFilePath(PathsOf("plant.KPJ"), "plant", "North"), "");
}

TEST(ConfigFilePath, is_the_projects_own_without_a_station) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    EXPECT_EQ(ConfigFilePath(paths, "plant", ""), paths.ConfigFilePrefix + "plant.ini");
}

TEST(ConfigFilePath, cuts_the_station_at_its_first_nul) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    EXPECT_EQ(ConfigFilePath(paths, "plant", std::string_view("North\0\0rest", 11)),
              paths.ConfigFilePrefix + "plant_North.ini");
}

TEST(ConfigFilePath, refuses_just_what_the_machine_refuses_in_a_name) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    for (const char sign : std::string_view("<>:\"|?*")) {
        const std::string path = ConfigFilePath(paths, "plant", std::string("North").append(1, sign));
        EXPECT_EQ(path.empty(), Own == '\\') << sign;
    }
    for (const char sign : std::string_view("~!#$%&'()+,-.;=@[]^_`{} "))
        EXPECT_NE(ConfigFilePath(paths, "plant", std::string("a").append(1, sign).append("b")), "") << sign;
}

TEST(ConfigFilePath, never_leads_out_of_the_folder) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    for (const char* name :
         {"../North", "..\\North", "a/b", "a\\b", "/etc/passwd", "North\n", "North\x01", "a\x7F"})
        EXPECT_EQ(ConfigFilePath(paths, "plant", name), "") << name;
    EXPECT_EQ(ConfigFilePath(paths, "../other", "North"), "");
    EXPECT_EQ(ConfigFilePath(paths, "plant", ".."), paths.ConfigFilePrefix + "plant_...ini")
        << "a name like any";
    EXPECT_EQ(ConfigFilePath(paths, "plant", "Nörd 1.2"), paths.ConfigFilePrefix + "plant_Nörd 1.2.ini");
}

TEST_F(FileIniTest, closes_lines_for_people_with_an_empty_one) {
    Bytes = "[A]\r\nK=1\r\n[B]\r\nL=2\r\n";
    const std::vector<std::string> lines = {"Error N\xC2\xBA 1 = [a]", "no entry at all"};
    EXPECT_TRUE(Ini.WriteLines("A", lines, File));
    EXPECT_EQ(Bytes, "[A]\r\nError N\xBA 1 = [a]\r\nno entry at all\r\n\r\n[B]\r\nL=2\r\n");
    const std::string once = Bytes;
    EXPECT_TRUE(Ini.WriteLines("a", lines, File));
    EXPECT_EQ(Bytes, once) << "it does not grow";
    EXPECT_TRUE(Ini.WriteLines("A", {}, File));
    EXPECT_EQ(Bytes, "[A]\r\n[B]\r\nL=2\r\n");
}

TEST_F(FileIniTest, ends_a_line_for_people_where_it_would_break_the_file) {
    EXPECT_TRUE(Ini.WriteLines("A", {"one\r\n[B]", std::string("two\0three", 9)}, File));
    EXPECT_EQ(Bytes, "[A]\r\none\r\ntwo\r\n\r\n");
    EXPECT_FALSE(Ini.WriteLines("A", {"one"}, ""));
}

TEST_F(FileIniTest, finds_no_configuration_for_a_name_that_no_file_bears) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    Files.Content["/jobs/KDOrmAGA_plant_../North.ini"] = "";
    EXPECT_FALSE(ConfigFileExists(Ini, paths, "plant", "../North"));
}

TEST_F(FileIniTest, takes_a_station_for_configured_by_its_file_alone) {
    const ProjectPaths paths = PathsOf("/jobs/plant.KPJ");
    const std::string south = ConfigFilePath(paths, "plant", "South");
    EXPECT_FALSE(ConfigFileExists(Ini, paths, "plant", "South"));
    Files.Content[south] = "";
    EXPECT_TRUE(ConfigFileExists(Ini, paths, "plant", "South"));
}

TEST_F(FileIniTest, does_nothing_at_the_empty_path) {
    EXPECT_EQ(Ini.ReadKey("A", "K", ""), "");
    EXPECT_FALSE(Ini.WriteKey("A", "K", "1", ""));
    EXPECT_FALSE(Ini.WriteSection("A", {{"K", "1"}}, ""));
    EXPECT_FALSE(Ini.FileExists(""));
    EXPECT_FALSE(Ini.DeleteConfigFile(""));
    EXPECT_FALSE(Ini.CopyConfigFile(File, ""));
    EXPECT_FALSE(Ini.CopyConfigFile("", "/jobs/x.ini"));
    const FileBatch batch(Ini, "");
    EXPECT_FALSE(Ini.WriteKey("A", "K", "1", ""));
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(FileIniTest, reads_empty_for_whatever_is_missing) {
    Bytes = Lines({"[A]", "K=1"});
    EXPECT_EQ(Ini.ReadKey("A", "L", File), "");
    EXPECT_EQ(Ini.ReadKey("B", "K", File), "");
    EXPECT_EQ(Ini.ReadKey("A", "K", "/jobs/none.ini"), "");
    EXPECT_EQ(Ini.ReadKey("a", "k", File), "1");
}

TEST_F(FileIniTest, finds_names_that_are_not_plain) {
    EXPECT_TRUE(Ini.WriteKey("Estación", "Presión", "1", File));
    EXPECT_EQ(Bytes, "[Estaci\xF3n]\r\nPresi\xF3n=1\r\n");
    EXPECT_EQ(Ini.ReadKey("ESTACIÓN", "PRESIÓN", File), "1");
    const FileBatch batch(Ini, File);
    EXPECT_EQ(Ini.ReadKey("Estación", "presión", File), "1");
    EXPECT_EQ(Ini.ReadKey("Estacion", "Presion", File), "");
}

TEST_F(FileIniTest, cuts_a_long_value) {
    Bytes = "[A]\r\nK=" + std::string(254, 'x') + "\r\nL=" + std::string(255, 'y') + "\r\n";
    EXPECT_EQ(Ini.ReadKey("A", "K", File), std::string(254, 'x'));
    EXPECT_EQ(Ini.ReadKey("A", "L", File), std::string(254, 'y'));
}

TEST_F(FileIniTest, counts_the_limit_in_characters_of_the_file) {
    Bytes = "[A]\r\nK=" + std::string(300, '\xE9') + "\r\n";
    EXPECT_EQ(Ini.ReadKey("A", "K", File).size(), 254U * 2) << "two bytes each in memory";
}

TEST_F(FileIniTest, keeps_the_code_page_on_disk_only) {
    EXPECT_TRUE(Ini.WriteKey("A", "K", "ºC Œ", File));
    EXPECT_EQ(Bytes, "[A]\r\nK=\xBA"
                     "C \x8C\r\n");
    EXPECT_EQ(Ini.ReadKey("A", "K", File), "ºC Œ");
}

TEST_F(FileIniTest, writes_a_question_mark_for_what_the_code_page_lacks) {
    EXPECT_TRUE(Ini.WriteKey("A", "K", "a日b", File));
    EXPECT_TRUE(Ini.WriteSection("B", {{"L", "日é"}}, File));
    EXPECT_EQ(Bytes, "[A]\r\nK=a?b\r\n[B]\r\nL=?\xE9\r\n");
}

TEST_F(FileIniTest, lets_no_value_break_a_line) {
    Ini.WriteKey("A", "K", "1\r\n[B]\r\nEvil=1", File);
    Ini.WriteKey("A", "L", std::string("2\0rest", 6), File);
    Ini.WriteSection("C", {{"K", std::string("3\0Evil=1", 8)}, {"L", "4\nEvil=1"}}, File);
    EXPECT_EQ(Bytes, Lines({"[A]", "K=1", "L=2", "[C]", "K=3", "L=4"}));
}

TEST_F(FileIniTest, deletes_a_key_without_a_value) {
    Bytes = Lines({"[A]", "K=1", "L=2"});
    Ini.WriteKey("a", "k", std::nullopt, File);
    EXPECT_EQ(Bytes, Lines({"[A]", "L=2"}));
}

TEST_F(FileIniTest, replaces_a_key_in_its_place_with_the_form_given) {
    Bytes = Lines({"; made by hand", "[A]", "StdVolFlowKDIOtag=1", "L=2"});
    Ini.WriteKey("A", "StdVolFlowKDIOTag", "3", File);
    EXPECT_EQ(Bytes, Lines({"; made by hand", "[A]", "StdVolFlowKDIOTag=3", "L=2"}));
}

TEST_F(FileIniTest, makes_the_file_that_is_not_there) {
    const std::string other = "/jobs/new.ini";
    EXPECT_TRUE(Ini.WriteKey("A", "K", "1", other));
    EXPECT_EQ(Files.Content[other], Lines({"[A]", "K=1"}));
}

TEST_F(FileIniTest, leaves_alone_a_file_that_it_cannot_read) {
    Bytes = Lines({"[A]", "K=1"});
    Files.Unreadable.insert(File);
    EXPECT_EQ(Ini.ReadKey("A", "K", File), "");
    EXPECT_FALSE(Ini.WriteKey("A", "K", "2", File));
    {
        const FileBatch batch(Ini, File);
        EXPECT_EQ(Ini.ReadKey("A", "K", File), "");
        EXPECT_FALSE(Ini.WriteSection("A", {{"K", "3"}}, File));
    }
    EXPECT_EQ(Bytes, Lines({"[A]", "K=1"}));
}

TEST_F(FileIniTest, refuses_to_copy_over_a_file) {
    Bytes = "x";
    EXPECT_FALSE(Ini.CopyConfigFile("/jobs/none.ini", "/jobs/other.ini"));
    EXPECT_TRUE(Ini.CopyConfigFile(File, "/jobs/other.ini"));
    Bytes = "y";
    EXPECT_FALSE(Ini.CopyConfigFile(File, "/jobs/other.ini"));
    EXPECT_EQ(Files.Content["/jobs/other.ini"], "x");
}

TEST_F(FileIniTest, deletes_a_file_that_is_there) {
    EXPECT_TRUE(Ini.DeleteConfigFile(File));
    EXPECT_FALSE(Ini.DeleteConfigFile(File));
    EXPECT_FALSE(Ini.FileExists(File));
}

struct ReadKeys : FileIniTest {
    platform::ProfileKeys Keys{{"K", "L", "M"}};
    std::string K = "old", L = "old";

    void Read(const std::string& file) {
        std::array<std::string*, 3> places = {&K, &L, nullptr};
        Ini.ReadKeys(" A ", Keys, file, places);
    }
};

TEST_F(ReadKeys, puts_each_text_in_its_place) {
    Bytes = "[A]\r\nl=\xE9\r\nK=1\r\nM=2\r\n";
    Read(File);
    EXPECT_EQ(K, "1");
    EXPECT_EQ(L, "é");
    EXPECT_EQ(Files.Reads, 1);
}

TEST_F(ReadKeys, takes_what_stands_first) {
    Bytes = "[A]\r\nM=0\r\nK=\r\nK=1\r\nL=2\r\nL=3\r\n[A]\r\nK=4\r\n";
    Read(File);
    EXPECT_EQ(K, "");
    EXPECT_EQ(L, "2");
}

TEST_F(ReadKeys, empties_the_place_of_what_is_missing) {
    Bytes = Lines({"[A]", "K=1"});
    for (const std::string& file : {File, std::string("/jobs/none.ini"), std::string()}) {
        K = L = "old";
        Read(file);
        EXPECT_EQ(K, file == File ? "1" : "") << file;
        EXPECT_EQ(L, "") << file;
    }
    Files.Unreadable.insert(File);
    Read(File);
    EXPECT_EQ(K, "");
}

TEST_F(ReadKeys, sees_what_its_batch_has_written) {
    Bytes = Lines({"[A]", "K=1"});
    const FileBatch batch(Ini, File);
    Ini.WriteKey("A", "K", "2", File);
    Read(File);
    EXPECT_EQ(K, "2");
    EXPECT_EQ(Files.Reads, 1);
}

struct ReadFirstKeys : ReadKeys {
    bool ReadFirst(const std::string& file) {
        std::array<std::string*, 3> places = {&K, &L, nullptr};
        return Ini.ReadFirstKeys("A", Keys, file, places);
    }
};

// The keys stand in one half or the other of what is read first, across its end, or behind it.
TEST_F(ReadFirstKeys, gives_what_a_reading_of_the_whole_file_gives) {
    for (std::size_t before = 0; before < 9000; before += before < 4050 || before > 4110 ? 50 : 1) {
        Bytes = "[B]\r\nK=0\r\n;" + std::string(before, 'x') + "\r\n[A]\r\nK=12\r\nL=345\r\nM=6\r\n[C]\r\n" +
                std::string(20000, 'y');
        K = L = "old";
        EXPECT_TRUE(ReadFirst(File));
        EXPECT_EQ(K, "12") << before;
        EXPECT_EQ(L, "345") << before;
    }
}

TEST_F(ReadFirstKeys, says_whether_the_file_is_there) {
    Bytes = Lines({"[A]", "K=1"});
    EXPECT_TRUE(ReadFirst(File));
    EXPECT_EQ(K, "1");
    EXPECT_EQ(L, "");
    EXPECT_EQ(Files.Reads, 1);
    EXPECT_FALSE(ReadFirst("/jobs/none.ini"));
    EXPECT_EQ(K, "");
    EXPECT_FALSE(ReadFirst(""));
    Files.Unreadable.insert(File);
    K = "old";
    EXPECT_TRUE(ReadFirst(File)) << "what cannot be read is not taken for missing";
    EXPECT_EQ(K, "");
}

TEST_F(ReadFirstKeys, sees_what_its_batch_has_written) {
    const FileBatch batch(Ini, File);
    Ini.WriteKey("A", "K", "2", File);
    EXPECT_TRUE(ReadFirst(File));
    EXPECT_EQ(K, "2");
}

struct FileBatchTest : FileIniTest {};

TEST_F(FileBatchTest, reads_once_and_replaces_once) {
    Bytes = Lines({"[A]", "K=1", "L=2"});
    {
        const FileBatch batch(Ini, File);
        EXPECT_EQ(Ini.ReadKey("A", "K", File), "1");
        Ini.WriteKey("A", "K", "3", File);
        EXPECT_EQ(Ini.ReadKey("A", "K", File), "3") << "what was written before is seen";
        Ini.WriteKey("A", "L", std::nullopt, File);
        Ini.WriteSection("B", {{"M", "4"}}, File);
        EXPECT_EQ(Bytes, Lines({"[A]", "K=1", "L=2"})) << "nothing on disk yet";
    }
    EXPECT_EQ(Bytes, Lines({"[A]", "K=3", "[B]", "M=4"}));
    EXPECT_EQ(Files.Reads, 1);
    EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(FileBatchTest, that_only_reads_touches_nothing) {
    const std::string none = "/jobs/none.ini";
    {
        const FileBatch batch(Ini, none);
        EXPECT_EQ(Ini.ReadKey("A", "K", none), "");
    }
    EXPECT_FALSE(Ini.FileExists(none));
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(FileBatchTest, within_a_batch_is_part_of_it) {
    const FileBatch outer(Ini, File);
    {
        const FileBatch inner(Ini, File);
        Ini.WriteKey("A", "K", "1", File);
    }
    EXPECT_EQ(Files.Replaces, 0);
    EXPECT_EQ(Ini.ReadKey("A", "K", File), "1");
}

TEST_F(FileBatchTest, leaves_other_files_alone) {
    const FileBatch batch(Ini, File);
    Ini.WriteKey("A", "K", "1", "/jobs/other.ini");
    EXPECT_EQ(Files.Content["/jobs/other.ini"], Lines({"[A]", "K=1"}));
}

TEST_F(FileBatchTest, of_two_files_ends_each_with_its_own) {
    {
        const FileBatch one(Ini, File);
        const FileBatch two(Ini, "/jobs/other.ini");
        Ini.WriteKey("A", "K", "1", File);
        Ini.WriteKey("A", "K", "2", "/jobs/other.ini");
    }
    EXPECT_EQ(Bytes, Lines({"[A]", "K=1"}));
    EXPECT_EQ(Files.Content["/jobs/other.ini"], Lines({"[A]", "K=2"}));
}

TEST_F(FileBatchTest, puts_on_disk_what_is_pending_before_a_copy) {
    const FileBatch batch(Ini, File);
    Ini.WriteKey("A", "K", "1", File);
    EXPECT_TRUE(Ini.CopyConfigFile(File, "/jobs/copy.ini"));
    EXPECT_EQ(Files.Content["/jobs/copy.ini"], Lines({"[A]", "K=1"}));
}

TEST_F(FileBatchTest, puts_on_disk_what_is_pending_before_it_tells_whether_the_file_is_there) {
    Files.Content.erase(File);
    const FileBatch batch(Ini, File);
    EXPECT_FALSE(Ini.FileExists(File));
    Ini.WriteKey("A", "K", "1", File);
    EXPECT_TRUE(Ini.FileExists(File));
    EXPECT_EQ(Files.Content[File], Lines({"[A]", "K=1"}));
}

TEST_F(FileBatchTest, reads_anew_the_file_that_a_copy_made) {
    Bytes = Lines({"[A]", "K=1"});
    const std::string other = "/jobs/copy.ini";
    {
        const FileBatch batch(Ini, other);
        EXPECT_EQ(Ini.ReadKey("A", "K", other), "");
        EXPECT_TRUE(Ini.CopyConfigFile(File, other));
        EXPECT_EQ(Ini.ReadKey("A", "K", other), "1");
        Ini.WriteKey("A", "L", "2", other);
    }
    EXPECT_EQ(Files.Content[other], Lines({"[A]", "K=1", "L=2"}));
}

TEST_F(FileBatchTest, forgets_a_file_that_was_deleted) {
    Bytes = Lines({"[A]", "K=1"});
    {
        const FileBatch batch(Ini, File);
        Ini.WriteKey("A", "K", "2", File);
        EXPECT_TRUE(Ini.DeleteConfigFile(File));
        EXPECT_EQ(Ini.ReadKey("A", "K", File), "");
    }
    EXPECT_FALSE(Files.Exists(File));
}

TEST(FileIniOnDisk, gives_the_same_bytes_one_by_one_and_in_a_batch) {
    const test::TempFolder folder;
    const auto files = platform::MakeFiles();
    FileIni ini(*files);
    const auto work = [&](const std::string& file) {
        ini.WriteSection("A", {{"K", "1"}, {"L", ""}}, file);
        ini.WriteKey("B", "M", "é", file);
        ini.WriteKey("A", "k", "2", file);
        ini.WriteKey("A", "L", std::nullopt, file);
        ini.WriteKey("A", "N", "3", file);
    };
    work(folder.Path("single.ini"));
    {
        const FileBatch batch(ini, folder.Path("batch.ini"));
        work(folder.Path("batch.ini"));
    }
    EXPECT_EQ(folder.Get("single.ini"), "[A]\r\nk=2\r\nN=3\r\n[B]\r\nM=\xE9\r\n");
    EXPECT_EQ(folder.Get("batch.ini"), folder.Get("single.ini"));
    EXPECT_EQ(folder.Count(), 2U) << "nothing is left beside the files";
}

// What is stored and what is not.

TEST_F(FileIniTest, stores_all_changes_in_one_replace) {
    const int before = Files.Replaces;
    const auto outcome = Ini.Store(File, [&](FileIni& ini) {
        ini.WriteKey("A", "one", "1", File);
        ini.WriteKey("A", "two", "2", File);
        EXPECT_EQ(ini.ReadKey("A", "two", File), "2");
    });
    EXPECT_TRUE(outcome);
    EXPECT_EQ(Files.Replaces, before + 1);
    EXPECT_EQ(Ini.ReadKey("A", "one", File), "1");
}

TEST_F(FileIniTest, says_why_nothing_was_stored_and_what_stands_there) {
    const auto change = [&](FileIni& ini) { ini.WriteKey("A", "one", "1", File); };
    Files.Content.clear();
    Files.DiskFull = true;
    auto outcome = Ini.Store(File, change);
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome.Reason(), "No space left on device");
    EXPECT_EQ(outcome.Stands(), Standing::Missing);
    Files.Content[File] = "[A]\r\none=0\r\n";
    EXPECT_EQ(Ini.Store(File, change).Stands(), Standing::AsBefore);
    Files.DiskFull = false;
    Files.Unreadable.insert(File);
    outcome = Ini.Store(File, change);
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome.Reason(), "Input/output error");
    Files.Unreadable.clear();
    EXPECT_EQ(Files.Content[File], "[A]\r\none=0\r\n");
    EXPECT_FALSE(Ini.Store("", change)) << "no place";
}

TEST_F(FileIniTest, takes_up_the_file_anew_after_a_failure) {
    const auto change = [&](FileIni& ini) { ini.WriteKey("A", "one", "1", File); };
    Files.Content[File] = "[A]\r\n";
    Files.FullFor = 1;
    EXPECT_FALSE(Ini.Store(File, change));
    Files.Content[File] = "[A]\r\nother=kept\r\n";
    EXPECT_TRUE(Ini.Store(File, change));
    EXPECT_EQ(Files.Content[File], "[A]\r\nother=kept\r\none=1\r\n");
}

TEST_F(FileIniTest, stores_a_file_from_nothing_once_the_way_is_made) {
    Files.Content[File] = "[A]\r\nold=1\r\n";
    const auto change = [&](FileIni& ini) {
        EXPECT_EQ(ini.ReadKey("A", "old", File), "");
        ini.WriteKey("A", "new", "2", File);
    };
    EXPECT_FALSE(Ini.StoreAnew(File, change, [] { return false; }));
    EXPECT_EQ(Files.Content[File], "[A]\r\nold=1\r\n");
    Files.FullFor = 1;
    EXPECT_EQ(Ini.StoreAnew(File, change,
                            [] {
                                ADD_FAILURE() << "there are no bytes to make way for";
                                return true;
                            })
                  .Stands(),
              Standing::AsBefore);
    EXPECT_TRUE(Ini.StoreAnew(File, change, [&] { return static_cast<bool>(Ini.DeleteConfigFile(File)); }));
    EXPECT_EQ(Files.Content[File], "[A]\r\nnew=2\r\n");
}

} // namespace
TEST(FileBatchReading, sees_what_was_written_between_its_readings) {
    test::MemoryFiles files;
    files.Content["f.ini"] = "[A]\r\na=1\r\nb=2\r\n";
    FileIni ini(files);
    const FileBatch batch(ini, "f.ini");
    for (const std::string value : {"a longer value", "3"}) {
        for (int i = 0; i < 100; ++i) // more readings than an index is made for
            EXPECT_EQ(ini.ReadKey("A", "b", "f.ini"), "2");
        ini.WriteKey("A", "a", value, "f.ini");
        EXPECT_EQ(ini.ReadKey("A", "a", "f.ini"), value);
    }
}

} // namespace gfc::config
