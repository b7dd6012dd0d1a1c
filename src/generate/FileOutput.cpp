#include "generate/FileOutput.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace vorlane {

namespace {

class DiskFileOutput final : public FileOutput
{
public:
    std::optional<std::string> writeFile(const std::string &path, std::string_view bytes) override
    {
        errno = 0;
        std::FILE *file = std::fopen(path.c_str(), "wb");
        if (!file)
            return reason();
        const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
        const int writeError = errno;
        // Closing flushes the last bytes, so its failure is a failed write too.
        const bool closed = std::fclose(file) == 0;
        if (!written) {
            errno = writeError;
            return reason();
        }
        if (!closed)
            return reason();
        return std::nullopt;
    }

private:
    static std::string reason() { return errno != 0 ? std::strerror(errno) : "unknown error"; }
};

} // namespace

FileOutput &diskFileOutput()
{
    static DiskFileOutput disk;
    return disk;
}

} // namespace vorlane
