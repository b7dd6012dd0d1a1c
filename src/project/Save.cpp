#include "project/Save.h"

#include "rules/NewObjects.h"
#include "project/ProjectWriter.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"

namespace vorlane {

std::string withProjectExtension(const std::string &path)
{
    const size_t slash = path.rfind('/');
    const size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    const size_t dot = path.rfind('.');
    // A dot that begins the name marks a hidden file, not an extension.
    if (dot != std::string::npos && dot > nameStart)
        return path;
    return path + ".dvb";
}

void recordChosenPath(Document &doc, const std::string &path)
{
    doc.ProjectInfo.projectFilePath = path;
    doc.openedFrom.clear(); // a chosen path is taken as it stands
}

SaveResult saveProject(Document &doc, UserInterface &ui, ProgressSink &progress, FileOps &ops)
{
    const Message warning{
        "Any new objects not opened in an editor window will be removed. Continue?",
        "Warning!",
        MessageIcon::Question,
        MessageButtons::YesNo};
    if (ui.showMessage(warning) != MessageAnswer::Yes)
        return {SaveResult::Status::Cancelled, {}, {}};

    progress.begin("Saving Data...");
    progress.setLabel("Removing New Objects...");
    removeNewObjects(doc);
    const std::string path = projectSavePath(doc);
    FileWriteResult written = writeFileSafely(
        path, projectFileBytes(doc, progress), ops, SafeWriteOptions{ProjectBackups});
    progress.end();

    if (!written.ok) {
        ui.showMessage({"Could not save \"" + path + "\": " + written.reason,
                        "Save Data",
                        MessageIcon::Critical,
                        MessageButtons::OK});
        return {SaveResult::Status::Failed, std::move(written.reason), {}};
    }
    SaveResult result;
    for (const std::string &notKept : written.notKept)
        result.notices.push_back("\"" + path + "\" was saved, but " + notKept);
    return result;
}

bool Save(Document &doc, UserInterface &ui, ProgressSink &progress)
{
    return saveProject(doc, ui, progress, systemFileOps()).written();
}

} // namespace vorlane
