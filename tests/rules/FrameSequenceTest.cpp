#include "rules/FrameSequence.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

std::vector<std::string> texts(const ObjectList &list)
{
    std::vector<std::string> result;
    for (const ListLine &line : list.lines)
        result.push_back(line.text);
    return result;
}

std::vector<int> slots(const ObjectList &list)
{
    std::vector<int> result;
    for (const ListLine &line : list.lines)
        result.push_back(line.slot);
    return result;
}

struct FrameSequenceTest : ::testing::Test
{
    std::unique_ptr<Document> doc = makeDocument();
    AnimRec &anim = doc->Sprites[0].anims[0];
    ObjectList rows;

    FrameRec &frame(int slot) { return anim.frames[static_cast<size_t>(slot)]; }

    void add(const std::vector<std::string> &typed)
    {
        for (const std::string &text : typed)
            ASSERT_EQ(addFrame(anim, rows, text, doc->frameOverflow), std::nullopt);
    }

    // The cells of the used frame slots, in slot order, as the project file lists them.
    std::vector<int> cellsInSlotOrder()
    {
        std::vector<int> cells;
        for (const FrameRec &f : anim.frames)
            if (f.inUse == -1)
                cells.push_back(f.cell);
        return cells;
    }
};

TEST_F(FrameSequenceTest, DefaultsOfANewAnimation)
{
    anim.play = 0;
    anim.direction = -1;
    anim.defaultFrame = 4;
    anim.frameCount = 3;
    anim.frameDelay = 2;
    setAnimDefaults(anim);
    EXPECT_EQ(anim.frameDelay, 0);
    EXPECT_EQ(anim.animDelay, 0);
    EXPECT_EQ(anim.repeat, 0);
    EXPECT_EQ(anim.play, 1);
    EXPECT_EQ(anim.direction, 1);
    EXPECT_EQ(anim.defaultFrame, -1);
    EXPECT_EQ(anim.frameCount, 0);
}

TEST_F(FrameSequenceTest, RowsShowTheCellsOfUsedSlots)
{
    frame(2) = {-1, 7};
    frame(5) = {-1, -3};
    frame(3) = {0, 9};
    const ObjectList loaded = frameRows(anim);
    EXPECT_EQ(texts(loaded), (std::vector<std::string>{"7", "-3"}));
    EXPECT_EQ(slots(loaded), (std::vector<int>{2, 5}));
    EXPECT_EQ(loaded.selected, 0);
    EXPECT_EQ(frameRows(AnimRec{}).selected, -1);
}

TEST_F(FrameSequenceTest, AddShowsTheTextAsTypedAndStoresTheNumber)
{
    add({"12abc", "2.5"});
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"12abc", "2.5"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{0, 1}));
    EXPECT_EQ(rows.selected, 1);
    EXPECT_EQ(frame(0).inUse, -1);
    EXPECT_EQ(frame(0).cell, 12);
    EXPECT_EQ(frame(1).cell, 2);
    // Reopened, the sequence shows the numbers alone.
    EXPECT_EQ(texts(frameRows(anim)), (std::vector<std::string>{"12", "2"}));
}

TEST_F(FrameSequenceTest, DownOnTheFirstOfThreeExchangesRowsAndCells)
{
    add({"3", "5", "9"});
    rows.selected = 0;
    EXPECT_TRUE(moveFrameDown(anim, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"5", "3", "9"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{1, 0, 2}));
    EXPECT_EQ(rows.selected, 1);
    EXPECT_EQ(cellsInSlotOrder(), (std::vector<int>{5, 3, 9}));
    // Each moved row names the slot that holds the other row's value.
    EXPECT_EQ(frame(1).cell, 3);
    EXPECT_EQ(frame(0).cell, 5);
}

TEST_F(FrameSequenceTest, UpMirrorsDown)
{
    add({"3", "5", "9"});
    rows.selected = 2;
    EXPECT_TRUE(moveFrameUp(anim, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"3", "9", "5"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{0, 2, 1}));
    EXPECT_EQ(rows.selected, 1);
    EXPECT_EQ(cellsInSlotOrder(), (std::vector<int>{3, 9, 5}));
}

TEST_F(FrameSequenceTest, DownOnTheLastAndUpOnTheFirstDoNothing)
{
    add({"3", "5"});
    rows.selected = 1;
    EXPECT_FALSE(moveFrameDown(anim, rows));
    rows.selected = 0;
    EXPECT_FALSE(moveFrameUp(anim, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"3", "5"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{0, 1}));
    EXPECT_EQ(rows.selected, 0);
    EXPECT_EQ(cellsInSlotOrder(), (std::vector<int>{3, 5}));
}

TEST_F(FrameSequenceTest, DownAndUpWithoutSelectionDoNothing)
{
    add({"3", "5"});
    rows.selected = -1;
    EXPECT_FALSE(moveFrameDown(anim, rows));
    EXPECT_FALSE(moveFrameUp(anim, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"3", "5"}));
    EXPECT_EQ(rows.selected, -1);
}

TEST_F(FrameSequenceTest, DownTakesTheNumbersOfTheTypedTexts)
{
    add({"4x", "8y"});
    rows.selected = 0;
    EXPECT_TRUE(moveFrameDown(anim, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"8y", "4x"}));
    EXPECT_EQ(cellsInSlotOrder(), (std::vector<int>{8, 4}));
}

TEST_F(FrameSequenceTest, DeleteSelectsTheNewMiddleOrTheRowAbove)
{
    add({"3", "5", "9"});
    rows.selected = 1;
    EXPECT_TRUE(deleteFrame(anim, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"3", "9"}));
    EXPECT_EQ(rows.selected, 1);
    EXPECT_EQ(frame(1).inUse, 0);
    EXPECT_EQ(frame(1).cell, 5); // the cell stays
    EXPECT_TRUE(deleteFrame(anim, rows));
    EXPECT_EQ(texts(rows), std::vector<std::string>{"3"});
    EXPECT_EQ(rows.selected, 0);
    EXPECT_TRUE(deleteFrame(anim, rows));
    EXPECT_EQ(rows.selected, -1);
    EXPECT_FALSE(deleteFrame(anim, rows));
    EXPECT_EQ(cellsInSlotOrder(), std::vector<int>{});
}

TEST_F(FrameSequenceTest, DeletedSlotIsTakenAgainFirst)
{
    add({"3", "5", "9"});
    rows.selected = 0;
    ASSERT_TRUE(deleteFrame(anim, rows));
    add({"7"});
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"5", "9", "7"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(cellsInSlotOrder(), (std::vector<int>{7, 5, 9}));
}

TEST_F(FrameSequenceTest, TheHundredthIsAcceptedTheHundredAndFirstRefused)
{
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(addFrame(anim, rows, std::to_string(i), doc->frameOverflow), std::nullopt);
    EXPECT_EQ(rows.lines.back().slot, 99);
    const auto refusal = addFrame(anim, rows, "100", doc->frameOverflow);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->text, "No space left for Frames! (Max 100)");
    EXPECT_EQ(refusal->title, "Object Overload");
    EXPECT_EQ(refusal->icon, MessageIcon::Critical);
    EXPECT_EQ(rows.lines.size(), size_t(100));
    EXPECT_EQ(frame(100).inUse, 0);
}

TEST_F(FrameSequenceTest, ScanReachingSlotHundredFallsBackToTheOverflowCounter)
{
    for (int slot = 0; slot < 100; ++slot)
        frame(slot) = {-1, 1};
    doc->frameOverflow = 2;
    add({"6"});
    EXPECT_EQ(slots(rows), std::vector<int>{2});
    EXPECT_EQ(frame(100).inUse, -1); // stays in use with the same cell
    EXPECT_EQ(frame(100).cell, 6);
    EXPECT_EQ(frame(2).cell, 6);
    EXPECT_EQ(doc->frameOverflow, 3);
}

TEST_F(FrameSequenceTest, OverflowPastSlotHundredIsRefused)
{
    for (int slot = 0; slot <= 100; ++slot)
        frame(slot) = {-1, 1};
    doc->frameOverflow = 101;
    const auto refusal = addFrame(anim, rows, "6", doc->frameOverflow);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->text, "No space left for Frames! (Max 100)");
    EXPECT_TRUE(rows.lines.empty());
    EXPECT_EQ(doc->frameOverflow, 101);
    EXPECT_EQ(frame(0).cell, 1);
}

} // namespace
} // namespace vorlane

namespace vorlane {
namespace {

TEST(DefaultFrameRule, EmptyMeansNoDefaultFrame)
{
    EXPECT_EQ(defaultFrameRule(""), (NumberOutcome{-1, std::nullopt}));
}

TEST(DefaultFrameRule, TypedMinusOneEmptiesTheBox)
{
    EXPECT_EQ(defaultFrameRule("-1"), (NumberOutcome{-1, std::string()}));
}

TEST(DefaultFrameRule, OtherTextsFollowTheNumberRule)
{
    EXPECT_EQ(defaultFrameRule("4"), (NumberOutcome{4, std::nullopt}));
    EXPECT_EQ(defaultFrameRule("-2"), (NumberOutcome{-2, std::nullopt}));
    EXPECT_EQ(defaultFrameRule("7fps"), (NumberOutcome{7, std::nullopt}));
    EXPECT_EQ(defaultFrameRule("abc"), (NumberOutcome{0, std::nullopt}));
    EXPECT_EQ(defaultFrameRule("-1.0"), (NumberOutcome{-1, std::nullopt})); // only "-1" empties
    EXPECT_EQ(defaultFrameRule("70000"), (NumberOutcome{32767, std::string("32767")}));
}

} // namespace
} // namespace vorlane
