#pragma once

#include "json/ProjectJson.h"

#include <string>
#include <vector>

namespace vorlane {

// What changed from the project `a` to the project `b` (both in the JSON form), one line per
// change, object by object and field by field: `button "btnPlay": x 272 -> 280`,
// `image "imgHero": added`, `scene "scnTitle": layer 3 removed`. Objects are matched by kind
// and id, then by position among objects of the same id. Empty when they are equal.
std::vector<std::string> diffProjects(const Json &a, const Json &b);

} // namespace vorlane
