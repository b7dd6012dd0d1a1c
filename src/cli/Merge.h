#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vorlane {

// `vorlane-cli merge BASE.dvb OURS.dvb THEIRS.dvb -o OUT.dvb`: merges the changes from BASE
// to OURS and from BASE to THEIRS into OUT, object by object and field by field, and prints
// each conflict on `out` ("conflict: ..."), OUT keeping ours for it. An empty BASE stands for
// no common ancestor. Returns 0 when the merge is clean, 1 when there were conflicts, 2 on
// trouble (nothing written), so that it serves as a git merge driver.
int runMerge(const std::vector<std::string> &args, std::ostream &out, std::ostream &err);

} // namespace vorlane
