#pragma once

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

// Writes files straight to the disk, in place (no temporary file).
FileOutput &diskFileOutput();

} // namespace vorlane
