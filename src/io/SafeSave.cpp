#include "io/SafeSave.h"

#include "io/SignalHold.h"
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

FileWriteResult failed(std::string reason, const std::string &target)
{
    FileWriteResult result;
    result.ok = false;
    result.reason = std::move(reason);
    result.target = target;
    return result;
}

// Renames `from` over `to`. When both are names of one file the system does nothing, so the
// second name, whose version `to` holds, goes: no extra name of a version stays behind.
int moveOver(FileOps &ops, const std::string &from, const std::string &to)
{
    if (const int error = ops.rename(from, to); error != 0)
        return error;
    PathInfo left;
    PathInfo kept;
    if (ops.inspect(from, left) == 0 && left.type == PathInfo::Type::Regular &&
        ops.inspect(to, kept) == 0 && left.device == kept.device && left.inode == kept.inode)
        ops.remove(from);
    return 0;
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
            moveOver(ops, from, backupName(target, number));
    }
    const std::string newest = backupName(target, 1);
    if (const int error = moveOver(ops, staged, newest); error != 0) {
        ops.remove(staged);
        result.notKept.push_back("its previous version could not be kept as \"" + newest +
                                 "\": " + errorText(error));
    }
}

// Gives the file `target` the second name `wanted`, or `wanted` followed by "-2", "-3"... when
// that name is taken; returns the name given, or "" when none could be.
std::string keepUnder(FileOps &ops, const std::string &target, const std::string &wanted)
{
    for (int number = 1; number < 100; ++number) {
        const std::string name = number == 1 ? wanted : wanted + "-" + std::to_string(number);
        const int error = ops.link(target, name);
        if (error == 0)
            return name;
        if (error != EEXIST)
            return {};
    }
    return {};
}

// The bytes at the start of a file that a refuseReplacing check is given.
constexpr std::size_t ReplaceCheckBytes = std::size_t{1} << 20;

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
        return failed(errorText(error), target);
    bool replacing = previous.type == PathInfo::Type::Regular;
    if (previous.type != PathInfo::Type::Missing && !replacing)
        return failed(subject + " is " + typeName(previous.type) + ", not a regular file", target);
    if (replacing && !previous.writable)
        return failed(subject + " is read-only", target);
    if (replacing && previous.size > 0 && options.refuseReplacing) {
        std::string start;
        if (const int error = ops.readStart(target, ReplaceCheckBytes, start); error != 0)
            return failed(errorText(error), target);
        if (std::string refusal = options.refuseReplacing(start); !refusal.empty())
            return failed(subject + " " + refusal, target);
    }

    std::string temporary;
    int handle = -1;
    int error = EEXIST;
    std::optional<TemporaryFileGuard> guard;
    {
        // The guard, and with it the handler, is there before the file: a signal that comes
        // meanwhile waits until the file is created, so that the handler, wherever it runs,
        // finds every temporary file there is (and no other file under a name tried).
        SignalHold hold;
        for (int attempt = 0; attempt < 100 && error == EEXIST; ++attempt) {
            temporary = hiddenNameFor(target, "saving", random);
            guard.emplace(temporary);
            error = ops.createNew(temporary, target, handle);
        }
        if (error != 0) {
            guard.reset();
            return failed(errorText(error), target);
        }
    }

    if (replacing)
        keepAttributes(ops, handle, previous, result);
    error = writeAll(ops, handle, bytes.data(), bytes.size());
    if (error == 0)
        error = ops.sync(handle);
    const int closeError = ops.close(handle);
    if (error == 0)
        error = closeError;

    if (error != 0) {
        ops.remove(temporary);
        return failed(errorText(error), target);
    }
    // What the file now holds, as a later look at it finds it: a rename keeps all of this.
    ops.inspect(temporary, result.written);

    // Another save of the same file waits here until this one has moved its backups on, so
    // that each keeps the version it replaces. The file is looked at again once the lock is
    // held: another save may have put it there, or replaced it, meanwhile.
    int lockHandle = -1;
    PathInfo current;
    if (ops.inspect(target, current) == 0 && current.type == PathInfo::Type::Regular)
        ops.lock(target, lockHandle);
    struct Unlock
    {
        FileOps &ops;
        int handle;
        ~Unlock() { ops.unlock(handle); }
    } unlock{ops, lockHandle};
    if (ops.inspect(target, current) == 0)
        replacing = current.type == PathInfo::Type::Regular;

    {
        // From the second name of the previous file to its place among the backups, a signal
        // waits: the previous version is then always the file or a backup, never a hidden
        // name.
        SignalHold hold;
        std::string staged;
        if (replacing && options.backups > 0) {
            staged = hiddenNameFor(target, "backup", random);
            if (const int linkError = ops.link(target, staged); linkError != 0) {
                result.notKept.push_back("no backup of its previous version could be made: " +
                                         errorText(linkError));
                staged.clear();
            }
        }
        std::string theirs;
        if (replacing && !options.keepReplacedAs.empty())
            theirs = keepUnder(ops, target, options.keepReplacedAs);
        error = ops.rename(temporary, target);
        if (error != 0) {
            ops.remove(temporary);
            if (!staged.empty())
                ops.remove(staged);
            if (!theirs.empty())
                ops.remove(theirs);
            return failed(errorText(error), target);
        }
        guard->release();
        result.keptAs = theirs;
        if (replacing && !options.keepReplacedAs.empty() && theirs.empty())
            result.notKept.push_back("the version it replaced could not be kept as \"" +
                                     options.keepReplacedAs + "\"");
        if (!staged.empty())
            keepBackup(ops, target, staged, options.backups, result);
    }
    ops.unlock(lockHandle);
    unlock.handle = -1;
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
    return nameBeside(path, ".bak" + std::to_string(number));
}

std::string nameBeside(const std::string &path, const std::string &suffix)
{
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
