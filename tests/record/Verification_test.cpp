#include "RecordRoom.h"
#include "record/History.h"
#include "record/Verification.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace gfc::record {
namespace {

using config::RecordCheck;
using testing::HasSubstr;

namespace command = config::command;

std::string FileWith(int value) {
    return "[General]\r\nOrmStation=North\r\nValue=" + std::to_string(value) + "\r\n";
}

class VerificationTest : public testing::Test, protected test::RecordRoom {
protected:
    static constexpr int entries = 5;

    VerificationTest() {
        Recorder.Record({Change("North", command::Wizard, std::nullopt, FileWith(1)),
                         Change("South", command::Wizard, std::nullopt, FileWith(2), "bob"),
                         Change("North", command::Configure, FileWith(1), FileWith(3)),
                         Change("North", command::Delete, FileWith(3), std::nullopt),
                         Change("North", command::BringBack, std::nullopt, FileWith(1))});
    }

    void ExpectDamage(std::int64_t entry, const std::string& words) {
        const RecordCheck check = VerifyRecord(Record);
        ASSERT_TRUE(check.Damage);
        EXPECT_EQ(check.Damage->Entry, entry) << check.Damage->Reason;
        EXPECT_THAT(check.Damage->Reason, HasSubstr(words));
    }

    // All that a reader can get out of the record.
    std::string EverythingRead() {
        std::string all;
        auto history = History::OpenToRead(Record);
        history->ForEach({.Whole = true}, [&](const StoredEntry& entry) {
            all += HashOf(entry) + entry.Facts.Hash;
            all += std::to_string(history->LastOf(entry.Facts.Station)->Facts.Number);
            return true;
        });
        return all;
    }
};

TEST_F(VerificationTest, FindsNothingInWhatWasNotTouched) {
    const RecordCheck check = VerifyRecord(Record);
    EXPECT_FALSE(check.Damage);
    EXPECT_EQ(check.Entries, entries);
    EXPECT_EQ(check.LastHash, Recorder.Entries(Record, {}).back().Hash);
}

TEST_F(VerificationTest, TheDatabaseItselfRefusesWhatIsNotAnAddition) {
    for (const char* statement :
         {"UPDATE entry SET user = 'eve' WHERE number = 2", "DELETE FROM entry WHERE number = 5",
          "DELETE FROM entry",
          "INSERT INTO entry SELECT 9, time, user, machine, command, station, file, hash, "
          "hash, changes, content FROM entry WHERE number = 5",
          "REPLACE INTO entry SELECT number, time, 'eve', machine, command, station, file, previous, hash, "
          "changes, content FROM entry WHERE number = 2"})
        EXPECT_FALSE(Tamper(statement, false)) << statement;
    EXPECT_FALSE(VerifyRecord(Record).Damage);
}

TEST_F(VerificationTest, NamesTheEntryThatWasChanged) {
    ASSERT_TRUE(Tamper("UPDATE entry SET user = 'eve' WHERE number = 2"));
    ExpectDamage(2, "does not have its hash");
}

TEST_F(VerificationTest, NamesTheEntryAfterOneThatWasChangedTogetherWithItsHash) {
    ASSERT_TRUE(Tamper("UPDATE entry SET hash = upper(hash) WHERE number = 2"));
    ExpectDamage(2, "does not have its hash");
}

TEST_F(VerificationTest, NamesTheFirstThatIsMissing) {
    ASSERT_TRUE(Tamper("DELETE FROM entry WHERE number = 3"));
    ExpectDamage(3, "missing");
}

TEST_F(VerificationTest, MissesTheLastEntryToo) {
    ASSERT_TRUE(Tamper("DELETE FROM entry WHERE number = 5"));
    ExpectDamage(5, "missing");
}

TEST_F(VerificationTest, SaysThatRulesWereTakenAway) {
    ASSERT_TRUE(Tamper(""));
    ExpectDamage(0, "not as it was made");
}

TEST_F(VerificationTest, SaysThatAnotherFileStandsInItsPlace) {
    test::PutBytes(Record, std::string(4096, 'x'));
    ExpectDamage(1, "not a record of this program");
}

// Whoever asked it for its entries would wait for ever.
TEST_F(VerificationTest, IsLedIntoNothingByAViewInThePlaceOfTheTable) {
    std::filesystem::remove(Record);
    ASSERT_TRUE(
        Tamper("PRAGMA application_id = " + std::to_string(RecordId) +
                   "; PRAGMA user_version = " + std::to_string(RecordForm) +
                   "; CREATE VIEW entry AS WITH RECURSIVE every(number) AS (SELECT 1 UNION ALL SELECT "
                   "number + 1 FROM every) SELECT number, '' AS time, '' AS user, '' AS machine, '' AS "
                   "command, '' AS station, '' AS file, '' AS previous, '' AS hash, '' AS changes, '' AS "
                   "content FROM every",
               false));
    ExpectDamage(1, "not a record of this program");
    EXPECT_TRUE(Recorder.Entries(Record, {}).empty());
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("not a record"));
    Enter("North", command::Wizard, std::nullopt, FileWith(1));
    EXPECT_THAT(Recorder.Trouble(), HasSubstr("not a record"));
}

TEST_F(VerificationTest, SurvivesAFileThatWasCutAnywhere) {
    const std::string whole = test::BytesAt(Record);
    for (std::size_t size = 1; size < whole.size(); size += 997) {
        test::PutBytes(Record, whole.substr(0, size));
        EXPECT_TRUE(VerifyRecord(Record).Damage) << size;
    }
}

// Of the bytes that are zero, nearly all of which no reading comes to, one in so many.
constexpr std::size_t zerosApart = 31;

// Every other byte in turn. What is not found must be what no reading comes to.
TEST_F(VerificationTest, FindsEveryFlippedByteThatIsEverRead) {
    const std::string whole = test::BytesAt(Record);
    const std::string all = EverythingRead();
    std::size_t named = 0;
    std::size_t inTheFile = 0;
    std::size_t unread = 0;
    std::fstream file(Record, std::ios::binary | std::ios::in | std::ios::out);
    const auto put = [&](std::size_t at, char byte) {
        file.seekp(static_cast<std::streamoff>(at)).put(byte).flush();
    };
    for (std::size_t at = 0; at < whole.size(); ++at) {
        if (whole[at] == 0 && at > 100 && at % zerosApart != 0)
            continue;
        put(at, static_cast<char>(whole[at] ^ (1 << at % 8)));
        const RecordCheck check = VerifyRecord(Record);
        if (!check.Damage) {
            ++unread;
            ASSERT_EQ(EverythingRead(), all) << "byte " << at;
        } else {
            ++(check.Damage->Entry == 0 ? inTheFile : named);
            ASSERT_EQ(check.Damage->Entry == 0 ? entries : check.Damage->Entry - 1, check.Entries) << at;
        }
        put(at, whole[at]);
    }
    std::printf("%zu bytes: an entry named for %zu, the file for %zu, %zu never read\n", whole.size(), named,
                inTheFile, unread);
    EXPECT_GT(named, 2000U);
}

} // namespace
} // namespace gfc::record
