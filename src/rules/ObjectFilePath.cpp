#include "rules/ObjectFilePath.h"

#include "rules/FieldRules.h"

#include <algorithm>
#include <filesystem>

namespace vorlane {

namespace {

std::string forwardSlashes(std::string_view path)
{
    std::string result(path);
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

bool names(std::string_view path)
{
    return !path.empty() && path != NullText;
}

// `path` under `folder`, with "." and ".." taken out so that messages name a plain path.
std::string joined(const std::string &folder, const std::string &path)
{
    if (folder.empty())
        return std::filesystem::path(path).lexically_normal().generic_string();
    return (std::filesystem::path(folder) / path).lexically_normal().generic_string();
}

std::string folderOf(std::string_view file)
{
    const std::string path = forwardSlashes(file);
    const size_t cut = path.find_last_of('/');
    if (cut == std::string::npos)
        return std::string();
    return path.substr(0, cut == 0 ? 1 : cut);
}

} // namespace

bool isAbsolutePath(std::string_view path)
{
    if (path.empty())
        return false;
    if (path.front() == '/' || path.front() == '\\')
        return true;
    const unsigned char first = static_cast<unsigned char>(path.front());
    return path.size() >= 2 && path[1] == ':' &&
           ((first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z'));
}

std::optional<std::string> resolveObjectPath(std::string_view stored,
                                             std::string_view rootFolder,
                                             std::string_view projectFile)
{
    if (!names(stored))
        return std::nullopt;
    const std::string path = forwardSlashes(stored);
    if (isAbsolutePath(path))
        return path;
    const std::string projectFolder = folderOf(projectFile);
    if (names(rootFolder)) {
        std::string root = forwardSlashes(rootFolder);
        if (!isAbsolutePath(root))
            root = joined(projectFolder, root);
        return joined(root, path);
    }
    return joined(projectFolder, path);
}

std::string pathsProjectFile(const Document &doc)
{
    // The path the file records of itself may come from another machine or hold no folder;
    // the file that was opened is where the project's files really lie.
    if (!doc.openedFrom.empty())
        return doc.openedFrom;
    return projectSavePath(doc);
}

std::optional<std::string> resolveObjectPath(const Document &doc, std::string_view stored)
{
    return resolveObjectPath(stored, doc.AppSettings.rootFolder, pathsProjectFile(doc));
}

} // namespace vorlane
