#pragma once

#include <filesystem>

namespace vorlane {

// Where the user manual may lie, as the build knows it.
struct ManualPlaces
{
    // The installed manual's folder, relative to the folder of the installed program.
    std::filesystem::path installedFromProgram;
    // The manual's folder in the source tree, for a program run from its build folder.
    std::filesystem::path sourceManual;
    // The build folder the program was built in.
    std::filesystem::path buildFolder;
};

// The manual's first page for a program started from `programDir`: the installed manual
// beside it when there is one; otherwise the source tree's when the program runs from its
// build folder, else the installed manual's place (which a message can then name).
std::filesystem::path findManualPage(const std::filesystem::path &programDir,
                                     const ManualPlaces &places);

} // namespace vorlane
