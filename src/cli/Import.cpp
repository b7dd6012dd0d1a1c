#include "cli/Import.h"

#include "cli/Cli.h"
#include "cli/ProjectJsonFiles.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"
#include "json/JsonText.h"

#include <ostream>

namespace vorlane {

int runImport(const std::vector<std::string> &args, std::ostream & /*out*/, std::ostream &err)
{
    if (args.size() != 2) {
        err << "vorlane-cli: import needs two arguments, IN.json and OUT.dvb; see vorlane-cli "
               "--help\n";
        return ExitUsage;
    }
    const std::string &in = args[0];
    std::string bytes;
    if (const int error = systemFileOps().readAll(in, bytes); error != 0) {
        err << "vorlane-cli: " << in << ": " << errorText(error) << "\n";
        return ExitFailure;
    }
    auto doc = makeDocument();
    if (const auto problem = projectFromJsonText(bytes, *doc)) {
        err << "vorlane-cli: " << problemText(in, *problem) << "\n";
        return ExitFailure;
    }
    return writeProjectFileTo(*doc, args[1], ProjectBackups, err) ? ExitSuccess : ExitFailure;
}

} // namespace vorlane
