#include "cli/Merge.h"

#include "cli/Cli.h"
#include "cli/ProjectJsonFiles.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"
#include "json/ProjectMerge.h"

#include <ostream>

namespace vorlane {

namespace {

// BASE as JSON; an empty file (git's stand-in when the two sides share no ancestor) is an
// empty project.
std::optional<Json> readBase(const std::string &path, std::ostream &err)
{
    std::string bytes;
    if (systemFileOps().readAll(path, bytes) == 0 && bytes.size() == 0)
        return Json::object();
    return readProjectAsJson(path, err);
}

} // namespace

int runMerge(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    std::vector<std::string> files;
    std::string output;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "-o" || args[i] == "--output") {
            if (i + 1 == args.size() || !output.empty()) {
                files.clear();
                break;
            }
            output = args[++i];
        } else {
            files.push_back(args[i]);
        }
    }
    if (files.size() != 3 || output.empty()) {
        err << "vorlane-cli: merge needs BASE.dvb, OURS.dvb, THEIRS.dvb and -o OUT.dvb; see "
               "vorlane-cli --help\n";
        return ExitUsage;
    }
    std::optional<Json> base = readBase(files[0], err);
    if (!base)
        return ExitUsage;
    std::optional<Json> ours = readProjectAsJson(files[1], err);
    if (!ours)
        return ExitUsage;
    std::optional<Json> theirs = readProjectAsJson(files[2], err);
    if (!theirs)
        return ExitUsage;

    const MergeResult result = mergeProjects(*base, *ours, *theirs);
    // The three versions are no longer needed: their memory goes before the document's comes.
    base.reset();
    ours.reset();
    theirs.reset();
    auto doc = makeDocument();
    try {
        projectFromJson(result.merged, *doc);
    } catch (const JsonValueError &error) {
        err << "vorlane-cli: " << output
            << ": the merged project makes no project file: " << error.pointer << ": "
            << error.message << "; nothing was written\n";
        return ExitUsage;
    }
    // Git keeps every version: no backups beside the merged file.
    if (!writeProjectFileTo(*doc, output, 0, err))
        return ExitUsage;
    for (const std::string &conflict : result.conflicts)
        out << "conflict: " << conflict << "\n";
    return result.conflicts.empty() ? ExitSuccess : ExitFailure;
}

} // namespace vorlane
