#include "rules/ObjectManagement.h"

#include <gtest/gtest.h>

#include <array>

namespace vorlane {
namespace {

// A table of six slots, 0..5, with the slots that are taken marked.
struct Table
{
    std::array<bool, 6> taken{};
    std::vector<int> takes; // every slot `take` was called with, in order

    std::optional<int16_t> allocate(int16_t &overflow)
    {
        return allocateSlot(
            5,
            [this](int slot) { return !taken[static_cast<size_t>(slot)]; },
            [this](int slot) {
                taken[static_cast<size_t>(slot)] = true;
                takes.push_back(slot);
            },
            overflow);
    }
};

TEST(SlotAllocation, TakesTheFirstFreeSlot)
{
    Table table;
    table.taken = {true, true, false, true, false, false};
    int16_t overflow = 4;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(2));
    EXPECT_EQ(table.takes, std::vector<int>{2});
    EXPECT_EQ(overflow, 4);
}

TEST(SlotAllocation, OnlyTheLastSlotFreeTakesItAndTheOverflowSlot)
{
    Table table;
    table.taken = {true, true, true, true, true, false};
    int16_t overflow = 1;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(1));
    EXPECT_EQ(table.takes, (std::vector<int>{5, 1}));
    EXPECT_EQ(overflow, 2);
}

TEST(SlotAllocation, NoFreeSlotTakesTheOverflowSlot)
{
    Table table;
    table.taken.fill(true);
    int16_t overflow = 0;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(0));
    EXPECT_EQ(table.takes, std::vector<int>{0});
    EXPECT_EQ(overflow, 1);
}

TEST(SlotAllocation, OverflowPastTheTableRefusesAndChangesNothing)
{
    for (int16_t start : {int16_t(6), int16_t(-1)}) {
        Table table;
        table.taken = {true, true, true, true, true, false};
        int16_t overflow = start;
        EXPECT_EQ(table.allocate(overflow), std::nullopt);
        EXPECT_TRUE(table.takes.empty());
        EXPECT_FALSE(table.taken[5]);
        EXPECT_EQ(overflow, start);
    }
}

TEST(SlotAllocation, OverflowOnTheLastSlotIsStillInTheTable)
{
    Table table;
    table.taken.fill(true);
    int16_t overflow = 5;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(5));
    EXPECT_EQ(overflow, 6);
    EXPECT_EQ(table.allocate(overflow), std::nullopt);
    EXPECT_EQ(overflow, 6);
}

TEST(SlotAllocation, SelectionAfterRemoval)
{
    EXPECT_EQ(selectionAfterRemoval(1, 2), 1); // the row that moved up
    EXPECT_EQ(selectionAfterRemoval(2, 2), 1); // the last row went: the one above
    EXPECT_EQ(selectionAfterRemoval(0, 0), -1);
}

TEST(SlotAllocation, NewObjectLabelRaisesTheCounter)
{
    auto doc = makeDocument();
    doc->newObjectCounter = 3;
    EXPECT_EQ(takeNewObjectLabel(*doc), "New_Object3");
    EXPECT_EQ(doc->newObjectCounter, 4);
}

} // namespace
} // namespace vorlane
