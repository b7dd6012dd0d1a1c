#pragma once

#include "rules/ProgressSink.h"
#include "model/modGlobal.h"

#include <string>

namespace vorlane {

// The bytes of the project file for `doc`: the objects of the nine lists in list order (each
// line's slot names its record), the settings and the log filters, as Windows-1252 text with
// CR LF line ends; when a text holds a character Windows-1252 cannot hold, the whole file is
// UTF-8 instead, beginning with a byte order mark (see projectNeedsUtf8). New objects are written
// like any other; Save removes them first. Reports "Saving Application Data...", the per-kind
// labels and "Saving Log Data..." to `progress`, and one step per object. A list line whose slot
// lies outside its table throws std::out_of_range.
std::string projectFileBytes(const Document &doc, ProgressSink &progress);

// The same, without progress reports.
std::string projectFileBytes(const Document &doc);

// Whether the project file of `doc` is written in UTF-8: some text it holds has a character
// that Windows-1252 cannot hold.
bool projectNeedsUtf8(const Document &doc);

} // namespace vorlane
