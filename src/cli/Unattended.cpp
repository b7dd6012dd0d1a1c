#include "cli/Unattended.h"

#include "project/Open.h"
#include "project/ProjectCheck.h"
#include "io/SystemFileOps.h"

#include <ostream>

namespace vorlane {

MessageAnswer Unattended::showMessage(const Message &message)
{
    return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::OK;
}

std::unique_ptr<Document> openForCommand(const std::string &path,
                                         UserInterface &ui,
                                         ProgressSink &progress,
                                         std::ostream &err)
{
    auto doc = makeDocument();
    const OpenOutcome opened = openProject(*doc, path, ui, progress, systemFileOps());
    if (!opened.opened()) {
        err << "vorlane-cli: " << describeOpenFailure(opened) << "\n";
        return nullptr;
    }
    return doc;
}

void printWarnings(const Document &doc, const std::string &file, std::ostream &err)
{
    for (const std::string &problem : checkProject(doc, file))
        err << "vorlane-cli: warning: " << problem << "\n";
}

} // namespace vorlane
