#pragma once

#include "model/modGlobal.h"
#include "rules/References.h"

#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// An object whose identifier matched: where it is and the line Find shows for it.
struct FoundObject
{
    ObjectRef object;
    std::string line; // Image "imgHero"

    bool operator==(const FoundObject &) const = default;
};

// The listed objects whose list line holds `part`, letters A to Z compared without case, kinds
// in list order and objects in list order; none for an empty `part`.
std::vector<FoundObject> findObjects(const Document &doc, std::string_view part);

} // namespace vorlane
