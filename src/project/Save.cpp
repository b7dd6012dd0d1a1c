#include "project/Save.h"

#include "rules/NewObjects.h"
#include "project/ProjectWriter.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"

namespace vorlane {

SaveResult saveProject(Document &doc, UserInterface &ui, ProgressSink &progress, FileOps &ops)
{
    const Message warning{
        "Any new objects not opened in an editor window will be removed. Continue?",
        "Warning!",
        MessageIcon::Question,
        MessageButtons::YesNo};
    if (ui.showMessage(warning) != MessageAnswer::Yes)
        return {SaveResult::Status::Cancelled, {}};

    progress.begin("Saving Data...");
    progress.setLabel("Removing New Objects...");
    removeNewObjects(doc);
    const std::string &path = doc.ProjectInfo.projectFilePath;
    FileWriteResult written = writeFileSafely(
        path, [&](ChunkSink &sink) { writeProjectFile(doc, progress, sink); }, ops);
    progress.end();

    if (!written.ok) {
        ui.showMessage({"Could not save \"" + path + "\": " + written.reason,
                        "Save Data",
                        MessageIcon::Critical,
                        MessageButtons::OK});
        return {SaveResult::Status::Failed, std::move(written.reason)};
    }
    return {};
}

bool Save(Document &doc, UserInterface &ui, ProgressSink &progress)
{
    return saveProject(doc, ui, progress, systemFileOps()).written();
}

} // namespace vorlane
