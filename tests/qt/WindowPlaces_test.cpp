#include "forms/main_window/GFCPrincipal.h"
#include "qt/WindowFixture.h"
#include "qt/WindowPlaces.h"
#include "qt/render/KeptProperties.h"
#include "qt/support/RandomSequence.h"
#include "scenarios/Moves.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QFile>
#include <QTableView>

#include <functional>
#include <optional>

namespace gfc::test {
namespace {

// One start of the program, with what a person does in the window of the probe.
void StartOfProbe(const QString& file, const std::function<void(QWidget& window)>& act) {
    const qt::WindowPlaces places(file);
    qt::QtScreen screen;
    screen.AddDesign({"Probe", SetUpProbe});
    auto form = std::make_shared<ProbeForm>(screen);
    form->Show();
    Settle();
    act(*screen.WindowOf(*form));
    Settle();
    form->Unload();
    Settle();
}

// The window as it shows, and as a person makes it.
QSize SizeOfProbe(const QString& file, std::optional<QSize> made = std::nullopt) {
    QSize shown;
    StartOfProbe(file, [&](QWidget& window) {
        shown = window.size();
        if (made)
            window.resize(*made);
    });
    return shown;
}

TEST(WindowPlaces, come_back_at_the_next_start) {
    const TempFolder folder;
    const QString file = QString::fromStdString(folder.Path("windows.ini"));
    const QSize designed = SizeOfProbe(file);
    const QSize larger = designed + QSize(60, 40);
    EXPECT_EQ(SizeOfProbe(file, larger), designed);
    EXPECT_EQ(SizeOfProbe(file), larger);
}

TEST(WindowPlaces, are_those_of_the_design_where_the_file_holds_nonsense_or_cannot_be_written) {
    const TempFolder folder;
    const QString file = QString::fromStdString(folder.Path("windows.ini"));
    const QSize designed = SizeOfProbe(file);
    QFile nonsense(file);
    ASSERT_TRUE(nonsense.open(QIODevice::WriteOnly));
    nonsense.write("[Probe]\nsize=@Size(-1 x)\nlayoutSplitter=\"\\xff\\0\"\nmaximised=perhaps\n[");
    nonsense.close();
    EXPECT_EQ(SizeOfProbe(file), designed);
    const QString nowhere = file + "/below/a/file.ini";
    (void)SizeOfProbe(nowhere, designed + QSize(60, 40));
    EXPECT_EQ(SizeOfProbe(nowhere), designed);
}

// One start of the main window, left with that node chosen; gives the one that was chosen at its beginning.
std::string NodeAtStart(const QString& file, const std::string& chosen) {
    const qt::WindowPlaces places(file);
    QuickScreen screen;
    FakeProgram program(screen);
    moves::ThreeStations(program);
    program.OpenProject();
    auto& form = program.Program.Forms.Get<forms::GFCPrincipal>();
    form.Show();
    Settle();
    const int node = form.TreeGFC.SelectedNode();
    const std::string first = node == 0 ? "" : form.TreeGFC.FullPath(node);
    EXPECT_EQ(program.Session.SelectedNodeText, node == 0 ? "" : form.TreeGFC.At(node).Text);
    (void)form.TreeGFC.PersonClicks(form.TreeGFC.FindPath(chosen));
    form.Unload();
    Settle();
    return first;
}

TEST(WindowPlaces, choose_the_last_node_at_the_next_start_as_a_click_does) {
    const TempFolder folder;
    const QString file = QString::fromStdString(folder.Path("windows.ini"));
    EXPECT_EQ(NodeAtStart(file, "All Stations\\South"), "");
    EXPECT_EQ(NodeAtStart(file, "All Stations\\North"), "All Stations\\South");
    EXPECT_EQ(NodeAtStart(file, "All Stations\\North"), "All Stations\\North");
}

// The table of the probe with a column that a person has widened; gives the width at the beginning.
int WidthOfFirstColumn(const QString& file, std::optional<int> made) {
    int width = 0;
    StartOfProbe(file, [&](QWidget& window) {
        auto& table = *window.findChild<QTableView*>("rows");
        width = table.columnWidth(0);
        if (made) {
            const QString heading = table.model()->headerData(0, Qt::Horizontal).toString();
            table.setProperty(qt::WidthsOfPerson, QVariantMap{{heading, *made}});
        }
    });
    return width;
}

TEST(WindowPlaces, keep_the_columns_that_a_person_made) {
    const TempFolder folder;
    const QString file = QString::fromStdString(folder.Path("windows.ini"));
    const int designed = WidthOfFirstColumn(file, std::nullopt);
    EXPECT_EQ(WidthOfFirstColumn(file, designed + 37), designed);
    EXPECT_EQ(WidthOfFirstColumn(file, std::nullopt), designed + 37);
    EXPECT_EQ(WidthOfFirstColumn(file, 2), designed + 37) << "no person makes a column of two pixels";
    EXPECT_EQ(WidthOfFirstColumn(file, std::nullopt), designed);
}

} // namespace
} // namespace gfc::test
