#include "binding/Catalogue.h"
#include "forms/editors/FrParMec.h"
#include "forms/main_window/GFCPrincipal.h"
#include "project/Requirements.h"
#include "qt/HelpView.h"
#include "qt/HelpWindow.h"
#include "qt/QtScreen.h"
#include "qt/Texts.h"
#include "qt/support/AllForms.h"
#include "qt/support/ProgramTexts.h"
#include "qt/support/WindowDriver.h"
#include "qt/support/WindowLooks.h"
#include "support/World.h"
#include "ui/ListView.h"
#include "ui/TabbedPane.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QWindow>
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
};

QString Html(const QString& file) {
    QFile page(QDir(qt::ManualFolder()).filePath(file));
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QString PlainText(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().simplified();
}

QStringList Captured(const QString& html, const QString& pattern) {
    const QRegularExpression wanted(pattern, QRegularExpression::DotMatchesEverythingOption);
    QStringList found;
    for (auto at = wanted.globalMatch(html); at.hasNext();)
        found << at.next().captured(1);
    return found;
}

// What the page marks as a caption or as a message, as it is read.
QStringList Marked(const QString& html, const QString& element, const QString& mark) {
    QStringList texts = Captured(html, QStringLiteral("<%1 class=\"%2\">(.*?)</%1>").arg(element, mark));
    for (QString& text : texts)
        text = PlainText(text);
    return texts;
}

QStringList FormsOf(const QString& html) {
    return Captured(html, QStringLiteral("name=\"forms\" content=\"([^\"]*)\""))
        .value(0)
        .split(QLatin1Char(' '));
}

} // namespace

class Manual : public ::testing::Test {
protected:
    qt::HelpBook Book{qt::ManualFolder()};

    [[nodiscard]] bool Has(const std::vector<int>& numbers) const {
        return std::all_of(numbers.begin(), numbers.end(), [this](int number) { return Leads(number); });
    }
    [[nodiscard]] bool Leads(int number) const {
        return std::any_of(Book.Pages().begin(), Book.Pages().end(), [number](const qt::HelpPage& page) {
            return std::count(page.Contexts.begin(), page.Contexts.end(), number) == 1;
        });
    }
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

TEST_F(Manual, has_a_title_over_each_page) {
    std::set<QString> titles;
    for (const auto& page : Book.Pages()) {
        EXPECT_TRUE(titles.insert(page.Title).second) << qPrintable(page.Title);
        EXPECT_TRUE(Html(page.File).contains("<h1>" + page.Title + "</h1>")) << qPrintable(page.File);
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

class ManualCaptions : public Manual {
protected:
    World TheWorld;
    std::map<QString, std::set<QString>> Captions;

    ManualCaptions() {
        TheWorld.AddStation("North", {});
        TheWorld.OpenProject();
        for (const FormEntry& entry : AllForms())
            CaptionsOf(*entry.Make(TheWorld.Program));
        auto& window = TheWorld.Program.Forms.Get<forms::GFCPrincipal>();
        window.BuildTree();
        CaptionsOf(window);
        for (const auto& row : binding::Catalogue())
            for (const auto text : {row.Captions.Tree, row.Captions.Summary})
                Add("TagRuns", std::string(text));
    }
    void Add(const std::string& form, const std::string& caption) {
        Captions[qt::ToQt(form)].insert(qt::WithoutMnemonics(qt::ToQt(caption)).simplified());
    }
    void CaptionsOf(ui::Form& form) {
        for (const ui::Control* control : form.Controls()) {
            Add(form.Name(), control->Caption());
            if (const auto* pane = dynamic_cast<const ui::TabbedPane*>(control); pane != nullptr)
                for (int tab = 0; tab < pane->Tabs(); ++tab)
                    Add(form.Name(), pane->TabCaption(tab));
            if (const auto* list = dynamic_cast<const ui::ListView*>(control); list != nullptr)
                for (const auto& column : list->Columns())
                    Add(form.Name(), column.Heading);
        }
    }
    [[nodiscard]] bool Knows(const QStringList& forms, const QString& caption) {
        return std::any_of(forms.begin(), forms.end(),
                           [&](const QString& form) { return Captions[form].contains(caption); });
    }
};

TEST_F(ManualCaptions, are_those_of_the_forms_that_the_page_is_about) {
    int captions = 0;
    for (const auto& page : Book.Pages()) {
        const QString html = Html(page.File);
        for (const QString& caption : Marked(html, "b", "caption")) {
            EXPECT_TRUE(Knows(FormsOf(html), caption))
                << qPrintable(page.File) << " names '" << qPrintable(caption) << "'";
            ++captions;
        }
    }
    EXPECT_GT(captions, 200);
}

TEST_F(Manual, quotes_messages_as_the_program_has_them) {
    const QString texts =
        TextsOfSources().join(QLatin1Char('\n')) + "\nThe range should be: [0-100]%" +
        "\nThe range should be: [0-1]%" +
        "\nError: Can't copy gas composition, no source Run selected. Please select a Run to copy from." +
        "\nError: Can't copy gas properties, no source Run selected. Please select a Run to copy from.";
    for (const auto& page : Book.Pages())
        for (const QString& message : Marked(Html(page.File), "span", "message"))
            EXPECT_TRUE(texts.contains(message))
                << qPrintable(page.File) << " quotes '" << qPrintable(message) << "'";
}

TEST_F(Manual, treats_each_message) {
    const QString text = Book.PageIn("messages.html")->Text.simplified();
    const QStringList messages = MessagesOfSources();
    EXPECT_GT(messages.size(), 40);
    for (const QString& message : messages)
        EXPECT_TRUE(message.size() < 10 || text.contains(message)) << "untreated: " << qPrintable(message);
}

TEST_F(Manual, treats_the_messages_with_a_help_button_where_that_leads) {
    const QString text = Book.PageOf(7300)->Text.simplified();
    for (const auto kind : {project::ShortageKind::AGA3Family, project::ShortageKind::AGA7}) {
        EXPECT_TRUE(text.contains(qt::ToQt(project::IOShortageTitle(kind))));
        const QString lines = qt::LinesOf(project::IOShortageText(kind, 1));
        EXPECT_TRUE(text.contains(lines.section(QLatin1Char('\n'), 0, 0)));
    }
    for (int runs = 1; runs <= 4; ++runs)
        EXPECT_TRUE(text.contains(qt::ToQt(project::MaximumRunsText(runs)))) << runs;
    EXPECT_TRUE(text.contains("Missing Tags..."));
}

TEST_F(Manual, names_every_variable_with_its_class_on_the_page_of_its_tree) {
    QString text;
    for (const int number : helpNumbers.at("TagRuns"))
        text += Book.PageOf(number)->Text;
    for (const auto& row : binding::Catalogue())
        EXPECT_TRUE(text.contains(qt::ToQt(row.Captions.Tree)) || row.Captions.Tree == "Atmospheric Pressure")
            << row.Captions.Tree;
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
