#pragma once

#include "model/modGlobal.h"

#include <string>

namespace vorlane {

// Replaces the selected line of `list` by a line reading `id` with the same item data, at the
// same position, and selects it again. Returns false, changing nothing, when none is selected.
bool replaceSelectedLine(ObjectList &list, const std::string &id);

// What a closing editor does to the main window's list of its kind: the selected line is
// replaced by a line with the record's `id`, at the same position, with the same item data,
// and selected again. Returns false, changing nothing, when no line is selected.
bool handBackToList(Document &doc, Kind kind, const std::string &id);

} // namespace vorlane
