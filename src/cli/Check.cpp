#include "cli/Check.h"

#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "project/ProjectCheck.h"

#include <ostream>

namespace vorlane {

int runCheck(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    const bool strict = args.size() == 2 && args[1] == "--strict";
    if (args.size() != 1 && !strict) {
        err << "vorlane-cli: check needs one argument, PROJECT.dvb; see vorlane-cli --help\n";
        return ExitUsage;
    }
    const std::string &path = args[0];

    Unattended ui;
    ProgressSink quiet;
    const auto doc = openForCommand(path, ui, quiet, err);
    if (!doc)
        return ExitFailure;

    bool failed = false;
    for (const ProjectProblem &problem : fullProjectCheck(*doc, path)) {
        if (problem.warning)
            out << "warning: ";
        out << problem.line << "\n";
        failed = failed || strict || !problem.warning;
    }
    return failed ? ExitFailure : ExitSuccess;
}

} // namespace vorlane
