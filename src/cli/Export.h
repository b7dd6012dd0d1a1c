#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli export PROJECT.dvb [OUT.json]`: writes the JSON form of PROJECT to OUT, or to
// `out` without OUT. `args` are the arguments after the command name. Returns the exit code.
int runExport(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
