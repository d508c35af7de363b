#include "binding/Catalogue.h"
#include "forms/editors/FrParMec.h"
#include "qt/HelpView.h"
#include "qt/HelpWindow.h"
#include "qt/QtScreen.h"
#include "qt/support/ManualPages.h"
#include "qt/support/ProgramTexts.h"
#include "qt/support/WindowDriver.h"
#include "support/World.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace gfc::test {

namespace {

const std::map<std::string, std::vector<int>> helpNumbers = {
    {"GFCPrincipal", {2300, 2000, 2100, 2200, 7700}},
    {"WizardFC", {3000, 3100, 3200, 3300, 3400}},
    {"Configurador", {1000, 1100, 1200, 1300}},
    {"TagRuns", {5000, 6000, 6100, 6200, 7000, 7100, 7600}},
    {"FrParMec", {5100}},
    {"FrAccelabar", {7400}},
    {"MDetail", {4000}},
    {"frSGERG88", {7500}},
    {"FrCheckStations", {8000}},
    {"FrPlanStations", {8100}},
    {"FrHistory", {8200}},
    {"FrGeneration", {8200}},
    {"FrCompare", {8300}},
    {"FrReport", {8400}},
    {"FrDrafts", {8500}},
};

} // namespace

class Manual : public ::testing::Test {
protected:
    qt::HelpBook Book{qt::ManualFolder()};
};

TEST_F(Manual, has_each_of_its_files_once_in_the_contents) {
    QStringList listed;
    for (const auto& page : Book.Pages())
        listed << page.File;
    listed.sort();
    EXPECT_EQ(listed, QDir(qt::ManualFolder()).entryList({"*.html"}, QDir::Files, QDir::Name));
    EXPECT_GT(listed.size(), 30);
}

TEST_F(Manual, has_one_page_for_each_help_number) {
    std::set<int> seen;
    for (const auto& page : Book.Pages())
        for (const int number : page.Contexts)
            EXPECT_TRUE(seen.insert(number).second) << number << " leads to two pages";
    for (const int number : HelpNumbersOfSources())
        EXPECT_TRUE(seen.contains(number)) << number << " leads nowhere";
    for (const auto& [form, numbers] : helpNumbers)
        for (const int number : numbers)
            EXPECT_TRUE(seen.contains(number)) << number << " of " << form << " leads nowhere";
    EXPECT_EQ(Book.PageOf(0), &Book.Pages().front());
}

TEST_F(Manual, leads_each_form_to_a_page_of_its_own) {
    for (const auto& [form, numbers] : helpNumbers)
        for (const int number : numbers) {
            const auto& file = Book.PageOf(number)->File;
            EXPECT_TRUE(FormsOf(Html(file)).contains(QString::fromStdString(form)))
                << form << " opens " << qPrintable(file);
        }
}

// The splash takes no keys.
TEST_F(Manual, leads_each_form_without_a_number_to_a_page_that_tells_of_it) {
    for (const char* form : {"UserIDForm", "SelectRuns", "Step", "FrAccelabar", "FrModificarTags",
                             "TagsChanged", "frCopyStation", "WaitForFile"}) {
        const auto* page = Book.PageOfForm(QString::fromLatin1(form));
        EXPECT_TRUE(page->Forms.contains(form)) << form << " opens " << qPrintable(page->File);
        EXPECT_TRUE(FormsOf(Html(page->File)).contains(form)) << qPrintable(page->File);
    }
    EXPECT_EQ(Book.PageOfForm("NoSuchForm"), &Book.Pages().front());
}

TEST_F(Manual, has_a_page_for_each_tree_of_tags) {
    for (const char* root :
         {"AGA 3 Inputs", "AGA 3 Outputs", "SYT6143-2004 Inputs", "SYT6143-2004 Outputs", "AGA 7 Inputs",
          "AGA 7 Outputs", "AGA 8 Inputs", "AGA 8 Outputs", "SGERG 88 Inputs", "SGERG 88 Outputs"})
        EXPECT_THAT(helpNumbers.at("TagRuns"), ::testing::Contains(binding::ContextOfRoot(root))) << root;
}

TEST_F(Manual, has_links_that_lead_somewhere) {
    std::set<QString> reached{Book.Pages().front().File};
    for (const auto& page : Book.Pages())
        for (const QString& link : Captured(Html(page.File), QStringLiteral("href=\"([^\"]*)\""))) {
            const QString file = link.section(QLatin1Char('#'), 0, 0);
            const QString place = link.section(QLatin1Char('#'), 1);
            EXPECT_TRUE(file == "manual.css" || Book.PageIn(file) != nullptr)
                << qPrintable(page.File) << ": " << qPrintable(link);
            EXPECT_TRUE(place.isEmpty() || Html(file).contains(QStringLiteral("name=\"%1\"").arg(place)))
                << qPrintable(page.File) << ": " << qPrintable(link);
            reached.insert(file);
        }
    for (const auto& page : Book.Pages())
        EXPECT_TRUE(reached.contains(page.File)) << "no link leads to " << qPrintable(page.File);
}

// They come with every installation, so that they must stay small.
TEST_F(Manual, shows_each_of_its_pictures_once_and_says_what_is_on_it) {
    const QDir folder(qt::ManualFolder());
    constexpr int widest = 580;         // pixels, which the help window shows without a bar
    constexpr qint64 most = 400 * 1024; // bytes, of all of them
    QStringList shown;
    for (const auto& page : Book.Pages())
        for (const QString& picture : Captured(Html(page.File), QStringLiteral("<img ([^>]*)/>"))) {
            shown << Captured(picture, QStringLiteral("src=\"([^\"]+)\"")).value(0);
            EXPECT_FALSE(Captured(picture, QStringLiteral("alt=\"([^\"]+)\"")).isEmpty())
                << qPrintable(picture);
            const QImage image(folder.filePath(shown.back()));
            EXPECT_TRUE(image.width() > 100 && image.width() <= widest) << qPrintable(picture);
        }
    shown.sort();
    EXPECT_EQ(shown, folder.entryList({"*.png"}, QDir::Files, QDir::Name));
    EXPECT_GE(shown.size(), 8);
    qint64 bytes = 0;
    for (const QFileInfo& file : folder.entryInfoList({"*.png"}))
        bytes += file.size();
    EXPECT_LT(bytes, most);
}

TEST_F(Manual, has_a_title_over_each_page) {
    std::set<QString> titles;
    for (const auto& page : Book.Pages()) {
        EXPECT_TRUE(titles.insert(page.Title).second) << qPrintable(page.Title);
        EXPECT_TRUE(Html(page.File).contains("<h1>" + page.Title + "</h1>")) << qPrintable(page.File);
    }
}

TEST_F(Manual, is_written_without_a_slip_in_its_marks) {
    for (const auto& page : Book.Pages()) {
        QXmlStreamReader reader(Html(page.File));
        while (!reader.atEnd())
            reader.readNext();
        EXPECT_FALSE(reader.hasError()) << qPrintable(page.File) << ", line " << reader.lineNumber() << ": "
                                        << qPrintable(reader.errorString());
    }
}

// Black on white would not be read in a dark palette.
TEST_F(Manual, takes_its_colours_from_the_palette) {
    QString looks = Html("manual.css");
    for (const auto& page : Book.Pages())
        looks += Html(page.File);
    const QRegularExpression fixed(
        QStringLiteral("color:(?!\\s*palette)|#[0-9a-fA-F]{6}|bgcolor|<font|style="));
    EXPECT_FALSE(fixed.match(looks).hasMatch()) << qPrintable(fixed.match(looks).captured());
}

// The real window of an editor, its real Help button, and the real manual.
TEST(ManualInWindow, opens_from_the_help_button_of_a_modal_form) {
    qt::QtScreen screen;
    FakeProgram program(screen);
    auto form = std::make_shared<forms::FrParMec>(program.Program);
    bool usable = false;
    QTimer::singleShot(1, qApp, [&] {
        WindowDriver hands;
        hands.Click("FrParMec", "cmdHelp");
        QWidget* help = FindWindow("HelpWindow");
        ASSERT_NE(help, nullptr);
        const auto* page = help->findChild<qt::HelpView*>();
        EXPECT_EQ(page->source().fileName(), "mechanical.html");
        QTest::keyClick(help->windowHandle(), Qt::Key_F1);
        Settle();
        usable = page->source().fileName() == "index.html";
        FindWindow("FrParMec")->activateWindow();
        Settle();
        hands.PressKey("FrParMec", "F1");
        EXPECT_EQ(page->source().fileName(), "mechanical.html");
        form->Unload();
    });
    form->ShowModal();
    EXPECT_TRUE(usable);
    EXPECT_NE(FindWindow("HelpWindow"), nullptr);
}

} // namespace gfc::test
