#pragma once

// What a person has made of a view, as properties of its widget: the renderer fills them, and who keeps them
// from start to start gives them back.
namespace gfc::qt {

// Of a table: the widths that a person gave to columns, by their headings, in pixels.
inline constexpr const char* WidthsOfPerson = "widthsOfPerson";
// Of a tree whose design says that it keeps its node: that it does, the path of the selected node, and the
// path of the one to be chosen.
inline constexpr const char* KeepsNode = "keepsNode";
inline constexpr const char* SelectedPath = "selectedPath";
inline constexpr const char* PathToChoose = "pathToChoose";

} // namespace gfc::qt
