#pragma once

#include <QWidget>

#include <string>
#include <vector>

// What can be said against a window as it stands, each in one line; nothing if all is well.
namespace gfc::test {

// Texts of labels, buttons, frames, lists, tabs and columns that do not fit into their place.
[[nodiscard]] std::vector<std::string> CutTexts(const QWidget& window);

// What a screen reader would come upon without a name or without a role.
[[nodiscard]] std::vector<std::string> Unnamed(const QWidget& window);

// Steps of the Tab key that go against the order in which people read: from the left to the right and from
// the top down, one group after the other, column by column where groups stand side by side.
[[nodiscard]] std::vector<std::string> StepsAgainstReading(const QWidget& window);

} // namespace gfc::test
