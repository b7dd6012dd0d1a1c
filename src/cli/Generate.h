#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli generate PROJECT.dvb OUTDIR [--root FOLDER] [--verbose]`: opens PROJECT as the
// editor does at start-up and generates the engine files into OUTDIR as "Generate Data As..."
// would with a file chosen in that folder. `args` are the arguments after the command name.
// Returns the exit code.
int runGenerate(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
