#include "cli/Export.h"

#include "cli/Cli.h"
#include "cli/ProjectJsonFiles.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"

#include <ostream>

namespace vorlane {

int runExport(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    if (args.empty() || args.size() > 2) {
        err << "vorlane-cli: export needs PROJECT.dvb and may take OUT.json; see vorlane-cli "
               "--help\n";
        return ExitUsage;
    }
    const std::optional<Json> json = readProjectAsJson(args[0], err);
    if (!json)
        return ExitFailure;
    const std::string text = jsonText(*json);
    if (args.size() == 1) {
        out << text;
        out.flush();
        return out ? ExitSuccess : ExitFailure;
    }
    const FileWriteResult written = writeFileSafely(args[1], text, systemFileOps());
    if (!written.ok) {
        err << "vorlane-cli: " << args[1] << ": " << written.reason << "\n";
        return ExitFailure;
    }
    return ExitSuccess;
}

} // namespace vorlane
