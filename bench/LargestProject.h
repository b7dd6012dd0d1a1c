#pragma once

#include "model/modGlobal.h"

namespace vorlane::bench {

// Fills `doc` (a new document) with the largest project the tables allow: every table full,
// every sprite with 101 animations of 101 frames, every scene with 101 layers, 50 custom
// filters. Every reference names an existing object, so the project is also a clean one.
void buildLargestProject(Document &doc);

} // namespace vorlane::bench
