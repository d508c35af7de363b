#pragma once

#include "workshop/store/Failure.h"
#include "workshop/text/Paths.h"

#include <QDateTime>
#include <QMessageBox>
#include <QString>

#include <filesystem>
#include <string>

namespace gfc::workshop {

[[nodiscard]] inline QString Shown(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
[[nodiscard]] inline QString Shown(const std::filesystem::path& path) {
    return Shown(PathText(path));
}
[[nodiscard]] inline std::string Typed(const QString& text) {
    return text.toStdString();
}

/// What was written for the command line, in the words of the window: each switch by what it is called there.
[[nodiscard]] QString InWindow(const std::string& text);

/// When that file was changed last, to the millisecond; no valid time where there is none.
[[nodiscard]] QDateTime ChangedAt(const std::filesystem::path& file);

/// Does it, and tells in a box what refused it; false then.
template <typename Work>
bool Attempt(QWidget* parent, Work work) {
    try {
        work();
        return true;
    } catch (const std::exception& failure) {
        QMessageBox::warning(parent, QMessageBox::tr("I/O Workshop"), InWindow(failure.what()));
        return false;
    }
}

} // namespace gfc::workshop
