#include "config/Units.h"
#include "forms/configurador/Configurador.h"
#include "forms/wizard/WizardFC.h"
#include "qt/support/RandomSequence.h"
#include "qt/support/WindowDriver.h"
#include "qt/support/WindowLooks.h"
#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"
#include "support/World.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QTimer>
#include <gtest/gtest.h>

#include <set>
#include <string>

// The drop-down lists of the wizard and of the configurator: what they show is what is chosen, and what hangs
// on a choice follows it, whatever is pressed, dragged, turned or typed on the way.
namespace gfc::test {

namespace {

template <class FormType>
struct Captions;
template <>
struct Captions<forms::WizardFC> {
    static constexpr const char* Pane = "wizard";
    static constexpr int Pages = 4;
};
template <>
struct Captions<forms::Configurador> {
    static constexpr const char* Pane = "SSTab2";
    static constexpr int Pages = 4;
};

class HighlightOfChoices : public ::testing::Test {
protected:
    HighlightOfChoices() {
        moves::ThreeStations(Program);
        Program.OpenProject();
        Program.OpenStation("North");
        Program.ActivateRuns({1});
        Program.Session.SelectedPath = moves::NorthNode;
        Program.Session.SelectedNodeText = "North";
    }
    // A key may come upon them, and what they open waits for somebody.
    static void Still(std::initializer_list<ui::CommandButton*> buttons) {
        for (ui::CommandButton* button : buttons)
            button->OnClick = {};
    }
    // The units: chosen by hand, by a standard, or put back; on the screen, in the session and in the
    // captions.
    template <class FormType>
    [[nodiscard]] ::testing::AssertionResult UnitsAreOneOnAllSides(FormType& form) {
        const std::string units = form.general.CombUnits.Text();
        const auto* caption = FindIn<QLabel>(FindWindow(form.Name()), "unitStandardP");
        const std::string wanted(config::DefaultsOf(units).PressureCaption);
        if (Program.Session.Station.SystemUnits == units && caption->text().toStdString() == wanted)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << units << " is shown, " << Program.Session.Station.SystemUnits
                                             << " in force, pressures in " << caption->text().toStdString();
    }
    template <class FormType>
    void Play(FormType& form, int events) {
        const auto alive = form.KeepAlive();
        form.Show();
        Settle();
        QWidget& window = *FindWindow(form.Name());
        Sequence steps(form, window, Seed());
        auto* pane = FindIn<QTabWidget>(&window, Captions<FormType>::Pane);
        std::set<std::string> seen;
        steps.Between = [&] {
            if (steps.Hands.OneIn(2))
                pane->setCurrentIndex(steps.Hands.OneIn(3) ? steps.Hands.Draw(Captions<FormType>::Pages) : 0);
            Settle();
            return std::string("another page, all is worked off");
        };
        steps.Also = [&] {
            seen.insert(form.general.CombStandard.Text() + form.general.cbSourceGas.Text() +
                        form.general.CombUnits.Text());
            return UnitsAreOneOnAllSides(form);
        };
        // The menu of a field that the pointer comes upon.
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, [] {
            if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()); menu != nullptr)
                menu->close();
        });
        closing.start(0);
        EXPECT_EQ(steps.Run(events), events);
        EXPECT_GT(seen.size(), 10U);
    }

    QuickScreen Screen;
    FakeProgram Program{Screen};
};

TEST_F(HighlightOfChoices, of_the_wizard_is_what_is_in_force) {
    constexpr int events = 2000;
    auto& form = Program.Program.Forms.Get<forms::WizardFC>();
    Still({&form.Command1, &form.Command2, &form.atras, &form.siguiente, &form.finalizar, &form.cancelar});
    Play(form, events);
    TellOf("the wizard's lists", events);
}

TEST_F(HighlightOfChoices, of_the_configurator_is_what_is_in_force) {
    constexpr int events = 2000;
    auto& form = Program.Program.Forms.Get<forms::Configurador>();
    form.ConfigAll.OnClick();
    Still({&form.Command1, &form.btExtAtmChange});
    Play(form, events);
    TellOf("the configurator's lists", events);
}

} // namespace

} // namespace gfc::test
