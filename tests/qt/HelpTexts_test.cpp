#include "binding/Catalogue.h"
#include "forms/main_window/GFCPrincipal.h"
#include "project/Requirements.h"
#include "qt/HelpWindow.h"
#include "qt/Texts.h"
#include "qt/support/AllForms.h"
#include "qt/support/ManualPages.h"
#include "qt/support/ProgramTexts.h"
#include "support/World.h"
#include "ui/ListView.h"
#include "ui/TabbedPane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace gfc::test {

// What the manual quotes is what the program says.
class ManualTexts : public ::testing::Test {
protected:
    qt::HelpBook Book{qt::ManualFolder()};
};

class ManualCaptions : public ManualTexts {
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

TEST_F(ManualTexts, quotes_messages_as_the_program_has_them) {
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

TEST_F(ManualTexts, treats_each_message) {
    const QString text = Book.PageIn("messages.html")->Text.simplified();
    const QStringList messages = MessagesOfSources();
    EXPECT_GT(messages.size(), 40);
    for (const QString& message : messages)
        EXPECT_TRUE(message.size() < 10 || text.contains(message)) << "untreated: " << qPrintable(message);
}

TEST_F(ManualTexts, treats_the_messages_with_a_help_button_where_that_leads) {
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

TEST_F(ManualTexts, names_every_variable_with_its_class_on_the_page_of_its_tree) {
    QString text;
    for (const int number : {5000, 6000, 6100, 6200, 7000, 7100, 7600})
        text += Book.PageOf(number)->Text;
    for (const auto& row : binding::Catalogue())
        EXPECT_TRUE(text.contains(qt::ToQt(row.Captions.Tree)) || row.Captions.Tree == "Atmospheric Pressure")
            << row.Captions.Tree;
}

} // namespace gfc::test
