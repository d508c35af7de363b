// The program from its start to its main window, without the splash's two seconds and without a person's time
// at the user id. The two seconds are cut short; with any argument they are waited for.
#include "Shown.h"
#include "app/Application.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/StartUp.h"
#include "forms/program/UserIDForm.h"
#include "forms/program/formInicio.h"
#include "qt/Icons.h"
#include "qt/QtScreen.h"
#include "record/BackgroundRecorder.h"
#include "record/ProjectRecorder.h"

#include <QApplication>
#include <QStyleFactory>
#include <QTimer>

#include <chrono>

namespace {

using namespace gfc;

class HastyScreen : public qt::QtScreen {
public:
    void Appear(ui::Form& form) override {
        // Its timer starts as its window begins to be made.
        if (auto* splash = dynamic_cast<forms::formInicio*>(&form); splash != nullptr) {
            splash_ = splash;
            begin_ = std::chrono::steady_clock::now();
        }
        QtScreen::Appear(form);
        if (dynamic_cast<forms::GFCPrincipal*>(&form) != nullptr)
            bench::EndOnceShown(waited_);
    }
    void RunModal(ui::Form& form) override {
        if (auto* user = dynamic_cast<forms::UserIDForm*>(&form))
            QTimer::singleShot(0, [user] {
                user->Text1.PersonEdits("4711");
                (void)user->Command1.PersonClicks();
            });
        QtScreen::RunModal(form);
    }

    void WaitForSplash() { waited_ = std::chrono::milliseconds(splash_->timerInicio.Interval()); }
    void CutTheWaitShort() {
        QTimer::singleShot(0, [this] {
            waited_ = std::chrono::steady_clock::now() - begin_;
            splash_->timerInicio.Tick();
        });
    }

private:
    forms::formInicio* splash_ = nullptr;
    std::chrono::steady_clock::time_point begin_;
    std::chrono::duration<double> waited_ = {};
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setWindowIcon(qt::IconNamed("App"));
    application.setQuitOnLastWindowClosed(false);
    platform::RealMachine machine;
    HastyScreen screen;
    const platform::Machine seams = machine.Seams();
    record::ProjectRecorder entries(seams.Clock, seams.TimeZone, seams.Paths.UserName());
    record::BackgroundRecorder recorder(entries);
    app::Application program(seams, screen, recorder);
    if (!program.Start(platform::LoadLibraryAt))
        return EXIT_FAILURE;
    argc > 1 ? screen.WaitForSplash() : screen.CutTheWaitShort();
    return screen.Run();
}
