#include "qt/SystemLook.h"

#include "qt/OutlinedStyle.h"

#include <QApplication>
#include <QSettings>
#include <QStyleFactory>

#include <memory>

namespace gfc::qt {
namespace {

#ifdef _WIN32
// Where Windows keeps whether programs are to be dark; versions without that setting have light ones alone.
bool IsDark() {
    const QSettings chosen(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion"
                                          "\\Themes\\Personalize"),
                           QSettings::NativeFormat);
    return chosen.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
}
#endif

} // namespace

// Unasked, the toolkit darkens the frames alone.
void PrepareSystemLook() {
#ifdef _WIN32
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", IsDark() ? "windows:darkmode=2" : "windows:darkmode=0");
#endif
}

// The application takes the style over.
void TakeOwnLook() {
    auto* plain = QStyleFactory::create(QStringLiteral("Fusion"));
    QApplication::setStyle(std::make_unique<OutlinedStyle>(plain).release());
}

// Windows' own style as the toolkit has it is light; the toolkit's own one follows the dark setting.
void TakeSystemLook() {
#ifdef _WIN32
    if (!IsDark())
        return;
#endif
    TakeOwnLook();
}

} // namespace gfc::qt
