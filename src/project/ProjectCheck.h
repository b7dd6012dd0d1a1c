#pragma once

#include "model/modGlobal.h"

#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// The problems of the project in `doc` that would break the engine's reading of the generated
// files or the next Open, one line each as `FILE: KIND "ID": PROBLEM` (`FILE: application:
// PROBLEM` for the settings, `FILE: custom filter N: PROBLEM` for the log filters), in the
// order of the project file; `file` is the FILE part. Only the objects of the nine lists are
// checked and can be referred to; lines of new objects (never opened, dropped before saving
// and generating) are left out. Empty when nothing is wrong.
std::vector<std::string> checkProject(const Document &doc, std::string_view file);

} // namespace vorlane
