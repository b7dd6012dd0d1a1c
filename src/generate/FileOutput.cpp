#include "generate/FileOutput.h"

#include "io/ChunkWriter.h"
#include "io/CollectingSink.h"

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
        errno = 0;
        std::FILE *file = std::fopen(path.c_str(), "wb");
        if (!file)
            return reason(errno);
        return closeAfter(file, writeTo(file, bytes.data(), bytes.size()));
    }

    // The file is opened by the writer thread, before its first chunk: truncating a large file
    // that the device is still writing waits for the device, and meanwhile the producer goes
    // on, with chunks enough to hold most of an engine file.
    std::optional<std::string> writeChunked(const std::string &path,
                                            const ChunkProducer &produce) override
    {
        std::FILE *file = nullptr;
        const auto open = [&] {
            errno = 0;
            file = std::fopen(path.c_str(), "wb");
            return file ? 0 : errno != 0 ? errno : EIO;
        };
        int error = 0;
        {
            ChunkWriter writer(
                [&](const char *data, std::size_t size) {
                    if (!file) {
                        if (const int openError = open(); openError != 0)
                            return openError;
                    }
                    return writeTo(file, data, size);
                },
                {},
                EngineFileChunks);
            try {
                produce(writer);
            } catch (...) {
                writer.abandon(); // an engine file not yet opened is left as it was
                if (file)
                    std::fclose(file);
                throw;
            }
            error = writer.finish();
        }
        if (!file && error == 0)
            error = open(); // nothing was produced: the file is made empty
        if (!file)
            return reason(error);
        return closeAfter(file, error);
    }

private:
    static constexpr int EngineFileChunks = 8;

    // Closes `file` after writing it ended with `error`; closing flushes the last bytes, so
    // its failure is a failed write too.
    static std::optional<std::string> closeAfter(std::FILE *file, int error)
    {
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
