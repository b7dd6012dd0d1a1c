#include "generate/FileOutput.h"

#include "io/SafeSave.h"
#include "io/SystemFileOps.h"

namespace vorlane {

namespace {

std::optional<std::string> reasonOf(FileWriteResult result)
{
    if (result.ok)
        return std::nullopt;
    return std::move(result.reason);
}

} // namespace

// Each engine file goes through a temporary file beside it, so that a full disk or a killed
// generation never leaves a file cut in the middle of a record.
std::optional<std::string> SafeFileOutput::writeFile(const std::string &path,
                                                     std::string_view bytes)
{
    return reasonOf(writeFileSafely(path, bytes, m_ops));
}

FileOutput &diskFileOutput()
{
    static SafeFileOutput disk(systemFileOps());
    return disk;
}

} // namespace vorlane
