#include "rules/SlotAllocation.h"

#include <algorithm>

namespace vorlane {

SlotChoice chooseSlot(int lastSlot, int overflow, const std::function<bool(int slot)> &isFree)
{
    SlotChoice choice;
    for (int slot = 0; slot <= lastSlot; ++slot) {
        if (isFree(slot)) {
            choice.firstFree = slot;
            break;
        }
    }
    choice.fromOverflow = choice.firstFree == -1 || choice.firstFree == lastSlot;
    choice.slot = choice.fromOverflow ? overflow : choice.firstFree;
    return choice;
}

int selectionAfterRemoval(int removedPosition, int remaining)
{
    if (remaining <= 0)
        return -1;
    return std::min(removedPosition, remaining - 1);
}

} // namespace vorlane
