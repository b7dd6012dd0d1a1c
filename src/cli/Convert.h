#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli convert IN.dvb OUT.dvb`: opens IN as the editor does at start-up and saves the
// project as OUT (Save As), which then records OUT as its path. `args` are the arguments after
// the command name. Returns the exit code; OUT is not touched unless IN was read completely.
int runConvert(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
