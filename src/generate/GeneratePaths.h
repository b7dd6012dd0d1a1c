#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// The output folder of a generation, as written and as the engine finds it.
struct GeneratePaths
{
    std::string generatePath;  // the chosen path up to and including its last separator
    std::string dataFolderRel; // that folder relative to the root folder, or "null"
};

// The chosen path cut after its last "/" or "\" (the separator kept); empty without one.
std::string folderOf(std::string_view path);

// The paths of a generation into the folder of `chosenPath`, the application root folder
// being `rootFolder`; nothing when the root folder is set and does not occur in the path.
std::optional<GeneratePaths> computeGeneratePaths(std::string_view chosenPath,
                                                  std::string_view rootFolder);

} // namespace vorlane
