#pragma once

#include "json/ProjectJson.h"
#include "model/modGlobal.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace vorlane {

// The JSON form of the project file `path`. On failure prints "vorlane-cli: FILE: reason" (or
// "FILE:LINE: ...") on `err` and returns nothing.
std::optional<Json> readProjectAsJson(const std::string &path, std::ostream &err);

// Writes the project file of `doc` to `path` safely, keeping `backups` previous versions, and
// prints any failure on `err`. Returns true when the file was written.
bool writeProjectFileTo(const Document &doc,
                        const std::string &path,
                        int backups,
                        std::ostream &err);

} // namespace vorlane
