// What a plain Qt program with the same windows costs: a splash, a question for the user and the main window,
// each made from our own .ui file, shown one after the other, with Qt's models, delegates and headers and
// nothing behind them. With the argument "main" the last window alone. BENCH_STATIONS is the number of
// stations in it.
#include "Shown.h"
#include "qt/Designs.h"
#include "qt/Icons.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

using namespace gfc;

std::unique_ptr<QWidget> WindowOf(const char* form) {
    auto window = std::make_unique<QWidget>();
    const auto designs = qt::Designs();
    std::find_if(designs.begin(), designs.end(), [&](const auto& design) {
        return form == design.Form;
    })->SetUp(*window);
    return window;
}

void AddMenus(QWidget& window) {
    auto* bar = new QMenuBar(&window);
    window.layout()->setMenuBar(bar);
    QMenu* menu = bar->addMenu("&Menu");
    for (const char* text : {"Configuration  Wizard", "Configure", "Delete", "Exit"})
        menu->addAction(qt::IconNamed("MenuWizard"), text);
    menu->addMenu("Run")->addAction("Enable run");
    menu->addMenu("Copy to")->addAction("Configuration to another station");
    bar->addMenu("&Help")->addAction("Contents");
}

void AddStations(QWidget& window, int count) {
    auto* tree = window.findChild<QTreeView*>("TreeGFC");
    auto* table = window.findChild<QTableView*>("ListView1");
    auto* nodes = new QStandardItemModel(tree);
    auto* rows = new QStandardItemModel(0, 3, table);
    rows->setHorizontalHeaderLabels({"Stations", "Status", "File"});
    auto* root = new QStandardItem(qt::IconNamed("Principal"), "All Stations");
    nodes->appendRow(root);
    for (int i = 0; i < count; ++i) {
        const QString name = "Station_" + QString::number(i);
        root->appendRow(new QStandardItem(qt::IconNamed("StationNoConfig"), name));
        rows->appendRow({new QStandardItem(qt::IconNamed("NoConfig"), name),
                         new QStandardItem("Not configured"), new QStandardItem("")});
    }
    tree->setModel(nodes);
    tree->expandAll();
    table->setModel(rows);
}

// As a person sees it first: one list, no tabs, the hidden lists out of the way.
std::unique_ptr<QWidget> MainWindow() {
    auto window = WindowOf("GFCPrincipal");
    AddMenus(*window);
    AddStations(*window, qEnvironmentVariableIntValue("BENCH_STATIONS"));
    for (const char* hidden : {"SSTab1", "SSTab2", "ListView2", "ListView3", "Combo1", "Combo2", "Combo3"})
        window->findChild<QWidget*>(hidden)->hide();
    window->findChild<QStatusBar*>("StatusBar1")->showMessage("Ready");
    return window;
}

void ShowInPassing(const char* form) {
    const auto window = WindowOf(form);
    if (auto* picture = window->findChild<QLabel*>("picInicio"))
        picture->setPixmap(qt::IconNamed("picInicio").pixmap(480, 260));
    window->show();
    QApplication::processEvents();
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setWindowIcon(qt::IconNamed("App"));
    application.setQuitOnLastWindowClosed(false);
    if (argc < 2 || std::strcmp(argv[1], "main") != 0)
        for (const char* form : {"formInicio", "UserIDForm"})
            ShowInPassing(form);
    const auto window = MainWindow();
    window->show();
    gfc::bench::EndOnceShown();
    return QApplication::exec();
}
