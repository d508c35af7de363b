#include "tour/DeskTour.h"

#include "qt/support/KeyboardDriver.h"
#include "qt/support/WindowLooks.h"
#include "scenarios/Moves.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QTableView>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace gfc::tour {

namespace {

namespace moves = test::moves;
using test::Driver;
using test::KeyboardDriver;
using test::Story;

QWidget* WindowOf(const char* form) {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->isVisible() && window->objectName() == QLatin1String(form))
            return window;
    return nullptr;
}

template <class W>
W& WidgetOf(const char* form, const char* name) {
    return *test::FindIn<W>(WindowOf(form), name);
}

void Find(Story& story, const QString& text) {
    story
        .Do("look for a station",
            [text](Driver&) {
                WidgetOf<QWidget>("GFCPrincipal", "TreeGFC").setFocus();
                KeyboardDriver::Stroke(Qt::CTRL | Qt::Key_F);
                for (const QChar letter : text)
                    KeyboardDriver::Stroke(static_cast<Qt::Key>(letter.toUpper().unicode()), letter);
            })
        .Do("go to it", [](Driver&) { KeyboardDriver::Stroke(Qt::Key_Return); })
        .Do("and be done with it", [](Driver&) { KeyboardDriver::Stroke(Qt::Key_Escape); });
}

void Sort(Story& story, int column) {
    story.Do("sort the stations", [column](Driver&) {
        auto& heading = *WidgetOf<QTableView>("GFCPrincipal", "ListView1").horizontalHeader();
        const QPoint place(heading.sectionPosition(column) + 10, heading.height() / 2);
        QTest::mouseClick(heading.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    });
}

void TypeAndHover(Story& story) {
    story.Keys("FrParMec", "txtDiaOrif", "x")
        .Check([](Driver&) { EXPECT_TRUE(QToolTip::isVisible()) << "why the key is refused"; })
        .Do("take the pointer over a field",
            [](Driver&) {
                QToolTip::hideText();
                auto& field = WidgetOf<QWidget>("FrParMec", "txtDiaPipe");
                const QPoint middle = field.rect().center();
                QHelpEvent hover(QEvent::ToolTip, middle, field.mapToGlobal(middle));
                QApplication::sendEvent(&field, &hover);
            })
        .Check([](Driver&) { EXPECT_TRUE(QToolTip::isVisible()) << "what is expected"; })
        .Do("go on", [](Driver&) { QToolTip::hideText(); });
}

void SuggestAndFilter(Story& story) {
    const std::string form = "TagRuns";
    story.Click(form, "SuggestTags")
        .Select(form, "FilterKind", 2)
        .Select(form, "FilterKind", 0)
        .Type(form, "Filter", "201 pv")
        .Type(form, "Filter", "")
        .Click(form, "TakeSure")
        .Menu(form, "deshacer")
        .Menu(form, "rehacer")
        .Click(form, "Command5")
        .Click("Step", "Command1")
        .Click(form, "SuggestTags");
}

} // namespace

void TellDesk(Story& story, const QString& station) {
    Find(story, station.left(5));
    Sort(story, 2);
    const moves::Choices choices{.Standard = 0, .Source = 1, .Chromatograph = true};
    moves::OpenWizard(story, station.toStdString());
    moves::SelectRuns(story, {1, 2, 3});
    moves::WalkPages(story, choices);
    moves::PassUntil(story, choices, 1, 1);
    TypeAndHover(story);
    moves::AcceptEditor(story, "FrParMec");
    story.Click("Step", "Command1");
    SuggestAndFilter(story);
    moves::CancelWindow(story, "TagRuns");
    story.Menu("GFCPrincipal", "drafts")
        .Click("FrDrafts", "Command2")
        .Box("Drafts", "", ui::Icon::Question, ui::Answer::Yes)
        .Click("FrDrafts", "Command4");
    Sort(story, 2);
    Sort(story, 2);
}

} // namespace gfc::tour
