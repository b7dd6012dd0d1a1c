#include "project/Save.h"

#include "rules/NewObjects.h"
#include "project/ProjectReader.h"
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

SaveResult saveProject(Document &doc,
                       UserInterface &ui,
                       ProgressSink &progress,
                       FileOps &ops,
                       const SaveOptions &options)
{
    const Message warning{
        "Any new objects not opened in an editor window will be removed. Continue?",
        "Warning!",
        MessageIcon::Question,
        MessageButtons::YesNo};
    SaveResult result;
    if (ui.showMessage(warning) != MessageAnswer::Yes) {
        result.status = SaveResult::Status::Cancelled;
        return result;
    }

    progress.begin("Saving Data...");
    progress.setLabel("Removing New Objects...");
    removeNewObjects(doc);
    const std::string path = projectSavePath(doc);
    SafeWriteOptions write{ProjectBackups};
    // The path a project records may name any file (a downloaded project can name someone's
    // notes); only a file chosen in Save As is replaced whatever it holds.
    if (!options.fileChosen) {
        write.refuseReplacing = [](std::string_view start) {
            return beginsAsProjectFile(start) ? std::string() : std::string(NotAProjectFile);
        };
    }
    write.keepReplacedAs = options.keepTheirsAs;
    FileWriteResult written = writeFileSafely(path, projectFileBytes(doc, progress), ops, write);
    progress.end();

    if (!written.ok) {
        ui.showMessage({"Could not save \"" + path + "\": " + written.reason,
                        "Save Data",
                        MessageIcon::Critical,
                        MessageButtons::OK});
        result.status = SaveResult::Status::Failed;
        result.reason = std::move(written.reason);
        return result;
    }
    if (!written.keptAs.empty())
        result.notices.push_back("\"" + path +
                                 "\" was saved; the version another program wrote is kept as \"" +
                                 written.keptAs + "\"");
    for (const std::string &notKept : written.notKept)
        result.notices.push_back("\"" + path + "\" was saved, but " + notKept);
    result.file = written.written;
    return result;
}

bool Save(Document &doc, UserInterface &ui, ProgressSink &progress)
{
    return saveProject(doc, ui, progress, systemFileOps()).written();
}

} // namespace vorlane
