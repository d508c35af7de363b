#include "qt/FormWindow.h"
#include "qt/SystemLook.h"
#include "qt/support/AllForms.h"
#include "qt/support/Offscreen.h"
#include "support/World.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QProcess>
#include <QProcessEnvironment>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// Shows each form as it stands before it is loaded, bound to its design, and writes a picture of it. A
// picture at twice the size needs a program of its own, since the scale holds for a whole run.
namespace {

using gfc::test::FormEntry;

constexpr const char* scaleVariable = "QT_SCALE_FACTOR";

std::vector<FormEntry> Wanted(const QStringList& names) {
    auto forms = gfc::test::AllForms();
    if (!names.isEmpty())
        std::erase_if(forms, [&names](const FormEntry& form) {
            return !names.contains(QString::fromStdString(form.Name));
        });
    return forms;
}

bool Picture(const FormEntry& entry, gfc::test::World& world, const QString& file) {
    const auto form = entry.Make(world.Program);
    const auto window = std::make_unique<gfc::qt::FormWindow>(*form);
    window->ShowAs(Qt::NonModal, nullptr);
    QApplication::processEvents();
    const QSize size = window->size();
    const bool written = window->grab().save(file);
    std::printf("%s %d x %d%s\n", qPrintable(file), size.width(), size.height(),
                written ? "" : " NOT WRITTEN");
    return written;
}

bool PictureAll(const QString& folder, const QStringList& names, const char* ending) {
    gfc::test::World world;
    bool well = true;
    for (const FormEntry& form : Wanted(names))
        well = Picture(form, world, folder + "/" + QString::fromStdString(form.Name) + ending) && well;
    return well;
}

bool PictureAtTwice(const QStringList& arguments) {
    QProcess twice;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(scaleVariable, "2");
    environment.remove("QT_QPA_PLATFORM");
    twice.setProcessEnvironment(environment);
    twice.setProcessChannelMode(QProcess::ForwardedChannels);
    twice.start(QCoreApplication::applicationFilePath(), arguments);
    return twice.waitForFinished(-1) && twice.exitCode() == 0;
}

} // namespace

int main(int argc, char* argv[]) {
    const bool twice = qEnvironmentVariable(scaleVariable) == "2";
    gfc::test::UseOffscreenPlatform(twice ? 2 : 1);
    QApplication application(argc, argv);
    gfc::qt::TakeOwnLook();
    QStringList arguments = QApplication::arguments().mid(1);
    const bool dark = arguments.removeAll(QStringLiteral("--dark")) > 0;
    if (arguments.isEmpty()) {
        std::fputs("usage: form_pictures [--dark] FOLDER [FORM ...]\n", stderr);
        return 2;
    }
    if (dark)
        gfc::test::UseDarkPalette();
    QDir().mkpath(arguments.first());
    std::fflush(stdout);
    const bool well = PictureAll(arguments.first(), arguments.mid(1), twice ? "@2x.png" : ".png");
    std::fflush(stdout);
    return well && (twice || PictureAtTwice(QApplication::arguments().mid(1))) ? 0 : 1;
}
