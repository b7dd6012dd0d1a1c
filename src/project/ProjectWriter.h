#pragma once

#include "rules/ProgressSink.h"
#include "model/modGlobal.h"

#include <string>

namespace vorlane {

// The bytes of the project file for `doc`: the objects of the nine lists in list order (each
// line's slot names its record), the settings and the log filters, as Windows-1252 text with
// CR LF line ends. New objects are written like any other; Save removes them first.
// Reports "Saving Application Data...", the per-kind labels and "Saving Log Data..." to
// `progress`, and one step per object. A list line whose slot lies outside its table throws
// std::out_of_range.
std::string projectFileBytes(const Document &doc, ProgressSink &progress);

// The same, without progress reports.
std::string projectFileBytes(const Document &doc);

} // namespace vorlane
