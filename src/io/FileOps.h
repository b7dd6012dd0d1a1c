#pragma once

#include "io/ByteBuffer.h"

#include <cstddef>
#include <string>

namespace vorlane {

// The operating-system calls behind reading and safely saving a project file. The program
// uses SystemFileOps; tests put a failing one in its place. Each call returns 0 on success,
// otherwise the errno value of the failure.
class FileOps
{
public:
    virtual ~FileOps() = default;

    // Reads the whole file at `path` into `bytes`.
    virtual int readAll(const std::string &path, ByteBuffer &bytes) = 0;
    // Creates the file `path`, which must not exist yet, for writing; when `modelPath` names
    // an existing file the new one takes its permissions.
    virtual int createNew(const std::string &path, const std::string &modelPath, int &handle) = 0;
    // Writes up to `size` bytes, setting `written` to the number actually written.
    virtual int write(int handle, const char *data, size_t size, size_t &written) = 0;
    // Asks the system to start writing what was written so far to the storage device, ahead
    // of the sync that waits for it. Only a hint: it reports nothing.
    virtual void startWriteback(int /*handle*/) {}
    // Forces the written bytes to the storage device.
    virtual int sync(int handle) = 0;
    virtual int close(int handle) = 0;
    // Replaces `to` by `from` in one step.
    virtual int rename(const std::string &from, const std::string &to) = 0;
    virtual int remove(const std::string &path) = 0;
    // Makes a rename in `folder` durable; failures are of no consequence and not reported.
    virtual void syncFolder(const std::string &folder) = 0;
};

} // namespace vorlane
