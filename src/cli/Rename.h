#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli rename PROJECT.dvb KIND OLD NEW [OUT.dvb]`: gives the object of KIND called OLD
// the identifier NEW, with every reference to it, and saves the project as OUT.dvb (PROJECT.dvb
// itself when OUT.dvb is left out) as Save does. `args` are the arguments after the command
// name. Returns 0 on success, 1 when OLD names no object, NEW is refused or a file could not be
// read or written, 2 on a usage error.
int runRename(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
