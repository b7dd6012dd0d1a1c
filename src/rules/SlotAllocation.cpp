#include "rules/SlotAllocation.h"

#include <algorithm>

namespace vorlane {

std::optional<int16_t> allocateSlot(int lastSlot,
                                    const std::function<bool(int slot)> &isFree,
                                    int16_t &overflow,
                                    const std::function<void(int slot)> &take)
{
    int found = -1;
    for (int slot = 0; slot <= lastSlot; ++slot) {
        if (isFree(slot)) {
            found = slot;
            break;
        }
    }

    const bool useOverflow = found == -1 || found == lastSlot;
    // A counter past the table's end (a long run of such fallbacks) has no slot to give:
    // refuse rather than write outside the table.
    if (useOverflow && (overflow < 0 || overflow > lastSlot))
        return std::nullopt;

    if (found != -1)
        take(found);
    if (!useOverflow)
        return static_cast<int16_t>(found);
    const int16_t slot = overflow;
    take(slot);
    ++overflow;
    return slot;
}

int selectionAfterRemoval(int removed, int remaining)
{
    if (remaining <= 0)
        return -1;
    return std::min(removed, remaining - 1);
}

} // namespace vorlane
