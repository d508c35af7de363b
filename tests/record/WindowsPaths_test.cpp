#ifdef _WIN32
#include "platform/Files.h"
#include "platform/Folder.h"
#include "platform/windows/SystemPath.h"
#include "record/History.h"
#include "record/RecordRoom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

namespace gfc::test {

TEST(RecordInADeepFolder, is_written_and_read) {
    RecordRoom room;
    std::string folder = room.Folder.Path();
    while (folder.size() < 300) {
        folder += "\\" + std::string(60, 'f');
        ASSERT_TRUE(::CreateDirectoryW(platform::windows::SystemPath(folder).c_str(), nullptr)) << folder;
    }
    const std::string name = "KDOrmAGA_plant_History.sqlite";
    room.Record = folder + "\\" + name;
    {
        record::ProjectRecorder recorder(room.Clock, room.Zone, "operator");
        for (const char* bytes : {"[General]\r\nA=1\r\n", "[General]\r\nA=2\r\n"})
            recorder.Record({room.Change("North", "Configuration Wizard", std::nullopt, bytes)});
        EXPECT_EQ(recorder.Trouble(), "");
        EXPECT_TRUE(record::History::OpenToRead(room.Record));
        EXPECT_THAT(platform::FileNamesIn(folder), testing::Optional(testing::Contains(name)));
        EXPECT_GT(platform::FileSize(room.Record), 0u);
    }
    for (const std::string& file : platform::FileNamesIn(folder).value_or(std::vector<std::string>()))
        ::DeleteFileW(platform::windows::SystemPath(folder + "\\" + file).c_str());
    for (; folder != room.Folder.Path(); folder = platform::ParentFolder(folder))
        EXPECT_TRUE(::RemoveDirectoryW(platform::windows::SystemPath(folder).c_str())) << folder;
}

} // namespace gfc::test
#endif
