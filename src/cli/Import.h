#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli import IN.json OUT.dvb`: writes the project file that the JSON form IN
// describes. A JSON text that does not make a project file is refused with its place
// ("IN.json:LINE:COLUMN: POINTER: message") and OUT is not touched. `args` are the arguments
// after the command name. Returns the exit code.
int runImport(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
