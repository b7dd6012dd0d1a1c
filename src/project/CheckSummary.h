#pragma once

#include "project/ProjectCheck.h"

#include <string>
#include <vector>

namespace vorlane {

// The count of a check's lines as the status line and the problems panel show it after a
// change: "No problems", "1 problem", "2 problems and 1 warning", "3 warnings".
std::string checkSummary(const std::vector<ProjectProblem> &problems);

} // namespace vorlane
