#pragma once

#include <QStringList>

#include <set>

// What the sources of the program say in so many words, so that the manual can be held against it.
namespace gfc::test {

// Every text between quotation marks in src/forms, src/project, src/services, src/binding and src/app; texts
// that follow each other without anything between them are one.
[[nodiscard]] QStringList TextsOfSources();

// Those that stand as the text of a message box.
[[nodiscard]] QStringList MessagesOfSources();

// Every number in src/forms and src/binding that looks like a help number: four digits, the last two zero.
[[nodiscard]] std::set<int> HelpNumbersOfSources();

} // namespace gfc::test
