#include "io/SystemFileOps.h"

#include "io/SafeSave.h"

#include <cerrno>
#include <cstdio>
#include <new>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vorlane {

namespace {

int closeKeepingError(int handle, int error)
{
    ::close(handle);
    return error;
}

} // namespace

int SystemFileOps::readAll(const std::string &path, ByteBuffer &bytes)
{
    // Non-blocking, so that opening a pipe without a writer cannot hang before it is refused.
    const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (handle < 0)
        return errno;
    struct stat info
    {
    };
    if (::fstat(handle, &info) != 0)
        return closeKeepingError(handle, errno);
    if (S_ISDIR(info.st_mode))
        return closeKeepingError(handle, EISDIR);
    if (!S_ISREG(info.st_mode))
        return closeKeepingError(handle, NotARegularFile);

    // One read into a buffer of the file's size; a file that grows meanwhile is read on until
    // its end.
    bytes.clear();
    // A file too large for the memory there is is reported like any unreadable file.
    const auto makeRoom = [&bytes](size_t size) {
        try {
            bytes.reserve(size);
            return true;
        } catch (const std::bad_alloc &) {
            return false;
        }
    };
    if (!makeRoom(static_cast<size_t>(info.st_size) + 1))
        return closeKeepingError(handle, ENOMEM);
    for (;;) {
        if (bytes.size() == bytes.capacity() && !makeRoom(bytes.capacity() * 2)) {
            bytes.clear();
            return closeKeepingError(handle, ENOMEM);
        }
        const ssize_t n =
            ::read(handle, bytes.data() + bytes.size(), bytes.capacity() - bytes.size());
        if (n < 0) {
            if (errno == EINTR)
                continue;
            const int error = errno;
            bytes.clear();
            return closeKeepingError(handle, error);
        }
        if (n == 0)
            break;
        bytes.setSize(bytes.size() + static_cast<size_t>(n));
    }
    ::close(handle);
    return 0;
}

int SystemFileOps::createNew(const std::string &path, const std::string &modelPath, int &handle)
{
    handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (handle < 0)
        return errno;
    struct stat model
    {
    };
    if (::stat(modelPath.c_str(), &model) == 0 && S_ISREG(model.st_mode))
        ::fchmod(handle, model.st_mode & 07777); // keeping the old permissions is a courtesy
    return 0;
}

int SystemFileOps::write(int handle, const char *data, size_t size, size_t &written)
{
    written = 0;
    for (;;) {
        const ssize_t n = ::write(handle, data, size);
        if (n >= 0) {
            written = static_cast<size_t>(n);
            return 0;
        }
        if (errno != EINTR)
            return errno;
    }
}

void SystemFileOps::startWriteback(int handle)
{
    ::sync_file_range(handle, 0, 0, SYNC_FILE_RANGE_WRITE);
}

int SystemFileOps::sync(int handle)
{
    return ::fsync(handle) == 0 ? 0 : errno;
}

int SystemFileOps::close(int handle)
{
    return ::close(handle) == 0 ? 0 : errno;
}

int SystemFileOps::rename(const std::string &from, const std::string &to)
{
    return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int SystemFileOps::remove(const std::string &path)
{
    return ::unlink(path.c_str()) == 0 ? 0 : errno;
}

void SystemFileOps::syncFolder(const std::string &folder)
{
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
}

FileOps &systemFileOps()
{
    static SystemFileOps ops;
    return ops;
}

} // namespace vorlane
