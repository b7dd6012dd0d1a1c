#pragma once

#include <functional>

namespace vorlane {

// Where a new object, animation, frame, layer or custom filter goes. The scan looks from slot
// 0 up to `lastSlot` for the first free slot; when it finds none, or only the last slot, the
// table's overflow counter names the slot instead (and is then to be raised by one).
struct SlotChoice
{
    int firstFree = -1;        // the first free slot the scan found, -1 for none
    int slot = -1;             // the slot the new item takes
    bool fromOverflow = false; // `slot` is the overflow counter's; the first free one, if any,
                               // is still to be marked taken
};

// Scans slots 0..lastSlot with `isFree` and chooses the slot as described above.
SlotChoice chooseSlot(int lastSlot, int overflow, const std::function<bool(int slot)> &isFree);

// The line selected after the line at `removedPosition` was taken out of a list that now has
// `remaining` lines: the line that moved into its place, or the last one; -1 when none is left.
int selectionAfterRemoval(int removedPosition, int remaining);

} // namespace vorlane
