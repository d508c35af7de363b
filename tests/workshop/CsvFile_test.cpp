#include "WorkshopFixture.h"
#include "workshop/import/CsvFile.h"

#include <gmock/gmock.h>

namespace gfc::workshop {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CsvFile : public WorkshopFixture {
protected:
    CsvTable Read(const std::string& bytes) {
        WriteBytes(Folder / "table.csv", bytes);
        return ReadCsv(Folder / "table.csv");
    }
    /// "row: field|field" for each row.
    std::vector<std::string> Rows(const std::string& bytes) {
        std::vector<std::string> rows;
        for (const CsvRow& row : Read(bytes).Rows) {
            std::string text = std::to_string(row.Row) + ":";
            for (const std::string& field : row.Fields) {
                text += (text.back() == ':' ? " " : "|") + field;
            }
            rows.push_back(text);
        }
        return rows;
    }
};

TEST_F(CsvFile, takes_the_separator_that_the_first_row_has_most_of) {
    for (const std::string separator : {",", ";", "\t"}) {
        EXPECT_THAT(Rows("Tag" + separator + "Class" + separator + "Register\nA" + separator + "\"x" +
                         separator + "y\"" + separator + "1\n"),
                    ElementsAre("1: Tag|Class|Register", "2: A|x" + separator + "y|1"))
            << separator;
    }
    EXPECT_THAT(Rows("\n Tag;Class\n1,5;FX\n"), ElementsAre("2: Tag|Class", "3: 1,5|FX"));
}

TEST_F(CsvFile, takes_the_separator_that_a_first_line_tells) {
    EXPECT_THAT(Rows("sep=;\r\nTag;Class\r\nA;FX\r\n"), ElementsAre("2: Tag|Class", "3: A|FX"));
    EXPECT_THAT(Rows("\xEF\xBB\xBFsep=|\nTag|Class\n"), ElementsAre("2: Tag|Class"));
    EXPECT_THAT(Rows("sep=x\n"), ElementsAre("1: sep=x"));
}

TEST_F(CsvFile, keeps_an_empty_field_between_tabs) {
    EXPECT_THAT(Rows("Tag\tClass\tRegister\nA\t\t1\n\t\t\n"),
                ElementsAre("1: Tag|Class|Register", "2: A||1", "3: ||"));
}

TEST_F(CsvFile, ends_lines_as_any_machine_does) {
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        EXPECT_THAT(Rows("Tag,Class" + end + end + "A,FX" + end + "B,AX"),
                    ElementsAre("1: Tag|Class", "3: A|FX", "4: B|AX"));
    }
}

TEST_F(CsvFile, counts_rows_as_a_spreadsheet_does_though_a_field_has_several_lines) {
    EXPECT_THAT(Rows("Tag,Class\n\"A\n\nB\",FX\n\nC,AX\n"),
                ElementsAre("1: Tag|Class", "2: A\n\nB|FX", "4: C|AX"));
}

TEST_F(CsvFile, reads_utf8_with_and_without_its_mark) {
    for (const std::string mark : {"", "\xEF\xBB\xBF"}) {
        const CsvTable table = Read(mark + "Señal,Ø\n");
        EXPECT_THAT(table.Rows.at(0).Fields, ElementsAre("Señal", "Ø"));
        EXPECT_EQ(table.Note, "");
    }
}

TEST_F(CsvFile, reads_what_is_not_utf8_as_windows_1252_and_says_where_that_shows) {
    const CsvTable table = Read("Tag,Class\nPlain,FX\nSe\xF1"
                                "al_\x80,FX\n");
    EXPECT_THAT(table.Rows.at(2).Fields, ElementsAre("Señal_€", "FX"));
    EXPECT_EQ(table.Note,
              "line 3 is not UTF-8, so the whole file was read as Windows-1252; if letters come out "
              "wrong, save it as UTF-8");
}

TEST_F(CsvFile, refuses_a_workbook_and_says_how_to_save) {
    for (const std::string& start : {std::string("PK\x03\x04"), std::string("\xD0\xCF\x11\xE0\xA1")}) {
        EXPECT_THAT(FailureOf([&] { auto table = Read(start + "rest"); }),
                    HasSubstr("not a table in CSV; save it from the spreadsheet as \"CSV UTF-8\""));
    }
}

TEST_F(CsvFile, reads_utf16_by_its_mark_or_by_its_zeros) {
    const std::string little("T\0a\0g\0,\0\xF1\0\x3D\xD8\x00\xDE\n\0", 16);
    const std::string big("\0T\0a\0g\0,\0\xF1\xD8\x3D\xDE\x00\0\n", 16);
    for (const std::string& text : {"\xFF\xFE" + little, "\xFE\xFF" + big, little, big}) {
        const CsvTable table = Read(text);
        EXPECT_THAT(table.Rows.at(0).Fields, ElementsAre("Tag", "ñ😀"));
        EXPECT_EQ(table.Encoding, "UTF-16");
    }
    for (const std::string& broken :
         {std::string("\xFF\xFET\0a", 5), std::string("\xFF\xFE\x3D\xD8T\0", 6)}) {
        EXPECT_THAT(FailureOf([&] { auto table = Read(broken); }), HasSubstr("UTF-16 that is broken near"));
    }
}

TEST_F(CsvFile, has_no_rows_when_there_is_nothing_in_it) {
    EXPECT_THAT(Rows(""), IsEmpty());
    EXPECT_THAT(Rows("\xEF\xBB\xBF\r\n  \r\n"), IsEmpty());
}

} // namespace gfc::workshop
