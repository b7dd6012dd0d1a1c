#pragma once

#include <string>

namespace vorlane {

// Removes a temporary file when the program is ended by a signal while the file exists
// (SIGTERM, SIGHUP, SIGINT, SIGQUIT), then lets the signal end the program as it would have.
// While any guard lives, SIGXFSZ is ignored, so that a file-size limit fails the write with
// EFBIG, which the save reports, instead of ending the program. Signals whose handling the
// program has changed are left alone.
class TemporaryFileGuard
{
public:
    explicit TemporaryFileGuard(const std::string &path);
    ~TemporaryFileGuard();
    TemporaryFileGuard(const TemporaryFileGuard &) = delete;
    TemporaryFileGuard &operator=(const TemporaryFileGuard &) = delete;

    // The file is gone or has become the saved file: nothing is to be removed any more.
    void release();

private:
    int m_slot = -1;
};

} // namespace vorlane
