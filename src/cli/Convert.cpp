#include "cli/Convert.h"

#include "cli/Cli.h"
#include "model/UserInterface.h"
#include "project/Open.h"
#include "project/Save.h"
#include "project/SystemFileOps.h"

#include <ostream>

namespace vorlane {

namespace {

// Answers Yes to every question and shows nothing: the command reports failures itself.
class AnswerYes : public UserInterface
{
public:
    MessageAnswer showMessage(const Message &message) override
    {
        return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::OK;
    }
    std::optional<std::string> chooseFile(const FileDialogRequest &) override { return {}; }
};

} // namespace

int runConvert(const std::vector<std::string> &args, std::ostream & /*out*/, std::ostream &err)
{
    if (args.size() != 2) {
        err << "vorlane-cli: convert needs two arguments, IN.dvb and OUT.dvb; see vorlane-cli "
               "--help\n";
        return ExitUsage;
    }
    const std::string &in = args[0];
    const std::string &outPath = args[1];

    AnswerYes ui;
    ProgressSink quiet;
    auto doc = makeDocument();
    const OpenOutcome opened = openProject(*doc, in, ui, quiet, systemFileOps());
    if (!opened.opened()) {
        err << "vorlane-cli: " << describeOpenFailure(opened) << "\n";
        return ExitFailure;
    }

    doc->ProjectInfo.projectFilePath = outPath; // as Save As records the chosen file
    const SaveResult saved = saveProject(*doc, ui, quiet, systemFileOps());
    if (!saved.written()) {
        err << "vorlane-cli: " << outPath << ": " << saved.reason << "\n";
        return ExitFailure;
    }
    return ExitSuccess;
}

} // namespace vorlane
