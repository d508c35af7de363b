#pragma once

namespace gfc::commands {

// What the programs of the command line end with; all of them in this one place.
namespace exitcode {
constexpr int Clean = 0;       // nothing at the level that was asked for
constexpr int Found = 1;       // there are findings, or differences
constexpr int WrongUse = 2;    // no such option, folder or station
constexpr int NotToBeHad = 3;  // the project or a file could not be asked, or the output not be written
constexpr int BrokenOff = 130; // by Ctrl+C, as shells number it; what was written by then stays
} // namespace exitcode

} // namespace gfc::commands
