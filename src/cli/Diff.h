#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli diff A.dvb B.dvb`: prints on `out` what changed from A to B, one change a
// line. Returns 0 when the projects are equal, 1 when they differ, 2 on trouble (a file that
// cannot be read, a usage error), as diff does.
int runDiff(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
