#pragma once

#include "io/FileOps.h"

#include <optional>
#include <string>

namespace vorlane {

// What the program knows of the open project file on disk, so that a change made by another
// program (or a second Vorlane) is told apart from the program's own saves: the file is the
// one the program left while its device, inode, size and time of change are the same.
class ProjectFileWatch
{
public:
    // Watches `path` as it stands now, just opened; "" watches nothing.
    void watch(const std::string &path, FileOps &ops);
    // Watches `path`, just saved by this program as `written`.
    void watch(const std::string &path, const PathInfo &written);
    void stop() { watch(std::string(), PathInfo{}); }

    const std::string &path() const { return m_path; }

    // Looks at the file: the line for the problems panel the first time a version that
    // another program wrote is found (or the file is found gone), nothing otherwise.
    std::optional<std::string> look(FileOps &ops);

    // The name under which a Save of `savePath` keeps the version another program wrote
    // ("/p/game.dvb.theirs-20261124-1305"), or "" when the file on disk is the one the
    // program left, is gone, or `savePath` is not the watched file.
    std::string theirsName(const std::string &savePath, FileOps &ops) const;

private:
    // The watched file as it stands (links followed, the file they lead to put in `target`);
    // Missing when it is not there.
    PathInfo current(FileOps &ops, std::string *target = nullptr) const;

    std::string m_path;
    PathInfo m_known;    // as the program left it
    PathInfo m_reported; // the last version told of
};

// The name beside `path` that keeps the version of it changed at `modifiedNs` (nanoseconds
// since 1970, shown in local time to the minute): "game.dvb.theirs-20261124-1305".
std::string theirsCopyName(const std::string &path, long long modifiedNs);

// Whether `a` and `b` are one version of a file: same device, inode, size and time of change.
bool sameVersion(const PathInfo &a, const PathInfo &b);

} // namespace vorlane
