#include "cli/Cli.h"

#include "Version.h"
#include "cli/Check.h"
#include "cli/Convert.h"
#include "cli/Diff.h"
#include "cli/Export.h"
#include "cli/Generate.h"
#include "cli/Import.h"
#include "cli/Merge.h"
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
           "               (app.cfg, the nine .dat files, log.cfg) into the folder OUTDIR,\n"
           "               created when missing; --root replaces the project's application\n"
           "               root folder, less any separator at its end; --verbose prints the\n"
           "               progress on standard error\n"
           "  export PROJECT.dvb [OUT.json]\n"
           "               read the project file PROJECT.dvb and write it as JSON into\n"
           "               OUT.json, or on standard output without OUT.json: every object\n"
           "               with the fields of its line by name, one value a line\n"
           "  import IN.json OUT.dvb\n"
           "               write the project file OUT.dvb that IN.json (as export writes\n"
           "               it) describes; a value that makes no project file is refused as\n"
           "               \"IN.json:LINE:COLUMN: /POINTER: message\" and OUT.dvb is left\n"
           "               alone; the previous OUT.dvb is kept as OUT.dvb.bak1\n"
           "  diff A.dvb B.dvb\n"
           "               print what changed from A.dvb to B.dvb, object by object and\n"
           "               field by field (KIND \"ID\": FIELD OLD -> NEW)\n"
           "  merge BASE.dvb OURS.dvb THEIRS.dvb -o OUT.dvb\n"
           "               merge the changes from BASE.dvb to OURS.dvb and to THEIRS.dvb\n"
           "               into OUT.dvb, object by object and field by field; a field\n"
           "               changed both ways is a conflict, printed with both values, that\n"
           "               keeps ours; works as a git merge driver\n"
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
           "succeeds.\n"
           "diff exits with 1 when the projects differ and with 2 on trouble, as diff does;\n"
           "merge exits with 1 when there were conflicts and with 2 on trouble.\n";
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
    if (command == "export")
        return runExport({args.begin() + 1, args.end()}, out, err);
    if (command == "import")
        return runImport({args.begin() + 1, args.end()}, out, err);
    if (command == "diff")
        return runDiff({args.begin() + 1, args.end()}, out, err);
    if (command == "merge")
        return runMerge({args.begin() + 1, args.end()}, out, err);
    if (command == "rename")
        return runRename({args.begin() + 1, args.end()}, out, err);
    err << "vorlane-cli: unknown command \"" << command << "\"; see vorlane-cli --help\n";
    return ExitUsage;
}

} // namespace vorlane
