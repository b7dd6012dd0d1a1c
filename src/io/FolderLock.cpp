#include "io/FolderLock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vorlane {

FolderLock::FolderLock(const std::string &folder)
{
    m_handle = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_handle < 0)
        return;
    int result = 0;
    while ((result = ::flock(m_handle, LOCK_EX | LOCK_NB)) != 0 && errno == EINTR) {
    }
    if (result != 0) {
        m_busy = errno == EWOULDBLOCK;
        ::close(m_handle);
        m_handle = -1;
    }
}

FolderLock::~FolderLock()
{
    if (m_handle >= 0)
        ::close(m_handle); // releases the lock
}

bool isSameFile(const std::string &a, const std::string &b)
{
    struct stat first
    {
    };
    struct stat second
    {
    };
    return !a.empty() && !b.empty() && ::stat(a.c_str(), &first) == 0 &&
           ::stat(b.c_str(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

} // namespace vorlane
