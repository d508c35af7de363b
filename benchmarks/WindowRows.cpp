#include "Contest.h"
#include "Plant.h"
#include "binding/Catalogue.h"
#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"
#include "forms/main_window/GFCPrincipal.h"
#include "qt/QtScreen.h"

#include <QApplication>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

// The windows themselves, in memory: every figure ends when nothing is left to be painted.
namespace gfc::bench {

namespace {

constexpr std::size_t FreeTags = 50'000;
constexpr int Stations = 1000;
constexpr int DragFrames = 60;

// Boxes are answered before they are shown.
class AnsweringScreen : public qt::QtScreen {
public:
    ui::Answer Ask(const ui::Box&) override { return ui::Answer::Ok; }
};

void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

double SecondsUntilPainted(const std::function<void()>& act) {
    return SecondsOf([&act] {
        act();
        Settle();
    });
}

// TagRuns over a station of which nothing is bound yet, closed again at the end.
class TagWindow {
public:
    TagWindow(binding::BindingStage stage, int scale) : plant_(screen_, 1) {
        auto& session = plant_.Program().Session;
        session.Station = FullStation(1);
        session.Station.Runs.PrepareWholeStation(1);
        session.EditMode = forms::EditMode::Wizard;
        session.BindingStage = stage;
        session.Inventory.AvailFloat = FloatTags(FreeTags * static_cast<std::size_t>(scale));
        session.Inventory.VirtFX = session.Inventory.AvailFloat;
        const auto others = StationInventory(1000);
        session.Inventory.AvailDigital = others.PhysX;
        session.Inventory.AvailAnalog = others.PhysAY;
    }
    ~TagWindow() {
        plant_.Program().Forms.Unload<forms::TagRuns>();
        Settle();
    }
    TagWindow(const TagWindow&) = delete;
    TagWindow& operator=(const TagWindow&) = delete;

    void Open() {
        form_ = &plant_.Program().Forms.Get<forms::TagRuns>();
        form_->Show();
    }
    [[nodiscard]] forms::TagRuns& Form() { return *form_; }

private:
    AnsweringScreen screen_;
    Plant plant_;
    forms::TagRuns* form_ = nullptr;
};

void OpenTagRuns(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::RunInputs, scale);
    for (auto _ : state)
        TakeSeconds(state, SecondsUntilPainted([&] { window.Open(); }));
    if (window.Form().ListViewRuns.Count() != static_cast<int>(FreeTags) * scale)
        state.SkipWithError("the tags are not offered");
}

void FillModel(QStandardItemModel& model, const project::TagList& tags) {
    int number = 0;
    for (const project::Tag& tag : tags)
        model.appendRow({new QStandardItem(QString::number(++number)),
                         new QStandardItem(QString::fromStdString(tag.TagName)),
                         new QStandardItem(QString::fromStdString(tag.RegType)),
                         new QStandardItem(QString::number(tag.RegAddr))});
}

void OpenBareList(benchmark::State& state, int scale) {
    const auto tags = FloatTags(FreeTags * static_cast<std::size_t>(scale));
    QWidget window;
    QStandardItemModel model;
    for (auto _ : state)
        TakeSeconds(state, SecondsUntilPainted([&] {
                        auto* view = new QTableView;
                        (new QVBoxLayout(&window))->addWidget(view);
                        FillModel(model, tags);
                        view->setModel(&model);
                        window.show();
                    }));
}

// Of what a person does first, on the first variable and the first tag.
void Assign(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::RunInputs, scale);
    window.Open();
    Settle();
    auto& form = window.Form();
    (void)form.TreeAGA.PersonClicks(binding::node::Variable(0));
    for (auto _ : state)
        TakeSeconds(state, SecondsUntilPainted([&] { (void)form.Command1.PersonClicks(); }));
    if (form.ListViewRuns.Count() != static_cast<int>(FreeTags) * scale - 1)
        state.SkipWithError("nothing was assigned");
}

void Undo(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::RunInputs, scale);
    window.Open();
    auto& form = window.Form();
    (void)form.TreeAGA.PersonClicks(binding::node::Variable(0));
    (void)form.Command1.PersonClicks();
    Settle();
    for (auto _ : state)
        TakeSeconds(state, SecondsUntilPainted([&] { (void)form.Command4.PersonClicks(); }));
    if (form.ListViewRuns.Count() != static_cast<int>(FreeTags) * scale)
        state.SkipWithError("nothing was given back");
}

// The 22 variables of a chromatograph.
void AutoAssign(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::GasInputs, scale);
    window.Open();
    Settle();
    auto& form = window.Form();
    for (auto _ : state)
        TakeSeconds(state, SecondsUntilPainted([&] { (void)form.Command6.PersonClicks(); }));
    if (form.ListViewRuns.Count() != static_cast<int>(FreeTags) * scale - 21)
        state.SkipWithError("the tags were not assigned");
}

// What one key costs at most, the first one too, behind which nothing is known of the rows yet.
void Filter(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::RunInputs, scale);
    window.Open();
    Settle();
    auto& form = window.Form();
    double slowest = 0;
    for (auto _ : state) {
        std::string typed;
        for (const char key : std::string_view("pv 1 gas 9")) {
            typed += key;
            slowest = std::max(slowest, SecondsUntilPainted([&] { form.Filter.PersonEdits(typed); }));
        }
        TakeSeconds(state, slowest);
    }
    if (form.ListViewRuns.ShownCount() == 0 || form.ListViewRuns.ShowsAllRows())
        state.SkipWithError("the list was not filtered");
}

// Of the list of free tags in the window that is shown: those of earlier rounds go when the loop ends.
QScrollBar* ScrollBar() {
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (const auto* list = window->findChild<QTableView*>(QStringLiteral("ListViewRuns"));
            list != nullptr && window->isVisible())
            return list->verticalScrollBar();
    return nullptr;
}

void ScrollPage(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::RunInputs, scale);
    window.Open();
    Settle();
    QScrollBar* const bar = ScrollBar();
    for (auto _ : state)
        TakeSeconds(state,
                    SecondsUntilPainted([&] { bar->triggerAction(QAbstractSlider::SliderPageStepAdd); }));
    if (bar->value() != bar->pageStep())
        state.SkipWithError("the list was not scrolled");
}

// The handle is pulled down in equal steps, each of which is painted.
void ScrollDrag(benchmark::State& state, int scale) {
    TagWindow window(binding::BindingStage::RunInputs, scale);
    window.Open();
    Settle();
    QScrollBar* const bar = ScrollBar();
    double slowest = 0;
    for (auto _ : state) {
        bar->setSliderDown(true);
        for (int frame = 1; frame <= DragFrames; ++frame)
            slowest = std::max(slowest, SecondsUntilPainted([&] {
                                   bar->setSliderPosition(static_cast<int>(
                                       static_cast<long long>(bar->maximum()) * frame / DragFrames));
                               }));
        bar->setSliderDown(false);
        TakeSeconds(state, slowest);
    }
    if (bar->maximum() == 0 || bar->value() != bar->maximum())
        state.SkipWithError("the list was not scrolled");
}

void RebuildTree(benchmark::State& state, int scale) {
    AnsweringScreen screen;
    Plant plant(screen, Stations * scale);
    auto& window = plant.Program().Forms.Get<forms::GFCPrincipal>();
    screen.Appear(window);
    window.RebuildAfterCommand();
    Settle();
    for (auto _ : state)
        TakeSeconds(state, SecondsUntilPainted([&] { window.RebuildAfterCommand(); }));
    screen.Disappear(window);
    screen.Discard(window);
}

} // namespace

void ContestWindows() {
    Contest("open_tags", Ours, OpenTagRuns, Pace::Once);
    Contest("open_tags", Floor, OpenBareList, Pace::Once);
    Contest("assign", Ours, Assign, Pace::Once);
    Contest("undo", Ours, Undo, Pace::Once);
    Contest("auto_assign", Ours, AutoAssign, Pace::Once);
    Contest("filter", Ours, Filter, Pace::Once);
    Contest("scroll_page", Ours, ScrollPage, Pace::Once);
    Contest("scroll_drag", Ours, ScrollDrag, Pace::Once);
    Contest("tree_window", Ours, RebuildTree, Pace::Once);
}

} // namespace gfc::bench
