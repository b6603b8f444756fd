// What the contents of a folder must be to each other, and to what is published already.
#pragma once

#include <string_view>

#include "tools/Catalogue.h"

namespace CatalogueRules {

// Each display name must lead to its own archive, in the pack's own way of looking it up: it must
// not be the beginning of one that comes later in the list, and no other kind may have it.
void JudgeDisplayNames(const Catalogue::Contents& contents, Catalogue::Faults& faults);

// No version may be lower than the published one, and a higher one of the pack itself must come
// with its installer, since every player is offered it at once.
//   published  the text of the records that are published; empty if there are none.
void JudgeVersions(const Catalogue::Contents& contents, std::string_view published,
                   Catalogue::Faults& faults);

}  // namespace CatalogueRules
