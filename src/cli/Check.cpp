#include "cli/Check.h"

#include "cli/Cli.h"
#include "model/UserInterface.h"
#include "project/Open.h"
#include "project/ProjectCheck.h"
#include "project/SystemFileOps.h"

#include <ostream>

namespace vorlane {

namespace {

// Open asks nothing; its "Load Error" messages are reported by the command itself.
class Unattended : public UserInterface
{
public:
    MessageAnswer showMessage(const Message &) override { return MessageAnswer::OK; }
    std::optional<std::string> chooseFile(const FileDialogRequest &) override { return {}; }
};

} // namespace

int runCheck(const std::vector<std::string> &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 1) {
        err << "vorlane-cli: check needs one argument, PROJECT.dvb; see vorlane-cli --help\n";
        return ExitUsage;
    }
    const std::string &path = args[0];

    Unattended ui;
    ProgressSink quiet;
    auto doc = makeDocument();
    const OpenOutcome opened = openProject(*doc, path, ui, quiet, systemFileOps());
    if (!opened.opened()) {
        err << "vorlane-cli: " << describeOpenFailure(opened) << "\n";
        return ExitFailure;
    }

    const std::vector<std::string> problems = checkProject(*doc, path);
    for (const std::string &problem : problems)
        out << problem << "\n";
    return problems.empty() ? ExitSuccess : ExitFailure;
}

} // namespace vorlane
