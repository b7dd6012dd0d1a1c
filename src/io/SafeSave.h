#pragma once

#include "io/FileOps.h"

#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// How a safe write ended; `reason` is the operating system's message (or why the file was
// refused) when it failed.
struct FileWriteResult
{
    bool ok = true;
    std::string reason;
    // The file replaced: the path itself, or the final target of the symbolic link it names.
    std::string target;
    // What of the previous file could not be carried over to the new one, one sentence end
    // each: "its owner could not be kept: Operation not permitted".
    std::vector<std::string> notKept;
};

// How a safe write treats the file it replaces.
struct SafeWriteOptions
{
    // Previous versions kept beside the file as NAME.bak1 (the newest) to NAME.bakN.
    int backups = 0;
};

// The number of previous versions a project Save keeps.
inline constexpr int ProjectBackups = 3;

// Writes `bytes` to `path` without risking the file already there: the bytes go to a new
// temporary file in the file's folder (the folder of a symbolic link's final target), are
// forced to the device and the temporary file is then renamed over the file, taking its
// permissions, owner and group. A path that is not a regular file, or a file without write
// permission, is refused untouched. On failure the file is untouched and no temporary file
// remains.
FileWriteResult writeFileSafely(const std::string &path,
                                std::string_view bytes,
                                FileOps &ops,
                                const SafeWriteOptions &options = {});

// The file a save of `path` replaces: symbolic links followed to their final target (which
// need not exist yet). Sets `reason` and returns false when the links cannot be followed.
bool resolveSaveTarget(const std::string &path,
                       FileOps &ops,
                       std::string &target,
                       std::string &reason);

// The name of the `number`-th backup of `path` (1 the newest): "game.dvb.bak1"; a name too
// long for the folder is shortened so that the whole stays within 255 bytes.
std::string backupName(const std::string &path, int number);

// The longest file name a folder takes, in bytes.
inline constexpr std::size_t NameLimit = 255;

// The folder part of `path` ("." when it has none), as used for the temporary file.
std::string folderOf(const std::string &path);

// The operating system's message for the errno value `error`.
std::string errorText(int error);

// The error FileOps::readAll reports for a device, pipe or socket: reading one could block
// or never end, so project files are read from regular files only.
inline constexpr int NotARegularFile = -2;
// The error FileOps::readAll reports for a file larger than MaxProjectFileSize.
inline constexpr int FileTooLarge = -3;
// A project file with every table full is some 9 MB; a file this large holds no project.
inline constexpr long long MaxProjectFileSize = 256LL << 20;

} // namespace vorlane
