#include "qt/HelpFixture.h"

#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QTextBlock>

namespace gfc::test {

TEST_F(HelpWindows, open_at_the_page_of_the_number) {
    Open(7400);
    ASSERT_NE(Help(), nullptr);
    EXPECT_EQ(Shown(), "meter.html");
    EXPECT_EQ(Help()->windowTitle(), "Help: Meter");
    EXPECT_EQ(Part<QTreeWidget>("HelpContents").currentItem()->text(0), "Meter");
    EXPECT_TRUE(Part<qt::HelpView>("HelpPage").hasFocus());
}

TEST_F(HelpWindows, turn_to_another_page_where_they_stand) {
    Open(7400);
    const QWidget* first = Help();
    Open(5100);
    EXPECT_EQ(Help(), first);
    EXPECT_EQ(Shown(), "plate.html");
}

TEST_F(HelpWindows, follow_links_and_go_back_and_forward) {
    Open(0);
    EXPECT_FALSE(Part<QToolButton>("HelpBack").isEnabled());
    Press(Help(), Qt::Key_Tab);
    Press(Help(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "plate.html");
    EXPECT_EQ(Part<QTreeWidget>("HelpContents").currentItem()->text(0), "Plate");
    ClickOn(&Part<QToolButton>("HelpBack"));
    EXPECT_EQ(Shown(), "index.html");
    EXPECT_EQ(Part<QTreeWidget>("HelpContents").currentItem()->text(0), "Welcome");
    ClickOn(&Part<QToolButton>("HelpForward"));
    EXPECT_EQ(Shown(), "plate.html");
    Press(Help(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "index.html");
}

TEST_F(HelpWindows, show_the_page_that_the_arrows_select) {
    Open(0);
    Part<QTreeWidget>("HelpContents").setFocus();
    Press(Help(), Qt::Key_Down);
    EXPECT_EQ(Shown(), "plate.html");
}

TEST_F(HelpWindows, find_words_while_they_are_typed) {
    Open(0);
    Press(Help(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Part<QLineEdit>("HelpWords").hasFocus());
    for (const char key : std::string("ORIFICE"))
        Press(Help(), key);
    auto& hits = Part<QListWidget>("HelpHits");
    EXPECT_TRUE(hits.isVisible());
    EXPECT_EQ(Part<QLabel>("HelpFound").text(), "2 pages found");
    ASSERT_EQ(hits.count(), 2);
    EXPECT_EQ(hits.item(0)->text(), "Plate\nAn orifice plate. A sharp orifice.");
    EXPECT_EQ(Shown(), "index.html");
}

TEST_F(HelpWindows, show_a_page_that_was_found_with_its_words_marked) {
    Open(0);
    auto& page = Part<qt::HelpView>("HelpPage");
    Part<QLineEdit>("HelpWords").setFocus();
    QTest::keyClicks(&Part<QLineEdit>("HelpWords"), "orifice");
    Press(Help(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "plate.html");
    EXPECT_EQ(page.Marks(), 2);
    EXPECT_EQ(page.textCursor().selectionStart(), 3);
    Press(Help(), Qt::Key_F3);
    EXPECT_EQ(page.textCursor().selectionStart(), 26);
    Press(Help(), Qt::Key_F3);
    EXPECT_EQ(page.textCursor().selectionStart(), 3);
    Press(Help(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().selectionStart(), 26);
    Press(Help(), Qt::Key_Down);
    EXPECT_EQ(Shown(), "meter.html");
    EXPECT_EQ(page.Marks(), 1);
}

TEST_F(HelpWindows, show_the_whole_text_around_the_words_in_a_narrow_list) {
    Put("plate", "Plate", "An orifice plate with quite a long text behind it, and more of it");
    Open(0);
    QTest::keyClicks(&Part<QLineEdit>("HelpWords"), "orifice");
    auto& hits = Part<QListWidget>("HelpHits");
    const QRect narrow = hits.visualItemRect(hits.item(0));
    EXPECT_GE(narrow.height(), 4 * hits.fontMetrics().height());
    EXPECT_LE(narrow.width(), hits.viewport()->width());
}

TEST_F(HelpWindows, say_that_no_page_has_the_words) {
    Open(0);
    QTest::keyClicks(&Part<QLineEdit>("HelpWords"), "xylophone");
    EXPECT_EQ(Part<QLabel>("HelpFound").text(), "No page has these words.");
    Press(Help(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "index.html");
    Part<QLineEdit>("HelpWords").clear();
    EXPECT_TRUE(Part<QTreeWidget>("HelpContents").isVisible());
    EXPECT_FALSE(Part<QLabel>("HelpFound").isVisible());
}

TEST_F(HelpWindows, forget_the_search_when_the_program_asks_for_a_page) {
    Open(0);
    QTest::keyClicks(&Part<QLineEdit>("HelpWords"), "orifice");
    Open(5100);
    EXPECT_TRUE(Part<QLineEdit>("HelpWords").text().isEmpty());
    EXPECT_TRUE(Part<QTreeWidget>("HelpContents").isVisible());
    EXPECT_EQ(Part<qt::HelpView>("HelpPage").Marks(), 0);
}

TEST_F(HelpWindows, go_to_the_contents_on_F1_and_close_on_Escape) {
    Open(7400);
    Press(Help(), Qt::Key_F1);
    EXPECT_EQ(Shown(), "index.html");
    Press(Help(), Qt::Key_Escape);
    EXPECT_EQ(Help(), nullptr);
    EXPECT_TRUE(Form->IsShown());
}

TEST_F(HelpWindows, stand_within_the_screen_wherever_they_are_called_from) {
    const QRect screen = Window().screen()->availableGeometry();
    for (const QPoint at : {screen.topLeft(), screen.center(), screen.bottomRight() - QPoint(50, 50)}) {
        Window().move(at);
        Settle();
        Open(0);
        EXPECT_TRUE(screen.contains(Help()->frameGeometry())) << Help()->x() << ", " << Help()->y();
        Press(Help(), Qt::Key_Escape);
    }
}

TEST_F(HelpWindows, close_on_Escape_wherever_the_focus_is) {
    for (const char* part : {"HelpPage", "HelpContents", "HelpWords", "HelpHome"}) {
        Open(0);
        Part<QWidget>(part).setFocus();
        Press(Help(), Qt::Key_Escape);
        EXPECT_EQ(Help(), nullptr) << part;
    }
}

TEST_F(HelpWindows, say_where_the_manual_belongs_if_it_is_missing) {
    qt::ShowHelpWindow(QString::fromStdString(Folder.Path("nowhere")), 3000, &Window());
    const QString text = Part<qt::HelpView>("HelpPage").toPlainText();
    EXPECT_TRUE(text.contains("The manual is not installed")) << qPrintable(text);
    EXPECT_TRUE(text.contains("nowhere")) << qPrintable(text);
    EXPECT_FALSE(Part<QTreeWidget>("HelpContents").isVisible());
    Press(Help(), Qt::Key_Escape);
    EXPECT_EQ(Help(), nullptr);
}

TEST_F(HelpWindows, name_each_part_for_readers) {
    Open(0);
    for (const QWidget* part : Help()->findChildren<QWidget*>())
        if (part->focusPolicy() != Qt::NoFocus && part->objectName().startsWith("Help")) {
            EXPECT_FALSE(part->accessibleName().isEmpty()) << qPrintable(part->objectName());
        }
    EXPECT_FALSE(Help()->accessibleName().isEmpty());
}

TEST_F(HelpWindows, are_walked_by_Tab_from_the_top_to_the_page) {
    Open(5100);
    Press(Help(), Qt::Key_F, Qt::ControlModifier);
    QStringList order;
    for (int i = 0; i < 4; ++i) {
        order << QApplication::focusWidget()->objectName();
        Press(Help(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"HelpWords", "HelpContents", "HelpPage", "HelpHome"}));
}

TEST_F(HelpWindows, show_links_that_are_read_on_light_and_on_dark) {
    Open(0);
    auto& page = Part<qt::HelpView>("HelpPage");
    const auto link = [&page] {
        const QTextBlock block = page.document()->firstBlock();
        return block.begin().fragment().charFormat().foreground().color().lightness();
    };
    EXPECT_LT(link(), 150);
    QPalette dark = page.palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Link, Qt::darkBlue);
    page.setPalette(dark);
    Settle();
    EXPECT_GT(link(), 150);
}

TEST_F(HelpWindows, keep_their_lines_short_in_a_wide_window) {
    Put("plate", "Plate", std::string(4000, 'w').replace(100, 1, " "));
    Open(5100);
    Help()->resize(1800, 600);
    Settle();
    const auto& page = Part<qt::HelpView>("HelpPage");
    EXPECT_LT(page.lineWrapColumnOrWidth(), page.viewport()->width() * 2 / 3);
    Help()->resize(500, 600);
    Settle();
    EXPECT_LE(page.lineWrapColumnOrWidth(), page.viewport()->width());
}

} // namespace gfc::test
