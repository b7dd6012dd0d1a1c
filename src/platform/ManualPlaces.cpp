#include "platform/ManualPlaces.h"

#include <system_error>

namespace vorlane {

namespace {

constexpr const char *FirstPage = "index.html";

// Whether `path` lies in `folder` or below it, both made absolute and free of "..".
bool liesIn(const std::filesystem::path &path, const std::filesystem::path &folder)
{
    if (folder.empty())
        return false;
    std::error_code error;
    const auto inner = std::filesystem::weakly_canonical(path, error);
    if (error)
        return false;
    const auto outer = std::filesystem::weakly_canonical(folder, error);
    if (error)
        return false;
    const auto rest = inner.lexically_relative(outer);
    return !rest.empty() && *rest.begin() != "..";
}

} // namespace

std::filesystem::path findManualPage(const std::filesystem::path &programDir,
                                     const ManualPlaces &places)
{
    const auto installed =
        (programDir / places.installedFromProgram / FirstPage).lexically_normal();
    std::error_code error;
    if (std::filesystem::is_regular_file(installed, error))
        return installed;
    if (liesIn(programDir, places.buildFolder))
        return (places.sourceManual / FirstPage).lexically_normal();
    return installed;
}

} // namespace vorlane
