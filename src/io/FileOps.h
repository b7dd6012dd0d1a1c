#pragma once

#include <cstddef>
#include <string>

namespace vorlane {

// What the system tells of a path, without following a final symbolic link.
struct PathInfo
{
    enum class Type { Missing, Regular, Directory, SymbolicLink, Fifo, Device, Socket, Other };
    Type type = Type::Missing;
    unsigned mode = 0; // the permission bits
    unsigned uid = 0;
    unsigned gid = 0;
    unsigned long links = 0;
    unsigned long long device = 0;
    unsigned long long inode = 0;
    bool writable = false; // the running user may write it, and some write bit is set
    long long size = 0;
};

// The operating-system calls behind reading and safely saving a project file. The program
// uses SystemFileOps; tests put a failing one in its place. Each call returns 0 on success,
// otherwise the errno value of the failure.
class FileOps
{
public:
    virtual ~FileOps() = default;

    // Reads the whole file at `path` into `bytes`.
    virtual int readAll(const std::string &path, std::string &bytes) = 0;
    // Creates the file `path`, which must not exist yet, for writing. When `modelPath` names
    // an existing file the new one is readable by its owner only, until setMode gives it the
    // model's permissions: a failure there must not leave it more open than the model.
    virtual int createNew(const std::string &path, const std::string &modelPath, int &handle) = 0;
    // What `path` is; 0 with the type Missing when nothing is there.
    virtual int inspect(const std::string &path, PathInfo &info) = 0;
    // The text of the symbolic link `path`.
    virtual int readLink(const std::string &path, std::string &target) = 0;
    // Gives the open file the permission bits `mode`.
    virtual int setMode(int handle, unsigned mode) = 0;
    // Gives the open file the owner `uid` and group `gid`; -1 leaves one as it is.
    virtual int setOwner(int handle, long uid, long gid) = 0;
    // Makes `to` a second name of the file `from`.
    virtual int link(const std::string &from, const std::string &to) = 0;
    // Writes up to `size` bytes, setting `written` to the number actually written.
    virtual int write(int handle, const char *data, size_t size, size_t &written) = 0;
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
