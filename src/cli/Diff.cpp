#include "cli/Diff.h"

#include "cli/Cli.h"
#include "cli/ProjectJsonFiles.h"
#include "json/ProjectDiff.h"

#include <ostream>

namespace vorlane {

int runDiff(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 2) {
        err << "vorlane-cli: diff needs two arguments, A.dvb and B.dvb; see vorlane-cli --help\n";
        return ExitUsage;
    }
    const std::optional<Json> a = readProjectAsJson(args[0], err);
    if (!a)
        return ExitUsage;
    const std::optional<Json> b = readProjectAsJson(args[1], err);
    if (!b)
        return ExitUsage;
    const std::vector<std::string> changes = diffProjects(*a, *b);
    for (const std::string &change : changes)
        out << change << "\n";
    return changes.empty() ? ExitSuccess : ExitFailure;
}

} // namespace vorlane
