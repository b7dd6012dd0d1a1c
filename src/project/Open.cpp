#include "project/Open.h"

#include "project/ProjectReader.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"

#include <algorithm>

namespace vorlane {

namespace {

void showLoadError(UserInterface &ui, std::string text)
{
    ui.showMessage({std::move(text), "Load Error", MessageIcon::Exclamation, MessageButtons::OK});
}

} // namespace

OpenOutcome openProject(Document &doc,
                        const std::string &chosenPath,
                        UserInterface &ui,
                        ProgressSink &progress,
                        FileOps &ops)
{
    OpenOutcome outcome;
    outcome.path = chosenPath;
    const bool noProjectOpen = doc.ProjectInfo.projectOpen == 0;
    doc.ProjectInfo.projectFilePath = chosenPath; // until the file names its own path

    progress.begin("Loading Data...");
    // Lines left listed by an earlier Open that failed are cleared as well, so that they can
    // never point at slots this file fills.
    const bool anyListed = std::any_of(
        doc.lists.begin(), doc.lists.end(), [](const auto &list) { return !list.lines.empty(); });
    if (doc.ProjectInfo.projectOpen == -1 || anyListed) {
        progress.setLabel("Preparing to load data...");
        InitData(doc);
        clearLists(doc);
    }

    std::string bytes;
    if (const int error = ops.readAll(chosenPath, bytes); error != 0) {
        progress.end();
        outcome.status = OpenOutcome::Status::Unreadable;
        outcome.reason = errorText(error);
        showLoadError(ui, "Could not load \"" + chosenPath + "\": " + outcome.reason);
        doc.ProjectInfo.projectFilePath.clear();
        return outcome;
    }

    ProjectReadResult read = readProject(bytes, doc, progress);
    progress.end();
    switch (read.status) {
    case ProjectReadResult::Status::Read:
        break;
    case ProjectReadResult::Status::Empty:
        outcome.status = OpenOutcome::Status::Empty;
        showLoadError(ui, "Could not load data - file empty!");
        break;
    case ProjectReadResult::Status::Damaged:
        outcome.status = OpenOutcome::Status::Damaged;
        outcome.line = read.line;
        outcome.reason = std::move(read.message);
        showLoadError(ui, damageText(chosenPath, outcome.line, outcome.reason));
        break;
    }
    outcome.firstProject = outcome.opened() && noProjectOpen;
    // A relative path recorded in the file is taken against the file's own folder.
    doc.openedFrom = outcome.opened() ? chosenPath : std::string();
    // What was read of a file that failed is no project of its own: forget the file's path,
    // so that no Save and no question on exit can overwrite it with the part that was read.
    if (!outcome.opened())
        doc.ProjectInfo.projectFilePath.clear();
    return outcome;
}

OpenOutcome
Open(Document &doc, const std::string &chosenPath, UserInterface &ui, ProgressSink &progress)
{
    return openProject(doc, chosenPath, ui, progress, systemFileOps());
}

std::string describeOpenFailure(const OpenOutcome &outcome)
{
    switch (outcome.status) {
    case OpenOutcome::Status::Opened:
        break;
    case OpenOutcome::Status::Unreadable:
        return outcome.path + ": " + outcome.reason;
    case OpenOutcome::Status::Empty:
        return outcome.path + ": the file is empty";
    case OpenOutcome::Status::Damaged:
        return damageText(outcome.path, outcome.line, outcome.reason);
    }
    return {};
}

} // namespace vorlane
