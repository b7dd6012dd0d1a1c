#pragma once

#include "io/SystemFileOps.h"

#include <cerrno>
#include <string>
#include <vector>

namespace vorlane::testsupport {

// The system's file calls, with failures on request: a write that stops at a given byte,
// a failing read, sync, close or rename. Remembers the files it created.
class FailingFileOps : public SystemFileOps
{
public:
    long failWriteAt = -1; // the byte offset at which writing fails with ENOSPC
    int readError = 0;
    int syncError = 0;
    int closeError = 0;
    int renameError = 0;
    int ownerError = 0; // setOwner fails with it, whatever it is asked
    int modeError = 0;
    int linkError = 0;
    std::vector<std::string> created;
    size_t bytesWritten = 0;

    int readAll(const std::string &path, std::string &bytes) override
    {
        return readError != 0 ? readError : SystemFileOps::readAll(path, bytes);
    }
    int createNew(const std::string &path, const std::string &modelPath, int &handle) override
    {
        const int error = SystemFileOps::createNew(path, modelPath, handle);
        if (error == 0)
            created.push_back(path);
        return error;
    }
    int write(int handle, const char *data, size_t size, size_t &written) override
    {
        written = 0;
        if (failWriteAt >= 0) {
            const long room = failWriteAt - static_cast<long>(bytesWritten);
            if (room <= 0)
                return ENOSPC;
            size = std::min(size, static_cast<size_t>(room));
        }
        const int error = SystemFileOps::write(handle, data, size, written);
        bytesWritten += written;
        return error;
    }
    int sync(int handle) override
    {
        return syncError != 0 ? syncError : SystemFileOps::sync(handle);
    }
    int close(int handle) override
    {
        const int error = SystemFileOps::close(handle);
        return closeError != 0 ? closeError : error;
    }
    int setOwner(int handle, long uid, long gid) override
    {
        return ownerError != 0 ? ownerError : SystemFileOps::setOwner(handle, uid, gid);
    }
    int setMode(int handle, unsigned mode) override
    {
        return modeError != 0 ? modeError : SystemFileOps::setMode(handle, mode);
    }
    int link(const std::string &from, const std::string &to) override
    {
        return linkError != 0 ? linkError : SystemFileOps::link(from, to);
    }
    int rename(const std::string &from, const std::string &to) override
    {
        return renameError != 0 ? renameError : SystemFileOps::rename(from, to);
    }
};

} // namespace vorlane::testsupport
