#include "cli/Convert.h"

#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "project/ProjectCheck.h"
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

    // OUT is recorded inside the file; a name the file cannot carry would make it unreadable.
    if (!projectFileCarries(outPath)) {
        err << "vorlane-cli: " << outPath
            << ": a project file cannot record this name as its path (it holds a line break or "
               "a double quote followed by a comma); nothing was written\n";
        return ExitFailure;
    }

    Unattended ui;
    ProgressSink quiet;
    const auto doc = openForCommand(in, ui, quiet, err);
    if (!doc)
        return ExitFailure;

    recordChosenPath(*doc, outPath); // as Save As records the chosen file
    // OUT was named on the command line, as a file is chosen in Save As: it may be replaced
    // whatever it holds, and is kept as OUT.bak1.
    SaveOptions options;
    options.fileChosen = true;
    const SaveResult saved = saveProject(*doc, ui, quiet, systemFileOps(), options);
    if (!saved.written()) {
        err << "vorlane-cli: " << outPath << ": " << saved.reason << "\n";
        return ExitFailure;
    }
    for (const std::string &notice : saved.notices)
        err << "vorlane-cli: warning: " << notice << "\n";
    printWarnings(*doc, outPath, err);
    return ExitSuccess;
}

} // namespace vorlane
