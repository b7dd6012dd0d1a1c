#include "project/SafeSave.h"

#include <cerrno>
#include <random>
#include <system_error>

namespace vorlane {

namespace {

// A name next to `path` that no other file is likely to have: ".NAME.saving-XXXXXXXX".
std::string temporaryNameFor(const std::string &path, std::mt19937 &random)
{
    static const char Hex[] = "0123456789abcdef";
    const size_t slash = path.rfind('/');
    const size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    std::string name = path.substr(0, nameStart) + "." + path.substr(nameStart) + ".saving-";
    uint32_t bits = static_cast<uint32_t>(random());
    for (int i = 0; i < 8; ++i, bits >>= 4)
        name.push_back(Hex[bits & 0xF]);
    return name;
}

} // namespace

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
    return std::generic_category().message(error);
}

FileWriteResult writeFileSafely(const std::string &path, std::string_view bytes, FileOps &ops)
{
    static std::mt19937 random{std::random_device{}()};

    std::string temporary;
    int handle = -1;
    int error = EEXIST;
    for (int attempt = 0; attempt < 100 && error == EEXIST; ++attempt) {
        temporary = temporaryNameFor(path, random);
        error = ops.createNew(temporary, path, handle);
    }
    if (error != 0)
        return {false, errorText(error)};

    size_t done = 0;
    while (error == 0 && done < bytes.size()) {
        size_t written = 0;
        error = ops.write(handle, bytes.data() + done, bytes.size() - done, written);
        if (error == 0 && written == 0)
            error = EIO; // a write that makes no progress would never end
        done += written;
    }
    if (error == 0)
        error = ops.sync(handle);
    const int closeError = ops.close(handle);
    if (error == 0)
        error = closeError;
    if (error == 0)
        error = ops.rename(temporary, path);
    if (error != 0) {
        ops.remove(temporary);
        return {false, errorText(error)};
    }
    ops.syncFolder(folderOf(path));
    return {};
}

} // namespace vorlane
