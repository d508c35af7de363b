#include "qt/WindowFixture.h"
#include "qt/WindowPlaces.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QFile>

#include <optional>

namespace gfc::test {
namespace {

// One start of the program: the window as it shows, and as a person makes it.
QSize SizeOfProbe(const QString& file, std::optional<QSize> made = std::nullopt) {
    const qt::WindowPlaces places(file);
    qt::QtScreen screen;
    screen.AddDesign({"Probe", SetUpProbe});
    auto form = std::make_shared<ProbeForm>(screen);
    form->Show();
    Settle();
    QWidget& window = *screen.WindowOf(*form);
    const QSize shown = window.size();
    if (made)
        window.resize(*made);
    Settle();
    form->Unload();
    Settle();
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

} // namespace
} // namespace gfc::test
