#pragma once

#include <QColor>

namespace gfc::qt {

// The colour that stands in a recorded picture wherever the drawing says "the colour of the text". No drawing
// has it for itself; whoever shows the picture puts the text's colour in its place.
inline constexpr QColor RecordedInk(0x12, 0x34, 0x57);

} // namespace gfc::qt
