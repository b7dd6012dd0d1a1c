#pragma once

#include "io/FileOps.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// Where generation puts its files. The disk is the real one; tests put a layer in between to
// make a chosen file fail.
class FileOutput
{
public:
    virtual ~FileOutput() = default;
    // Creates or truncates `path`, writes `bytes` and closes it; the operating system's reason
    // when any of that fails, nothing on success.
    virtual std::optional<std::string> writeFile(const std::string &path,
                                                 std::string_view bytes) = 0;
};

// Writes each file through `ops` as a project file is saved: beside it, then renamed over it,
// so that a failure leaves the previous file whole.
class SafeFileOutput final : public FileOutput
{
public:
    explicit SafeFileOutput(FileOps &ops)
        : m_ops(ops)
    {}
    std::optional<std::string> writeFile(const std::string &path, std::string_view bytes) override;

private:
    FileOps &m_ops;
};

// Writes files to the disk, each replaced whole: written beside it and renamed over it, as a
// project file is saved.
FileOutput &diskFileOutput();

} // namespace vorlane
