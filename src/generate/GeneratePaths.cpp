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

} // namespace vorlane
