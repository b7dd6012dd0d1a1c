#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli check PROJECT.dvb [--strict]`: opens PROJECT as the editor does at start-up and
// prints on `out`, one a line, the problems that would break the engine or the next Open, then
// the files the game will not find as "warning: LINE". `args` are the arguments after the
// command name. Returns 0 when there are none or only warnings (1 under --strict), 1 when
// problems were found or the file could not be read, 2 on a usage error.
int runCheck(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
