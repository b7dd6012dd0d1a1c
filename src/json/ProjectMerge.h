#pragma once

#include "json/ProjectJson.h"

#include <string>
#include <vector>

namespace vorlane {

// The outcome of a three-way merge of projects in the JSON form.
struct MergeResult
{
    Json merged;
    // One line per conflict, naming the object and field with both values:
    // `button "btnPlay": x: ours 280, theirs 300 (base 272); ours kept`.
    std::vector<std::string> conflicts;
};

// Merges the changes from `base` to `ours` and from `base` to `theirs`, object by object and
// field by field: changes to different objects or to different fields of one object all
// apply; a field changed on both sides to different values is a conflict and keeps ours.
// Objects are matched by kind and id, then by position among objects of the same id; a
// sprite's animations by id the same way. Layers, frames and custom filters are each one
// value. `base` may be an empty object (no common ancestor).
MergeResult mergeProjects(const Json &base, const Json &ours, const Json &theirs);

} // namespace vorlane
