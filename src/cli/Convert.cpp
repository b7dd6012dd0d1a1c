#include "cli/Convert.h"

#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "project/Save.h"
#include "io/SystemFileOps.h"

#include <ostream>

namespace vorlane {

int runConvert(const std::vector<std::string> &args, std::ostream & /*out*/, std::ostream &err)
{
    if (args.size() != 2) {
        err << "vorlane-cli: convert needs two arguments, IN.dvb and OUT.dvb; see vorlane-cli "
               "--help\n";
        return ExitUsage;
    }
    const std::string &in = args[0];
    const std::string &outPath = args[1];

    Unattended ui;
    ProgressSink quiet;
    const auto doc = openForCommand(in, ui, quiet, err);
    if (!doc)
        return ExitFailure;

    doc->ProjectInfo.projectFilePath = outPath; // as Save As records the chosen file
    const SaveResult saved = saveProject(*doc, ui, quiet, systemFileOps());
    if (!saved.written()) {
        err << "vorlane-cli: " << outPath << ": " << saved.reason << "\n";
        return ExitFailure;
    }
    return ExitSuccess;
}

} // namespace vorlane
