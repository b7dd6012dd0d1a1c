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

// Whether `path` ends in "/" or "\".
bool endsInSeparator(std::string_view path);

// `folder` without the separators that end it; a folder of separators only stays as it is.
std::string withoutTrailingSeparators(std::string_view folder);

// Whether the last occurrence of `rootFolder` in `chosenPath` is followed by a separator, so
// that the chosen folder lies inside the root folder rather than in a sibling whose name
// begins with the root's text ("/games/quest2" for the root "/games/quest"). The text rule of
// computeGeneratePaths accepts both; this tells them apart. True for an empty root.
bool rootEndsAtSeparator(std::string_view chosenPath, std::string_view rootFolder);

} // namespace vorlane
