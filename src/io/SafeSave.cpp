#include "io/SafeSave.h"

#include "io/ChunkWriter.h"

#include <cerrno>
#include <random>
#include <system_error>

namespace vorlane {

namespace {

// A name next to `path` that no other file is likely to have: ".NAME.saving-XXXXXXXX".
std::string temporaryNameFor(const std::string &path, std::mt19937 &random)
{
    static const char Hex[] = "0123456789abcdef";
    const size_t slash = path.rfind('/');
    const size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    std::string name = path.substr(0, nameStart) + "." + path.substr(nameStart) + ".saving-";
    uint32_t bits = static_cast<uint32_t>(random());
    for (int i = 0; i < 8; ++i, bits >>= 4)
        name.push_back(Hex[bits & 0xF]);
    return name;
}

} // namespace

std::string folderOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    if (slash == 0)
        return "/";
    return path.substr(0, slash);
}

std::string errorText(int error)
{
    if (error == NotARegularFile)
        return "not a regular file";
    return std::generic_category().message(error);
}

namespace {

// Writes every byte of `data` to the open file `handle`, a piece at a time as the system
// takes them; 0, or the errno value of the failure (EIO for a write that makes no progress).
int writeAll(FileOps &ops, int handle, const char *data, std::size_t size)
{
    std::size_t done = 0;
    while (done < size) {
        std::size_t written = 0;
        if (const int error = ops.write(handle, data + done, size - done, written); error != 0)
            return error;
        if (written == 0)
            return EIO; // a write that makes no progress would never end
        done += written;
    }
    return 0;
}

// Creates the temporary file, lets `fill` write it, then forces it to the device and renames
// it over `path`; on any failure, and when `fill` throws, the temporary file is removed.
template<class Fill>
FileWriteResult writeThroughTemporary(const std::string &path, FileOps &ops, const Fill &fill)
{
    static std::mt19937 random{std::random_device{}()};

    std::string temporary;
    int handle = -1;
    int error = EEXIST;
    for (int attempt = 0; attempt < 100 && error == EEXIST; ++attempt) {
        temporary = temporaryNameFor(path, random);
        error = ops.createNew(temporary, path, handle);
    }
    if (error != 0)
        return {false, errorText(error)};

    try {
        error = fill(handle);
    } catch (...) {
        ops.close(handle);
        ops.remove(temporary);
        throw;
    }
    if (error == 0)
        error = ops.sync(handle);
    const int closeError = ops.close(handle);
    if (error == 0)
        error = closeError;
    if (error == 0)
        error = ops.rename(temporary, path);
    if (error != 0) {
        ops.remove(temporary);
        return {false, errorText(error)};
    }
    ops.syncFolder(folderOf(path));
    return {};
}

} // namespace

FileWriteResult writeFileSafely(const std::string &path, std::string_view bytes, FileOps &ops)
{
    return writeThroughTemporary(
        path, ops, [&](int handle) { return writeAll(ops, handle, bytes.data(), bytes.size()); });
}

FileWriteResult writeFileSafely(const std::string &path, const ChunkProducer &produce, FileOps &ops)
{
    return writeThroughTemporary(path, ops, [&](int handle) {
        // The device starts on each chunk as soon as it is written, so that the sync at the end
        // has little left to wait for.
        ChunkWriter writer(
            [&](const char *data, std::size_t size) { return writeAll(ops, handle, data, size); },
            [&] { ops.startWriteback(handle); });
        produce(writer);
        return writer.finish();
    });
}

} // namespace vorlane
