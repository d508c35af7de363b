#include "app/Application.h"
#include "qt/Icons.h"
#include "qt/QtScreen.h"
#include "qt/SessionEnd.h"
#include "qt/SystemLook.h"
#include "qt/WindowPlaces.h"
#include "record/BackgroundRecorder.h"
#include "record/ProjectRecorder.h"
#include "report/pdf/Pdf.h"

#include <QApplication>

#include <cstdlib>

namespace {

void SetUp(QApplication& application) {
    gfc::qt::TakeSystemLook();
    QApplication::setOrganizationName(QStringLiteral("Orm"));
    QApplication::setApplicationName(QStringLiteral("gfc-configurator"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setWindowIcon(gfc::qt::IconNamed("App"));
    // The screen says when the program is over: between two windows of a chain there is none for a moment.
    application.setQuitOnLastWindowClosed(false);
}

} // namespace

int main(int argc, char* argv[]) {
    gfc::qt::PrepareSystemLook();
    QApplication application(argc, argv);
    SetUp(application);
    const gfc::qt::SessionEnd sessionEnd(
        QStringLiteral("A window is still open; what was entered there and is not stored would be lost."));
    const gfc::qt::WindowPlaces places(gfc::qt::WindowPlaces::FileOfUser());
    gfc::platform::RealMachine machine;
    const gfc::platform::Machine seams = machine.Seams();
    gfc::qt::QtScreen screen([&seams](const std::string& path, gfc::ui::WindowState state) {
        using gfc::platform::ViewerWindow;
        return seams.Launcher.OpenTextFile(
            path, state == gfc::ui::WindowState::Maximised ? ViewerWindow::Maximised : ViewerWindow::Normal);
    });
    screen.WatchViewer([&seams] { return seams.Launcher.ViewerFailed(); });
    gfc::record::ProjectRecorder entries(seams.Clock, seams.TimeZone, seams.Paths.UserName());
    gfc::record::BackgroundRecorder recorder(entries);
    gfc::report::ReportFileWriter reports(seams, recorder, "gfc-configurator " GFC_VERSION,
                                          gfc::report::MakePdf);
    gfc::app::Application program(seams, screen, recorder, &reports);
    if (!program.Start(gfc::platform::LoadLibraryAt))
        return EXIT_FAILURE;
    return screen.Run();
}
