#pragma once

#include <string>

namespace vorlane {

// An exclusive lock on a folder, held by this process while the object lives, so that two
// programs never write the same set of files into it at the same time. The lock is the
// system's advisory lock on the folder itself: nothing is added to the folder, and the lock
// goes when the process ends, however it ends.
class FolderLock
{
public:
    // Tries to take the lock without waiting.
    explicit FolderLock(const std::string &folder);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    // False when another holder has the folder locked. A folder that cannot be opened is not
    // locked, and counts as free: writing into it fails on its own.
    bool busy() const { return m_busy; }

private:
    int m_handle = -1;
    bool m_busy = false;
};

// Whether `a` and `b` name one existing file (after symbolic links).
bool isSameFile(const std::string &a, const std::string &b);

} // namespace vorlane
