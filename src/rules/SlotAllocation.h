#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace vorlane {

// Finds the slot for a new item of a table with slots 0..`lastSlot` (objects, animations,
// frames, layers, custom filters): the first slot `isFree` accepts, or the slot named by
// `overflow` when the scan finds none or only the last one, and `overflow` is then raised.
// `take` is called for each slot the item takes: the scanned slot, and then the counter's
// slot on the fallback (a last slot found stays taken as well, as it always has). Returns the
// item's slot; nothing, with no slot taken, when the counter lies past the table.
std::optional<int16_t> allocateSlot(int lastSlot,
                                    const std::function<bool(int slot)> &isFree,
                                    int16_t &overflow,
                                    const std::function<void(int slot)> &take);

// The row selected after row `removed` was taken out of a list now holding `remaining` rows:
// the row that moved into its place, else the one above; -1 when the list is empty.
int selectionAfterRemoval(int removed, int remaining);

} // namespace vorlane
