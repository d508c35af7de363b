#pragma once

#include <QString>
#include <QStringList>

// The pages of the manual as they are written.
namespace gfc::test {

// Empty if there is no such file.
[[nodiscard]] QString Html(const QString& file);

// As it is read, in one line.
[[nodiscard]] QString PlainText(const QString& html);

// What stands in the group of the pattern, wherever it fits.
[[nodiscard]] QStringList Captured(const QString& html, const QString& pattern);

// What the page marks as a caption or as a message, as it is read.
[[nodiscard]] QStringList Marked(const QString& html, const QString& element, const QString& mark);

// The forms whose captions the page quotes.
[[nodiscard]] QStringList FormsOf(const QString& html);

} // namespace gfc::test
