#include "cli/Generate.h"

#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "generate/GenerateCommands.h"
#include "generate/GeneratePaths.h"

#include <filesystem>
#include <optional>
#include <ostream>

namespace vorlane {

namespace {

struct GenerateArgs
{
    std::string project;
    std::string outDir;
    std::optional<std::string> root;
    bool verbose = false;
};

// Prints the progress labels, one a line, when asked to.
class LabelPrinter : public ProgressSink
{
public:
    LabelPrinter(std::ostream &err, bool verbose)
        : m_err(err)
        , m_verbose(verbose)
    {}
    void begin(const std::string &title) override { print(title); }
    void setLabel(const std::string &label) override { print(label); }

private:
    void print(const std::string &text)
    {
        if (m_verbose)
            m_err << text << "\n";
    }

    std::ostream &m_err;
    bool m_verbose;
};

int usage(std::ostream &err, const std::string &problem)
{
    err << "vorlane-cli: generate: " << problem
        << "; usage: vorlane-cli generate PROJECT.dvb OUTDIR [--root FOLDER] [--verbose]\n";
    return ExitUsage;
}

std::optional<GenerateArgs> parse(const std::vector<std::string> &args, std::string &problem)
{
    GenerateArgs parsed;
    std::vector<std::string> positional;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string &arg = args[i];
        if (arg == "--verbose") {
            parsed.verbose = true;
        } else if (arg == "--root") {
            if (i + 1 == args.size()) {
                problem = "--root needs a FOLDER";
                return std::nullopt;
            }
            parsed.root = args[++i];
        } else if (arg.size() > 1 && arg.front() == '-') {
            problem = "unknown option \"" + arg + "\"";
            return std::nullopt;
        } else {
            positional.push_back(arg);
        }
    }
    if (positional.size() != 2) {
        problem =
            positional.size() < 2 ? "PROJECT.dvb and OUTDIR are needed" : "too many arguments";
        return std::nullopt;
    }
    parsed.project = positional[0];
    parsed.outDir = positional[1];
    if (parsed.outDir.empty()) {
        problem = "OUTDIR is empty";
        return std::nullopt;
    }
    return parsed;
}

// A failed generation as "PATH: what happened".
std::string failureLine(const GenerateFailure &failure)
{
    switch (failure.kind) {
    case GenerateFailure::Kind::Busy:
        return failure.path +
               ": another generation is writing into this folder; nothing was generated";
    case GenerateFailure::Kind::OwnInput:
        return failure.path + ": this engine file is the project file " + failure.reason +
               "; nothing was generated";
    case GenerateFailure::Kind::Write:
        break;
    }
    std::string line = failure.path + ": " + failure.reason + "; this file was left as it was";
    if (failure.replaced.empty())
        return line + ", and no file was replaced";
    line += "; already replaced:";
    for (const std::string &name : failure.replaced)
        line += " " + name;
    return line;
}

} // namespace

int runGenerate(const std::vector<std::string> &args, std::ostream & /*out*/, std::ostream &err)
{
    std::string problem;
    const std::optional<GenerateArgs> parsed = parse(args, problem);
    if (!parsed)
        return usage(err, problem);

    // The file chosen in the folder dialog: any name in OUTDIR does, as in the editor. OUTDIR
    // is a folder of this system, where "\" is a character of a name like any other: the
    // files go inside the folder it names, never beside it.
    std::string chosen = parsed->outDir;
    if (chosen.back() != '/')
        chosen.push_back('/');
    chosen.append(GenerateProposedName);

    Unattended ui(chosen);
    LabelPrinter progress(err, parsed->verbose);
    const auto doc = openForCommand(parsed->project, ui, progress, err);
    if (!doc)
        return ExitFailure;
    // What `check` finds in the project file as it is.
    printWarnings(*doc, parsed->project, err);
    if (parsed->root) {
        // A root ending in a separator would cut the data folder's first character.
        doc->AppSettings.rootFolder = withoutTrailingSeparators(*parsed->root);
        if (doc->AppSettings.rootFolder != *parsed->root)
            err << "vorlane-cli: warning: --root \"" << *parsed->root
                << "\" ends in a separator; the application root folder is \""
                << doc->AppSettings.rootFolder << "\"\n";
    }
    if (parsed->outDir.back() == '\\')
        err << "vorlane-cli: warning: OUTDIR \"" << parsed->outDir
            << "\" ends in \"\\\", which is part of the folder's name on this system; the "
               "files are written inside that folder\n";

    // Checked before OUTDIR is created, so that a refused folder is left as it was.
    const std::string &rootFolder = doc->AppSettings.rootFolder;
    const std::optional<GeneratePaths> paths = computeGeneratePaths(chosen, rootFolder);
    if (!paths) {
        err << "vorlane-cli: " << folderOf(chosen)
            << ": the folder lies outside the application root folder " << rootFolder
            << "; nothing was generated\n";
        return ExitFailure;
    }
    // The editor's rule finds the root by its text alone; a sibling folder whose name begins
    // with the root's text passes it, with a data folder the engine will not find.
    if (!rootEndsAtSeparator(chosen, rootFolder))
        err << "vorlane-cli: warning: " << folderOf(chosen)
            << ": the folder is not inside the application root folder " << rootFolder
            << ", though its path begins with the root's text; app.cfg names the data folder \""
            << paths->dataFolderRel << "\"\n";

    std::error_code error;
    std::filesystem::create_directories(parsed->outDir, error);
    if (error) {
        err << "vorlane-cli: " << parsed->outDir << ": " << error.message() << "\n";
        return ExitFailure;
    }

    GenerateState state;
    const GenerateResult result = generateDataAs(*doc, state, ui, progress);
    if (result.outcome == GenerateOutcome::Generated)
        return ExitSuccess;
    if (result.failure)
        err << "vorlane-cli: " << failureLine(*result.failure) << "\n";
    else
        err << "vorlane-cli: " << parsed->project << ": nothing was generated\n";
    return ExitFailure;
}

} // namespace vorlane
