#pragma once

#include "io/ChunkSink.h"
#include "io/FileOps.h"

#include <string>
#include <string_view>

namespace vorlane {

// How a safe write ended; `reason` is the operating system's message when it failed.
struct FileWriteResult
{
    bool ok = true;
    std::string reason;
};

// Writes `bytes` to `path` without risking the file already there: the bytes go to a new
// temporary file in the same folder, are forced to the device and the temporary file is then
// renamed over `path`. On failure `path` is untouched and no temporary file remains.
FileWriteResult writeFileSafely(const std::string &path, std::string_view bytes, FileOps &ops);

// The same for the bytes `produce` hands to its sink, which are written while it produces
// the next ones. When `produce` throws, the temporary file is removed and the exception
// passes on.
FileWriteResult
writeFileSafely(const std::string &path, const ChunkProducer &produce, FileOps &ops);

// The folder part of `path` ("." when it has none), as used for the temporary file.
std::string folderOf(const std::string &path);

// The operating system's message for the errno value `error`.
std::string errorText(int error);

// The error FileOps::readAll reports for a device, pipe or socket: reading one could block
// or never end, so project files are read from regular files only.
inline constexpr int NotARegularFile = -2;

} // namespace vorlane
