#pragma once

#include "model/modGlobal.h"

namespace vorlane {

// The defaults of a new image's own fields: no path, opaque (alpha 255), black transparency
// colour, no cells, not bound, visible.
void setImageDefaults(ImageRec &image);

} // namespace vorlane
