// The program from its start to its main window, without the splash's two seconds and without a person's time
// at the user id.
#include "Shown.h"
#include "app/Application.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/UserIDForm.h"
#include "forms/program/formInicio.h"
#include "qt/Icons.h"
#include "qt/QtScreen.h"

#include <QApplication>
#include <QStyleFactory>

namespace {

using namespace gfc;

// Does at once what is waited for.
class HastyScreen : public qt::QtScreen {
public:
    void Appear(ui::Form& form) override {
        QtScreen::Appear(form);
        if (auto* splash = dynamic_cast<forms::formInicio*>(&form))
            QTimer::singleShot(0, [splash] { splash->timerInicio.Tick(); });
        else if (dynamic_cast<forms::GFCPrincipal*>(&form) != nullptr)
            bench::EndOnceShown();
    }
    void RunModal(ui::Form& form) override {
        if (auto* user = dynamic_cast<forms::UserIDForm*>(&form))
            QTimer::singleShot(0, [user] {
                user->Text1.PersonEdits("4711");
                (void)user->Command1.PersonClicks();
            });
        QtScreen::RunModal(form);
    }
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setWindowIcon(qt::IconNamed("App"));
    application.setQuitOnLastWindowClosed(false);
    platform::RealMachine machine;
    HastyScreen screen;
    app::Application program(machine.Seams(), screen);
    return program.Start(platform::LoadLibraryAt) ? screen.Run() : EXIT_FAILURE;
}
