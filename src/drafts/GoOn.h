#pragma once

#include "drafts/Draft.h"
#include "project/TagInventory.h"

// What a draft has to be held against before its pass goes on: the station's tags may be others by now.
namespace gfc::drafts {

// Takes out of the draft every binding whose tag the station no longer has, by the rule of the check of a
// file. A dialog that lacks a tag thereby is not done any more; what remains of it stands in Open. Gives the
// names of the tags that are gone, each once.
[[nodiscard]] std::vector<std::string> LetGoOfMissingTags(Draft& draft,
                                                          const project::TagInventory& inventory);

// Takes out of the lists of what is on offer, which must have been built anew, what each finished dialog took
// out of them.
void TakeOffOffer(Draft& draft, project::TagInventory& inventory);

} // namespace gfc::drafts
