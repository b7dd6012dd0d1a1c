#include "rules/SlotAllocation.h"
#include "rules/ObjectManagement.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace vorlane {
namespace {

// A table of five slots, 0..4, with the slots taken so far.
struct SmallTable
{
    std::array<bool, 5> used{};
    std::vector<int> taken;

    std::optional<int16_t> allocate(int16_t &overflow)
    {
        return allocateSlot(
            4,
            [this](int slot) { return !used[static_cast<size_t>(slot)]; },
            overflow,
            [this](int slot) {
                used[static_cast<size_t>(slot)] = true;
                taken.push_back(slot);
            });
    }
};

TEST(SlotAllocation, TakesTheFirstFreeSlot)
{
    SmallTable table;
    table.used[0] = true;
    table.used[2] = true;
    int16_t overflow = 3;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(1));
    EXPECT_EQ(table.taken, std::vector<int>{1});
    EXPECT_EQ(overflow, 3);
}

TEST(SlotAllocation, LastSlotFoundTakesItAndTheCountersSlot)
{
    SmallTable table;
    table.used = {true, true, true, true, false};
    int16_t overflow = 2;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(2));
    EXPECT_EQ(table.taken, (std::vector<int>{4, 2}));
    EXPECT_EQ(overflow, 3);
}

TEST(SlotAllocation, NoFreeSlotTakesTheCountersSlot)
{
    SmallTable table;
    table.used = {true, true, true, true, true};
    int16_t overflow = 0;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(0));
    EXPECT_EQ(table.taken, std::vector<int>{0});
    EXPECT_EQ(overflow, 1);
}

TEST(SlotAllocation, CounterAtTheLastSlotStillGivesIt)
{
    SmallTable table;
    table.used = {true, true, true, true, true};
    int16_t overflow = 4;
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(4));
    EXPECT_EQ(overflow, 5);
}

TEST(SlotAllocation, CounterPastTheTableIsRefusedAndTakesNothing)
{
    SmallTable table;
    table.used = {true, true, true, true, false};
    int16_t overflow = 5;
    EXPECT_EQ(table.allocate(overflow), std::nullopt);
    EXPECT_TRUE(table.taken.empty());
    EXPECT_FALSE(table.used[4]);
    EXPECT_EQ(overflow, 5);

    int16_t negative = -1;
    EXPECT_EQ(table.allocate(negative), std::nullopt);
    EXPECT_EQ(negative, -1);
}

TEST(SlotAllocation, CounterIsNotNeededWhileASlotBeforeTheLastIsFree)
{
    SmallTable table;
    table.used = {true, true, true, false, false};
    int16_t overflow = 99; // far past the table, but unused
    EXPECT_EQ(table.allocate(overflow), std::optional<int16_t>(3));
    EXPECT_EQ(overflow, 99);
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
