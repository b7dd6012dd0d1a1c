#include "project/CheckSummary.h"

namespace vorlane {

namespace {

std::string counted(size_t count, const char *what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

} // namespace

std::string checkSummary(const std::vector<ProjectProblem> &problems)
{
    size_t warnings = 0;
    for (const ProjectProblem &problem : problems)
        warnings += problem.warning ? 1 : 0;
    const size_t others = problems.size() - warnings;
    if (problems.empty())
        return "No problems";
    if (warnings == 0)
        return counted(others, "problem");
    if (others == 0)
        return counted(warnings, "warning");
    return counted(others, "problem") + " and " + counted(warnings, "warning");
}

} // namespace vorlane
