#include "rules/SlotAllocation.h"

#include <gtest/gtest.h>

#include <set>

namespace vorlane {
namespace {

TEST(SlotAllocation, TakesTheFirstFreeSlotFromZero)
{
    const std::set<int> used{0, 1, 3};
    const SlotChoice choice = chooseSlot(10, 7, [&](int slot) { return !used.contains(slot); });
    EXPECT_EQ(choice.firstFree, 2);
    EXPECT_EQ(choice.slot, 2);
    EXPECT_FALSE(choice.fromOverflow);
}

TEST(SlotAllocation, OnlyTheLastSlotFreeGivesTheOverflowSlot)
{
    const SlotChoice choice = chooseSlot(50, 4, [](int slot) { return slot == 50; });
    EXPECT_EQ(choice.firstFree, 50);
    EXPECT_EQ(choice.slot, 4);
    EXPECT_TRUE(choice.fromOverflow);
}

TEST(SlotAllocation, NoFreeSlotGivesTheOverflowSlot)
{
    const SlotChoice choice = chooseSlot(50, 51, [](int) { return false; });
    EXPECT_EQ(choice.firstFree, -1);
    EXPECT_EQ(choice.slot, 51);
    EXPECT_TRUE(choice.fromOverflow);
}

TEST(SlotAllocation, SelectionMovesToTheLineInThePlaceOrTheLast)
{
    EXPECT_EQ(selectionAfterRemoval(1, 3), 1);
    EXPECT_EQ(selectionAfterRemoval(3, 3), 2);
    EXPECT_EQ(selectionAfterRemoval(0, 0), -1);
}

} // namespace
} // namespace vorlane
