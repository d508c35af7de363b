// Tables as other tools export them: each stands in a folder with the options that it is taken with, and with
// the table that export-tags then writes, or the faults for which it is refused.
#include "WorkshopFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

namespace gfc::workshop {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

// With its drive where there are drives: the command takes what begins with a stroke there as an option.
const std::filesystem::path Tables = std::filesystem::absolute(GFC_FOREIGN_TABLES);

std::vector<std::string> TableNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Tables)) {
        if (entry.path().extension() == ".csv") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string TextOfFile(const std::string& name, const std::string& ending) {
    return ReadBytes(Tables / (name + ending));
}

} // namespace

class ForeignTable : public WorkshopFixture, public testing::WithParamInterface<std::string> {
protected:
    ForeignTable() { EXPECT_EQ(Run("new " + Quoted("p.KPJ")).Status, 0); }

    Outcome Take(const std::string& name, const std::string& options) {
        const std::string csv = "'" + (Tables / (name + ".csv")).string() + "'";
        return Run("import-tags " + csv + " --project " + Quoted("p.KPJ") + " " + options);
    }
    /// The faults as the command tells them, each led by the table's path.
    static std::string WithPath(const std::string& faults) {
        const std::string path = (Tables / (GetParam() + ".csv")).string() + ": ";
        std::string text;
        std::istringstream lines(faults);
        for (std::string line; std::getline(lines, line);) {
            text += (line.starts_with("row ") ? path : "") + line + '\n';
        }
        return text;
    }
    std::string Exported() {
        EXPECT_EQ(Run("export-tags --project " + Quoted("p.KPJ") + " " + Quoted("out.csv")).Status, 0);
        std::string text = ReadBytes(Folder / "out.csv");
        text.erase(0, text.starts_with("\xEF\xBB\xBF") ? 3 : 0);
        std::erase(text, '\r');
        return text;
    }
};

TEST_P(ForeignTable, is_taken_or_refused_as_expected) {
    const std::string expected = TextOfFile(GetParam(), ".expected");
    std::string options = TextOfFile(GetParam(), ".options");
    std::erase(options, '\n');
    const Outcome preview = Take(GetParam(), options + " --preview");
    const Outcome outcome = Take(GetParam(), options);
    EXPECT_EQ(preview.Status, outcome.Status) << preview.Output;
    EXPECT_THAT(preview.Output, HasSubstr(", fields parted by "));
    constexpr std::string_view Refused = "REFUSED\n";
    if (!expected.starts_with(Refused)) {
        ASSERT_EQ(outcome.Status, 0) << outcome.Output;
        EXPECT_EQ(Exported(), expected);
        return;
    }
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_THAT(outcome.Output, HasSubstr(WithPath(expected.substr(Refused.size()))));
}

INSTANTIATE_TEST_SUITE_P(Each, ForeignTable, testing::ValuesIn(TableNames()),
                         [](const auto& table) { return table.param; });

class ImportWishes : public WorkshopFixture {
protected:
    ImportWishes() { EXPECT_EQ(Run("new " + Quoted("p.KPJ")).Status, 0); }

    Outcome Take(const std::string& table, const std::string& options) {
        WriteBytes(Folder / "t.csv", table);
        return Run("import-tags " + Quoted("t.csv") + " --project " + Quoted("p.KPJ") + " " + options);
    }
    std::string Tags() { return Run("tags --project " + Quoted("p.KPJ")).Output; }
};

TEST_F(ImportWishes, are_kept_under_a_name_and_used_again) {
    const std::string options =
        "--map '\"A=B\"=Tag' --map Kind=Class --station North --module V --direction out "
        "--register-base 100 --ignore-unknown --module-type V=Virtual";
    EXPECT_EQ(Take("A=B;Kind;Reg;X1\nQ-1;FLOAT;101;9\n", options + " --save-mapping tool").Status, 0);
    EXPECT_EQ(Take("A=B;Kind;Reg;X1\nQ-2;FLOAT;102;9\n", "--mapping tool --module W --module-type W=Virtual")
                  .Status,
              1); // no row is of the module V any more
    EXPECT_EQ(Take("A=B;Kind;Reg;X1\nQ-2;FLOAT;102;9\n", "--mapping tool").Status, 0);
    EXPECT_THAT(Tags(), AllOf(HasSubstr("Q-1  FY     2"), HasSubstr("Q-2  FY     3")));
    EXPECT_THAT(Run("mappings").Output,
                AllOf(HasSubstr("tool\n  --map=\"A=B\"=\"Tag\"\n"), HasSubstr("  --register-base=100\n")));
    EXPECT_THAT(Take("x", "--mapping none").Output, HasSubstr("There is no mapping \"none\""));
    EXPECT_THAT(Take("Station,Module,Tag,Class,Register\n", "--save-mapping ../up").Output,
                HasSubstr("cannot be the name of a mapping"));
}

TEST_F(ImportWishes, name_what_the_table_lacks_and_are_refused) {
    const std::string table = "Station,Module,Tag,Class,Register\nN,V,A,FX,1\n";
    EXPECT_THAT(Take(table, "--map Colour=Tag").Output,
                HasSubstr("row 1, column Colour: the table has no such column, which --map names"));
    EXPECT_THAT(Take(table, "--map Tag=Colour").Output, HasSubstr("\"Colour\", which is no column of ours"));
    EXPECT_THAT(Take(table, "--map Tag").Output, HasSubstr("\"Tag\" is not two texts with"));
    EXPECT_THAT(Take(table, "--module-type W=Virtual").Output, HasSubstr("no row is of the module \"W\""));
    EXPECT_EQ(Take(table, "--direction sideways").Status, 2);
    EXPECT_THAT(Take(table, "--encoding klingon").Output, HasSubstr("knows no encoding \"klingon\""));
    EXPECT_THAT(Take(table, "--register-base 5").Output, HasSubstr("\"1\" stands before register 1 at 5"));
    EXPECT_THAT(Tags(), Not(HasSubstr("FX")));
}

TEST_F(ImportWishes, tell_what_a_plain_address_is) {
    const std::string head = "Station,Address,Module,Tag,Class";
    EXPECT_THAT(Take(head + "\nN,somewhere,V,A,FX\n", "").Output,
                HasSubstr("column Address: may be the register or the IP address"));
    EXPECT_EQ(Take(head + "\nN,7,V,A,FX\n", "").Status, 0);
    EXPECT_EQ(Take(head + ",Register\nM,10.0.0.1,V,A,FX,8\n", "").Status, 0);
    EXPECT_THAT(Tags(), AllOf(HasSubstr("A    FX     7"), HasSubstr("A    FX     8")));
}

TEST_F(ImportWishes, of_our_own_table_are_none_so_that_it_comes_back_as_it_was) {
    const std::string ours = "Station,Module,Module Type,Tag,Class,Register\nN,V,Virtual,A,FX,40011\n";
    EXPECT_EQ(Take(ours, "").Status, 0);
    EXPECT_THAT(Tags(), HasSubstr("40011"));
    EXPECT_EQ(Take("Site" + ours.substr(7), "").Status, 0);
    EXPECT_THAT(Tags(), HasSubstr("A    FX     11"));
    EXPECT_EQ(Take("Site" + ours.substr(7), "--register-base 1").Status, 0);
    EXPECT_THAT(Tags(), HasSubstr("40011"));
}

TEST_F(ImportWishes, broken_by_a_changed_register_are_told_station_by_station_in_a_preview) {
    ASSERT_EQ(Run("demo " + Quoted("plant")).Status, 0);
    ASSERT_EQ(Run("open " + Quoted("plant/plant.KPJ")).Status, 0);
    ASSERT_EQ(Run("export-tags " + Quoted("all.csv")).Status, 0);
    std::string table = ReadBytes(Folder / "all.csv");
    for (std::size_t at = table.find(",FX,"); at != std::string::npos; at = table.find(",FX,", at + 5)) {
        table.insert(at + 4, "7");
    }
    WriteBytes(Folder / "moved.csv", table);
    const Outcome preview = Run("import-tags --preview " + Quoted("moved.csv"));
    EXPECT_EQ(preview.Status, 0);
    EXPECT_THAT(preview.Output, HasSubstr(" stored bindings would break:\n"));
}

} // namespace gfc::workshop
