#include "cli/Check.h"

#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "project/ProjectCheck.h"

#include <ostream>

namespace vorlane {

int runCheck(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 1) {
        err << "vorlane-cli: check needs one argument, PROJECT.dvb; see vorlane-cli --help\n";
        return ExitUsage;
    }
    const std::string &path = args[0];

    Unattended ui;
    ProgressSink quiet;
    const auto doc = openForCommand(path, ui, quiet, err);
    if (!doc)
        return ExitFailure;

    const std::vector<std::string> problems = checkProject(*doc, path);
    for (const std::string &problem : problems)
        out << problem << "\n";
    return problems.empty() ? ExitSuccess : ExitFailure;
}

} // namespace vorlane
