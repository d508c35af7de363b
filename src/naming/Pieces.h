#pragma once

#include "naming/TagName.h"

namespace gfc::naming {

// The name cut where its signs, its digits and its capitals cut it, with no meaning yet, but for the words
// that hold digits, which stay whole. folded is the name as Fold gives it.
[[nodiscard]] std::vector<Part> PiecesOf(std::string_view folded, std::string_view name);

// Gives the letters their meaning: a word, several words grown together ("MASSFLOW"), or the beginning of one
// ("TEMPERATUR"). A part of several words falls into them. Parts of a device stay as they are.
void ReadMeanings(std::vector<Part>& parts);

} // namespace gfc::naming
