#include "cli/Cli.h"

#include "Version.h"
#include "cli/Check.h"
#include "cli/Convert.h"
#include "cli/Generate.h"

#include <ostream>

namespace vorlane {

std::string cliHelpText()
{
    return "Usage: vorlane-cli COMMAND [ARGUMENTS]\n"
           "\n"
           "Checks Vorlane project files and generates the Korrin engine's files from them,\n"
           "without a display.\n"
           "\n"
           "Commands:\n"
           "  --help       show this help and exit\n"
           "  --version    show the version and exit\n"
           "  check PROJECT.dvb\n"
           "               read the project file PROJECT.dvb and print what would break the\n"
           "               engine or the next Open, one problem a line (FILE: KIND \"ID\":\n"
           "               PROBLEM): references to missing objects, ids used twice, \"*\" in\n"
           "               texts the engine ends at \"*\", blanks in ids and paths\n"
           "  convert IN.dvb OUT.dvb\n"
           "               read the project file IN.dvb and save it as OUT.dvb, which then\n"
           "               records OUT.dvb as its path; OUT.dvb is left alone if IN.dvb is\n"
           "               damaged; the previous OUT.dvb is kept as OUT.dvb.bak1\n"
           "  generate PROJECT.dvb OUTDIR [--root FOLDER] [--verbose]\n"
           "               read the project file PROJECT.dvb and write the engine's files\n"
           "               (app.cfg, the nine .dat files, log.cfg) into the folder OUTDIR,\n"
           "               created when missing; --root replaces the project's application\n"
           "               root folder, less any separator at its end; --verbose prints the\n"
           "               progress on standard error\n"
           "\n"
           "Exit codes:\n"
           "  0  success\n"
           "  1  the work failed (a file could not be read or written, or problems were found)\n"
           "  2  usage error (unknown command, missing or extra arguments)\n"
           "\n"
           "Errors are printed on standard error as \"vorlane-cli: FILE:LINE: message\".\n"
           "convert and generate also print what check would report, each line as\n"
           "\"vorlane-cli: warning: LINE\", and still exit with 0 when their work succeeds.\n";
}

int runCli(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    if (args.empty()) {
        err << "vorlane-cli: no command given; see vorlane-cli --help\n";
        return ExitUsage;
    }
    const std::string &command = args[0];
    if (command == "--help" || command == "-h" || command == "help") {
        out << cliHelpText();
        return ExitSuccess;
    }
    if (command == "--version") {
        out << "vorlane-cli " << VersionText << "\n";
        return ExitSuccess;
    }
    if (command == "check")
        return runCheck({args.begin() + 1, args.end()}, out, err);
    if (command == "convert")
        return runConvert({args.begin() + 1, args.end()}, out, err);
    if (command == "generate")
        return runGenerate({args.begin() + 1, args.end()}, out, err);
    err << "vorlane-cli: unknown command \"" << command << "\"; see vorlane-cli --help\n";
    return ExitUsage;
}

} // namespace vorlane
