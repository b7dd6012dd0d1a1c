#include "generate/GeneratePaths.h"

namespace vorlane {

std::string folderOf(std::string_view path)
{
    const std::size_t separator = path.find_last_of("/\\");
    if (separator == std::string_view::npos)
        return {};
    return std::string(path.substr(0, separator + 1));
}

std::optional<GeneratePaths> computeGeneratePaths(std::string_view chosenPath,
                                                  std::string_view rootFolder)
{
    GeneratePaths paths;
    paths.generatePath = folderOf(chosenPath);
    if (rootFolder.empty()) {
        paths.dataFolderRel = "null";
        return paths;
    }
    // The last occurrence of the root, compared exactly; what follows it, less the one
    // character after it (the separator), is the data folder's path from the root.
    const std::size_t root = chosenPath.rfind(rootFolder);
    if (root == std::string_view::npos)
        return std::nullopt;
    const std::size_t rest = root + rootFolder.size() + 1;
    paths.dataFolderRel =
        rest < chosenPath.size() ? folderOf(chosenPath.substr(rest)) : std::string();
    return paths;
}

bool endsInSeparator(std::string_view path)
{
    return !path.empty() && (path.back() == '/' || path.back() == '\\');
}

std::string withoutTrailingSeparators(std::string_view folder)
{
    const std::size_t last = folder.find_last_not_of("/\\");
    if (last == std::string_view::npos)
        return std::string(folder);
    return std::string(folder.substr(0, last + 1));
}

bool rootEndsAtSeparator(std::string_view chosenPath, std::string_view rootFolder)
{
    if (rootFolder.empty())
        return true;
    const std::size_t root = chosenPath.rfind(rootFolder);
    if (root == std::string_view::npos)
        return false;
    const std::size_t after = root + rootFolder.size();
    return after < chosenPath.size() && (chosenPath[after] == '/' || chosenPath[after] == '\\');
}

} // namespace vorlane
