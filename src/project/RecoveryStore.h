#pragma once

#include "io/FileOps.h"
#include "io/SafeSave.h"
#include "io/SystemFileOps.h"
#include "model/modGlobal.h"
#include "rules/UserInterface.h"

#include <ctime>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// A recovery file left by an editor that no longer runs.
struct RecoveryFile
{
    std::string path;
    int pid = 0;
    long long startTime = -1; // when that editor started (processStartTime)
    std::string projectName;  // as recorded in the file; empty when the file cannot be read
    std::time_t changed = 0;  // when the file was last written: the project's last change
};

// The recovery files of running editors: each editor keeps the last state of its document, as a
// project file, in a folder of the user's state, "vorlane-PID-START.dvb" after its process id
// and the start time of that process, so that a file whose editor ended is told apart from the
// file of a running editor, even when a later process gets the same id.
class RecoveryStore
{
public:
    // $XDG_STATE_HOME/vorlane/recovery, or ~/.local/state/vorlane/recovery when XDG_STATE_HOME
    // is unset, empty or not an absolute path.
    static std::string defaultFolder();

    // The store of the running editor in `folder`.
    explicit RecoveryStore(std::string folder, FileOps &ops = systemFileOps());
    // The store of the editor with process id `pid` started at `startTime`.
    RecoveryStore(std::string folder, int pid, long long startTime, FileOps &ops);

    const std::string &folder() const { return m_folder; }
    // This editor's recovery file.
    std::string ownPath() const;

    // Writes `doc` as a project file to ownPath(), safely (a temporary file renamed over it),
    // making the folder when needed. The project's path is recorded as Save would write to it,
    // so that a relative one still names the project's own file after recovery. Refuses to write
    // when ownPath() is the project's own file.
    FileWriteResult write(const Document &doc);
    // Removes this editor's recovery file, if there is one.
    void removeOwn();

    // The recovery files of editors that no longer run, oldest change first. Files of running
    // editors, this one's included, are never listed.
    std::vector<RecoveryFile> abandoned() const;
    // Removes a file abandoned() listed; false when it could not be removed.
    static bool remove(const RecoveryFile &file);

private:
    std::string m_folder;
    int m_pid;
    long long m_startTime;
    FileOps &m_ops;
};

// "vorlane-PID-START.dvb"; a start time of -1 is written as 0.
std::string recoveryFileName(int pid, long long startTime);
// The process id and start time in a recovery file's name; false for any other name.
bool parseRecoveryFileName(std::string_view name, int &pid, long long &startTime);

// The local time `when` as "2026-11-24 14:05:12".
std::string localTimeText(std::time_t when);

// The question that offers an abandoned recovery file: "Recover Project", Yes or No.
Message recoveryQuestion(const RecoveryFile &file);

} // namespace vorlane
