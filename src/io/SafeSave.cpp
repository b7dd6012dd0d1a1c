#include "io/SafeSave.h"

#include "io/TemporaryFileGuard.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <random>
#include <system_error>

namespace vorlane {

namespace {

// Links followed before giving up, as the system does.
constexpr int MaxLinks = 40;

size_t nameStartOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? 0 : slash + 1;
}

// A name beside `path` that no other file is likely to have: ".NAME.KIND-XXXXXXXX", NAME cut
// so that the whole stays within the folder's name limit.
std::string hiddenNameFor(const std::string &path, std::string_view kind, std::mt19937 &random)
{
    static const char Hex[] = "0123456789abcdef";
    const size_t nameStart = nameStartOf(path);
    const size_t room = NameLimit - 1 - 1 - kind.size() - 1 - 8;
    std::string name = path.substr(0, nameStart) + "." +
                       path.substr(nameStart, std::min(path.size() - nameStart, room)) + ".";
    name.append(kind).append("-");
    uint32_t bits = static_cast<uint32_t>(random());
    for (int i = 0; i < 8; ++i, bits >>= 4)
        name.push_back(Hex[bits & 0xF]);
    return name;
}

const char *typeName(PathInfo::Type type)
{
    switch (type) {
    case PathInfo::Type::Directory:
        return "a folder";
    case PathInfo::Type::Fifo:
        return "a named pipe (FIFO)";
    case PathInfo::Type::Device:
        return "a device";
    case PathInfo::Type::Socket:
        return "a socket";
    default:
        return "not a file";
    }
}

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

// Gives the new file the owner, group and permissions of the previous one; what could not be
// given is added to `notKept`. The owner goes first: changing it may clear set-id bits.
void keepAttributes(FileOps &ops, int handle, const PathInfo &previous, FileWriteResult &result)
{
    if (const int error = ops.setOwner(handle, previous.uid, previous.gid); error != 0) {
        // A user may still keep the group when they belong to it.
        if (ops.setOwner(handle, -1, previous.gid) == 0)
            result.notKept.push_back("its owner could not be kept: " + errorText(error));
        else
            result.notKept.push_back("its owner and group could not be kept: " + errorText(error));
    }
    if (const int error = ops.setMode(handle, previous.mode); error != 0)
        result.notKept.push_back("its permissions could not be kept: " + errorText(error));
}

// Moves the backups one place on (the oldest is dropped) and makes `staged`, a second name of
// the previous file, the newest.
void keepBackup(FileOps &ops,
                const std::string &target,
                const std::string &staged,
                int backups,
                FileWriteResult &result)
{
    for (int number = backups; number > 1; --number) {
        PathInfo older;
        const std::string from = backupName(target, number - 1);
        if (ops.inspect(from, older) == 0 && older.type == PathInfo::Type::Regular)
            ops.rename(from, backupName(target, number));
    }
    const std::string newest = backupName(target, 1);
    if (const int error = ops.rename(staged, newest); error != 0) {
        ops.remove(staged);
        result.notKept.push_back("its previous version could not be kept as \"" + newest +
                                 "\": " + errorText(error));
    }
}

// Creates the temporary file, writes `bytes` to it, forces it to the device and renames it
// over the target; on any failure the temporary file is removed.
FileWriteResult writeThroughTemporary(const std::string &path,
                                      std::string_view bytes,
                                      FileOps &ops,
                                      const SafeWriteOptions &options)
{
    static std::mt19937 random{std::random_device{}()};

    FileWriteResult result;
    if (!resolveSaveTarget(path, ops, result.target, result.reason)) {
        result.ok = false;
        return result;
    }
    const std::string &target = result.target;
    // How the refused file is named in the reason: the link's target when it is not the path.
    const std::string subject = target == path ? "it" : "its target \"" + target + "\"";

    PathInfo previous;
    if (const int error = ops.inspect(target, previous); error != 0)
        return {false, errorText(error), target, {}};
    const bool replacing = previous.type == PathInfo::Type::Regular;
    if (previous.type != PathInfo::Type::Missing && !replacing)
        return {
            false, subject + " is " + typeName(previous.type) + ", not a regular file", target, {}};
    if (replacing && !previous.writable)
        return {false, subject + " is read-only", target, {}};

    std::string temporary;
    int handle = -1;
    int error = EEXIST;
    for (int attempt = 0; attempt < 100 && error == EEXIST; ++attempt) {
        temporary = hiddenNameFor(target, "saving", random);
        error = ops.createNew(temporary, target, handle);
    }
    if (error != 0)
        return {false, errorText(error), target, {}};
    TemporaryFileGuard guard(temporary);

    if (replacing)
        keepAttributes(ops, handle, previous, result);
    error = writeAll(ops, handle, bytes.data(), bytes.size());
    if (error == 0)
        error = ops.sync(handle);
    const int closeError = ops.close(handle);
    if (error == 0)
        error = closeError;

    // The previous file gets a second name before it is replaced, so that it is never gone
    // before the new one is in place; the name becomes the newest backup only after that.
    std::string staged;
    std::optional<TemporaryFileGuard> stagedGuard;
    if (error == 0 && replacing && options.backups > 0) {
        staged = hiddenNameFor(target, "backup", random);
        if (const int linkError = ops.link(target, staged); linkError != 0) {
            result.notKept.push_back("no backup of its previous version could be made: " +
                                     errorText(linkError));
            staged.clear();
        } else {
            stagedGuard.emplace(staged);
        }
    }
    if (error == 0)
        error = ops.rename(temporary, target);
    if (error != 0) {
        ops.remove(temporary);
        if (!staged.empty())
            ops.remove(staged);
        return {false, errorText(error), target, {}};
    }
    guard.release();
    if (!staged.empty())
        keepBackup(ops, target, staged, options.backups, result);
    ops.syncFolder(folderOf(target));
    return result;
}

} // namespace

bool resolveSaveTarget(const std::string &path,
                       FileOps &ops,
                       std::string &target,
                       std::string &reason)
{
    target = path;
    for (int hops = 0;; ++hops) {
        PathInfo info;
        if (const int error = ops.inspect(target, info); error != 0) {
            reason = errorText(error);
            return false;
        }
        if (info.type != PathInfo::Type::SymbolicLink)
            return true;
        if (hops == MaxLinks) {
            reason = errorText(ELOOP);
            return false;
        }
        std::string next;
        if (const int error = ops.readLink(target, next); error != 0) {
            reason = errorText(error);
            return false;
        }
        // A relative link is relative to the folder that holds it.
        const size_t nameStart = nameStartOf(target);
        target = !next.empty() && next.front() == '/' ? next : target.substr(0, nameStart) + next;
    }
}

std::string backupName(const std::string &path, int number)
{
    const std::string suffix = ".bak" + std::to_string(number);
    const size_t nameStart = nameStartOf(path);
    const size_t room = NameLimit - suffix.size();
    return path.substr(0, nameStart) +
           path.substr(nameStart, std::min(path.size() - nameStart, room)) + suffix;
}

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
    if (error == FileTooLarge)
        return "the file is larger than 256 MiB, far more than any project holds";
    return std::generic_category().message(error);
}

FileWriteResult writeFileSafely(const std::string &path,
                                std::string_view bytes,
                                FileOps &ops,
                                const SafeWriteOptions &options)
{
    return writeThroughTemporary(path, bytes, ops, options);
}

} // namespace vorlane
