#pragma once

#include "rules/ProgressSink.h"
#include "rules/UserInterface.h"
#include "model/modGlobal.h"
#include "io/FileOps.h"

#include <string>
#include <vector>

namespace vorlane {

// How a Save ended.
struct SaveResult
{
    enum class Status {
        Written,   // the file holds the project
        Cancelled, // the user answered No to the warning; nothing was touched
        Failed     // the file could not be written; the old file is unchanged
    };
    Status status = Status::Written;
    std::string reason; // Failed: the operating system's message
    // Written: what of the previous file could not be kept (its owner, its permissions, a
    // backup), each a sentence naming the file.
    std::vector<std::string> notices;
    // Written: the new file as it stands (device, inode, size, time of change), so that a
    // later look tells this save from another program's.
    PathInfo file;

    bool written() const { return status == Status::Written; }
};

// What a Save may do to the file already there.
struct SaveOptions
{
    // Save As and vorlane-cli convert: the user chose the file and agreed to replace it, so
    // any regular file may be replaced (kept as the newest backup). Otherwise an existing file
    // that is not empty is replaced only when it begins as a project file.
    bool fileChosen = false;
    // When not empty, the version on disk is also kept under this name, which later saves do
    // not rotate away: the version another program wrote (ProjectFileWatch).
    std::string keepTheirsAs;
};

// The reason a Save gives for a file it does not replace, after "it" or "its target "...""
inline constexpr const char *NotAProjectFile =
    "is not a Vorlane project file, so nothing was written to it; to replace it, choose it in "
    "Save As";

// `path` with ".dvb" added when its file name has no extension, as Save As saves it.
std::string withProjectExtension(const std::string &path);

// Records `path`, chosen by the user, as the project's file (Save As).
void recordChosenPath(Document &doc, const std::string &path);

// Save with `ops` for the file calls; see Save.
SaveResult saveProject(Document &doc,
                       UserInterface &ui,
                       ProgressSink &progress,
                       FileOps &ops,
                       const SaveOptions &options = {});

// The program's Save: asks whether new objects may go, removes them from the lists and writes
// the project safely to ProjectInfo.projectFilePath, reporting its steps to `progress`. A
// failed write is shown in a "Save Data" message naming the file and the reason. The previous
// file is kept as the newest of ProjectBackups backups; an existing file that is not empty
// and does not begin as a project file is refused (SaveOptions). Returns true when the file
// was written.
bool Save(Document &doc, UserInterface &ui, ProgressSink &progress);

} // namespace vorlane
