#pragma once

#include "json/ProjectJson.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What the diff and the merge know of the JSON form's shape: which arrays hold objects
// matched by identifier, and how items and values are named in their lines.
namespace vorlane::jsonshape {

// The name of one item of the array `key` when its items are objects matched by their "id"
// (the nine kinds at the top, "animations" in a sprite); nullptr for any other array.
const char *keyedItemName(std::string_view key, bool topLevel);

// An item of a keyed array: its id and its occurrence among items of that id (0 the first).
using ItemKey = std::pair<std::string, int>;

// The keys of the items of `list`, in order.
std::vector<ItemKey> itemKeys(const Json &list);

// `NAME "ID"`, with " (N)" for the N-th item (from 2) of an id used more than once.
std::string itemLabel(const char *name, const ItemKey &key);

// A value as the lines show it: JSON text (texts in double quotes), or "(none)" when absent.
std::string show(const Json *value);

// The value of `key` in the object `obj`, or nullptr.
const Json *field(const Json *obj, const std::string &key);

// The keys of `first` in order, then those only `second` has, in its order.
std::vector<std::string> keysOf(const Json *first, const Json *second);

// Equality of two values that may be absent.
bool same(const Json *a, const Json *b);

} // namespace vorlane::jsonshape
