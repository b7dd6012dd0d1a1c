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

int SystemFileOps::readAll(const std::string &path, std::string &bytes)
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
    // Refused before any memory is taken for it.
    if (info.st_size > MaxProjectFileSize)
        return closeKeepingError(handle, FileTooLarge);

    // One read into a buffer of the file's size; a file that grows meanwhile is read on until
    // its end.
    bytes.clear();
    // A file too large for the memory there is is reported like any unreadable file.
    const auto makeRoom = [&bytes](size_t size) {
        try {
            bytes.resize(size);
            return true;
        } catch (const std::bad_alloc &) {
            return false;
        }
    };
    if (!makeRoom(static_cast<size_t>(info.st_size) + 1))
        return closeKeepingError(handle, ENOMEM);
    size_t size = 0; // the bytes read so far; the rest of `bytes` is room
    for (;;) {
        if (size == bytes.size() && !makeRoom(bytes.size() * 2)) {
            bytes.clear();
            return closeKeepingError(handle, ENOMEM);
        }
        const ssize_t n = ::read(handle, bytes.data() + size, bytes.size() - size);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            const int error = errno;
            bytes.clear();
            return closeKeepingError(handle, error);
        }
        if (n == 0)
            break;
        size += static_cast<size_t>(n);
        if (size > static_cast<size_t>(MaxProjectFileSize)) { // it grew meanwhile
            bytes.clear();
            return closeKeepingError(handle, FileTooLarge);
        }
    }
    bytes.resize(size);
    ::close(handle);
    return 0;
}

int SystemFileOps::createNew(const std::string &path, const std::string &modelPath, int &handle)
{
    struct stat model
    {
    };
    const bool hasModel = ::stat(modelPath.c_str(), &model) == 0 && S_ISREG(model.st_mode);
    handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, hasModel ? 0600 : 0666);
    return handle < 0 ? errno : 0;
}

int SystemFileOps::inspect(const std::string &path, PathInfo &info)
{
    info = PathInfo{};
    struct stat status
    {
    };
    if (::lstat(path.c_str(), &status) != 0)
        return errno == ENOENT ? 0 : errno;
    const mode_t type = status.st_mode & S_IFMT;
    info.type = type == S_IFREG                      ? PathInfo::Type::Regular
                : type == S_IFDIR                    ? PathInfo::Type::Directory
                : type == S_IFLNK                    ? PathInfo::Type::SymbolicLink
                : type == S_IFIFO                    ? PathInfo::Type::Fifo
                : type == S_IFCHR || type == S_IFBLK ? PathInfo::Type::Device
                : type == S_IFSOCK                   ? PathInfo::Type::Socket
                                                     : PathInfo::Type::Other;
    info.mode = status.st_mode & 07777;
    info.uid = status.st_uid;
    info.gid = status.st_gid;
    info.links = status.st_nlink;
    info.device = status.st_dev;
    info.inode = status.st_ino;
    info.size = status.st_size;
    // The administrator may write any file; a file without a write bit is still read-only.
    info.writable = (info.mode & 0222) != 0 && ::access(path.c_str(), W_OK) == 0;
    return 0;
}

int SystemFileOps::readLink(const std::string &path, std::string &target)
{
    std::string buffer(256, '\0');
    for (;;) {
        const ssize_t n = ::readlink(path.c_str(), buffer.data(), buffer.size());
        if (n < 0)
            return errno;
        if (static_cast<size_t>(n) < buffer.size()) {
            buffer.resize(static_cast<size_t>(n));
            target = std::move(buffer);
            return 0;
        }
        buffer.resize(buffer.size() * 2);
    }
}

int SystemFileOps::setMode(int handle, unsigned mode)
{
    return ::fchmod(handle, static_cast<mode_t>(mode)) == 0 ? 0 : errno;
}

int SystemFileOps::setOwner(int handle, long uid, long gid)
{
    struct stat status
    {
    };
    if (::fstat(handle, &status) == 0 && (uid < 0 || status.st_uid == static_cast<uid_t>(uid)) &&
        (gid < 0 || status.st_gid == static_cast<gid_t>(gid)))
        return 0; // nothing to change, which needs no right
    return ::fchown(handle, static_cast<uid_t>(uid), static_cast<gid_t>(gid)) == 0 ? 0 : errno;
}

int SystemFileOps::link(const std::string &from, const std::string &to)
{
    return ::link(from.c_str(), to.c_str()) == 0 ? 0 : errno;
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
