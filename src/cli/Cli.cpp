#include "cli/Cli.h"

#include "Version.h"
#include "cli/Check.h"
#include "cli/Convert.h"
#include "cli/Generate.h"
#include "cli/Rename.h"

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
           "               texts the engine ends at \"*\", blanks in ids and paths; then the\n"
           "               files the game will not find (missing, or images that are not\n"
           "               pictures), each line as \"warning: LINE\"; warnings alone exit with\n"
           "               0, or with 1 when --strict follows PROJECT.dvb\n"
           "  convert IN.dvb OUT.dvb\n"
           "               read the project file IN.dvb and save it as OUT.dvb, which then\n"
           "               records OUT.dvb as its path; OUT.dvb is left alone if IN.dvb is\n"
           "               damaged; the previous OUT.dvb is kept as OUT.dvb.bak1\n"
           "  generate PROJECT.dvb OUTDIR [--root FOLDER] [--verbose]\n"
           "               read the project file PROJECT.dvb and write the engine's files\n"
           "               (app.cfg, the nine .dat files, log.cfg) into OUTDIR, created when\n"
           "               missing; --root replaces the project's application root folder,\n"
           "               --verbose prints the progress on standard error\n"
           "  rename PROJECT.dvb KIND OLD NEW [OUT.dvb]\n"
           "               give the object of KIND (button, cursor, image, text, font, music,\n"
           "               sfx, sprite, scene) called OLD the identifier NEW, with every\n"
           "               reference to it, and save the project as OUT.dvb (PROJECT.dvb\n"
           "               itself, safely, when OUT.dvb is left out); exits with 1 when OLD\n"
           "               names no object or NEW cannot be an identifier\n"
           "\n"
           "Exit codes:\n"
           "  0  success\n"
           "  1  the work failed (a file could not be read or written, or problems were found)\n"
           "  2  usage error (unknown command, missing or extra arguments)\n"
           "\n"
           "Errors are printed on standard error as \"vorlane-cli: FILE:LINE: message\".\n"
           "convert, generate and rename also print the problems check would report, each\n"
           "line as \"vorlane-cli: warning: LINE\", and still exit with 0 when their work\n"
           "succeeds.\n";
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
    if (command == "rename")
        return runRename({args.begin() + 1, args.end()}, out, err);
    err << "vorlane-cli: unknown command \"" << command << "\"; see vorlane-cli --help\n";
    return ExitUsage;
}

} // namespace vorlane
