#include "generate/FileOutput.h"

#include "model/ChunkWriter.h"
#include "model/CollectingSink.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace vorlane {

std::optional<std::string> FileOutput::writeChunked(const std::string &path,
                                                    const ChunkProducer &produce)
{
    CollectingSink sink;
    produce(sink);
    return writeFile(path, sink.bytes().view());
}

namespace {

// Writes `size` bytes to `file`; 0, or the errno value of the failure.
int writeTo(std::FILE *file, const char *data, std::size_t size)
{
    errno = 0;
    if (std::fwrite(data, 1, size, file) == size)
        return 0;
    return errno != 0 ? errno : EIO;
}

class DiskFileOutput final : public FileOutput
{
public:
    std::optional<std::string> writeFile(const std::string &path, std::string_view bytes) override
    {
        return writeWith(
            path, [&](std::FILE *file) { return writeTo(file, bytes.data(), bytes.size()); });
    }

    std::optional<std::string> writeChunked(const std::string &path,
                                            const ChunkProducer &produce) override
    {
        return writeWith(path, [&](std::FILE *file) {
            ChunkWriter writer(
                [file](const char *data, std::size_t size) { return writeTo(file, data, size); });
            produce(writer);
            return writer.finish();
        });
    }

private:
    // Creates or truncates `path`, lets `fill` write it and closes it; the file is closed
    // however `fill` ends.
    template<class Fill>
    static std::optional<std::string> writeWith(const std::string &path, const Fill &fill)
    {
        errno = 0;
        std::FILE *file = std::fopen(path.c_str(), "wb");
        if (!file)
            return reason(errno);
        int error = 0;
        try {
            error = fill(file);
        } catch (...) {
            std::fclose(file);
            throw;
        }
        // Closing flushes the last bytes, so its failure is a failed write too.
        errno = 0;
        if (std::fclose(file) != 0 && error == 0)
            error = errno != 0 ? errno : EIO;
        if (error != 0)
            return reason(error);
        return std::nullopt;
    }

    static std::string reason(int error)
    {
        return error != 0 ? std::strerror(error) : "unknown error";
    }
};

} // namespace

FileOutput &diskFileOutput()
{
    static DiskFileOutput disk;
    return disk;
}

} // namespace vorlane
