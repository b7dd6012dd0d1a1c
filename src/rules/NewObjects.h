#pragma once

#include "model/modGlobal.h"

namespace vorlane {

// Removes from the nine object lists every line whose slot is still new (added, never opened
// in its editor). Only the list lines go: the records keep their flags and ObjectCounts is
// left as it is, so such a slot stays reserved until the tables are next cleared.
void removeNewObjects(Document &doc);

} // namespace vorlane
