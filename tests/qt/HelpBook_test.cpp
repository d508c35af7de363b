#include "qt/HelpBook.h"
#include "qt/MachineHelp.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

using ::testing::ElementsAre;

class HelpBooks : public ::testing::Test {
protected:
    HelpBooks() {
        Folder.Put("contents.txt",
                   "# a remark\n\nindex.html 0\n  orifice.html 5100 5101\n    taps.html Step\n");
        Folder.Put("index.html", "<html><head><title>Welcome</title></head><body>All of it</body></html>");
        Folder.Put("orifice.html", "<html><head><title>Orifice plate</title></head>"
                                   "<body>The bore of the <b>Plate</b></body></html>");
        Folder.Put(
            "taps.html",
            "<html><head><title>Taps</title></head>"
            "<body><h1>Taps</h1><p>Before the plate, behind the plate, beside the plate</p></body></html>");
    }
    [[nodiscard]] qt::HelpBook Book() const { return qt::HelpBook(QString::fromStdString(Folder.Path())); }
    [[nodiscard]] std::vector<QString> FilesOf(const QString& words) const {
        const auto book = Book();
        std::vector<QString> files;
        for (const auto& hit : book.Find(words))
            files.push_back(hit.Page->File);
        return files;
    }

    TempFolder Folder;
};

TEST_F(HelpBooks, read_titles_depths_and_texts) {
    const auto book = Book();
    ASSERT_EQ(book.Pages().size(), 3U);
    EXPECT_EQ(book.Pages()[1].File, "orifice.html");
    EXPECT_EQ(book.Pages()[1].Title, "Orifice plate");
    EXPECT_EQ(book.Pages()[1].Level, 1);
    EXPECT_THAT(book.Pages()[1].Contexts, ElementsAre(5100, 5101));
    EXPECT_EQ(book.Pages()[1].Text, "The bore of the Plate");
    EXPECT_EQ(book.Pages()[2].Level, 2);
    EXPECT_TRUE(book.Pages()[2].Contexts.empty());
    EXPECT_EQ(book.Pages()[2].Forms, QStringList{"Step"});
    EXPECT_EQ(book.PageOfForm("Step"), &book.Pages()[2]);
    EXPECT_EQ(book.PageOfForm("Other"), &book.Pages()[0]);
}

TEST_F(HelpBooks, open_at_the_page_of_a_number) {
    const auto book = Book();
    EXPECT_EQ(book.PageOf(5101)->File, "orifice.html");
    EXPECT_EQ(book.PageOf(0)->File, "index.html");
}

TEST_F(HelpBooks, open_at_the_first_page_for_an_unknown_number) {
    EXPECT_EQ(Book().PageOf(9999)->File, "index.html");
}

TEST_F(HelpBooks, know_their_files) {
    const auto book = Book();
    EXPECT_EQ(book.PageIn("taps.html")->Title, "Taps");
    EXPECT_EQ(book.PageIn("nothing.html"), nullptr);
}

TEST_F(HelpBooks, leave_out_pages_that_are_not_there) {
    std::filesystem::remove(Folder.Path("orifice.html"));
    EXPECT_EQ(Book().Pages().size(), 2U);
}

TEST_F(HelpBooks, are_empty_without_their_contents) {
    std::filesystem::remove(Folder.Path("contents.txt"));
    EXPECT_TRUE(Book().Pages().empty());
    EXPECT_EQ(Book().PageOf(0), nullptr);
    EXPECT_TRUE(Book().Find("plate").empty());
}

TEST_F(HelpBooks, find_words_whatever_their_case_and_titles_first) {
    EXPECT_THAT(FilesOf("PLATE"), ElementsAre("orifice.html", "taps.html"));
    EXPECT_THAT(FilesOf("the"), ElementsAre("taps.html", "orifice.html"));
}

TEST_F(HelpBooks, find_only_pages_with_all_the_words) {
    EXPECT_THAT(FilesOf("plate  bore"), ElementsAre("orifice.html"));
    EXPECT_TRUE(FilesOf("plate welcome").empty());
    EXPECT_TRUE(FilesOf("  ").empty());
}

TEST_F(HelpBooks, show_what_stands_around_a_word) {
    const auto book = Book();
    const auto hits = book.Find("behind");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].Count, 1);
    EXPECT_EQ(hits[0].Around, "Before the plate, behind the plate, beside the plate");
}

TEST_F(HelpBooks, cut_the_text_around_a_word_between_words) {
    std::string filler;
    for (int i = 0; i < 40; ++i)
        filler += " filler";
    Folder.Put("taps.html", "<html><body>" + filler + " tap" + filler + "</body></html>");
    const auto around = Book().Find("tap").front().Around;
    EXPECT_TRUE(around.startsWith(QStringLiteral("… filler ")) &&
                around.endsWith(QStringLiteral(" filler …")));
    EXPECT_LT(around.size(), 120);
}

TEST_F(HelpBooks, show_the_beginning_where_only_the_title_has_the_word) {
    const auto book = Book();
    const auto hits = book.Find("taps");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_TRUE(hits[0].Around.startsWith("Before the plate"));
    EXPECT_EQ(hits[0].Count, 1);
}

TEST(MachineHelp, is_not_there_without_its_file) {
    EXPECT_FALSE(qt::OpenMachineHelp("no-such-file.chm", 7300));
}

} // namespace gfc::test
