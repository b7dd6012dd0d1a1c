#pragma once

#include "io/FileOps.h"

namespace vorlane {

// FileOps on the POSIX calls of the running system.
class SystemFileOps : public FileOps
{
public:
    int readAll(const std::string &path, std::string &bytes) override;
    int createNew(const std::string &path, const std::string &modelPath, int &handle) override;
    int inspect(const std::string &path, PathInfo &info) override;
    int readLink(const std::string &path, std::string &target) override;
    int setMode(int handle, unsigned mode) override;
    int setOwner(int handle, long uid, long gid) override;
    int link(const std::string &from, const std::string &to) override;
    int write(int handle, const char *data, size_t size, size_t &written) override;
    int sync(int handle) override;
    int close(int handle) override;
    int rename(const std::string &from, const std::string &to) override;
    int remove(const std::string &path) override;
    void syncFolder(const std::string &folder) override;
};

// The instance the program uses.
FileOps &systemFileOps();

} // namespace vorlane
