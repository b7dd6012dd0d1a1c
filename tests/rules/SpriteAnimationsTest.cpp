#include "rules/SpriteAnimations.h"

#include "rules/EditorHandBack.h"

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

AnimRec &anim(SpriteRec &sprite, int slot)
{
    return sprite.anims[static_cast<size_t>(slot)];
}

void useAnim(SpriteRec &sprite, int slot, const std::string &id)
{
    anim(sprite, slot).inUse = -1;
    anim(sprite, slot).isNew = 0;
    anim(sprite, slot).id = id;
}

struct SpriteAnimationsTest : ::testing::Test
{
    std::unique_ptr<Document> doc = makeDocument();
    SpriteRec &sprite = doc->Sprites[0];
    ObjectList rows;
};

TEST_F(SpriteAnimationsTest, DefaultsOfANewSprite)
{
    sprite.imageId = "old";
    sprite.animCount = 7;
    sprite.positionX = 3;
    setSpriteDefaults(sprite);
    EXPECT_EQ(sprite.imageId, "null");
    EXPECT_EQ(sprite.currentAnimId, "null");
    EXPECT_EQ(sprite.animCount, 0);
    EXPECT_EQ(sprite.positionX, 0);
    EXPECT_EQ(sprite.positionY, 0);
    EXPECT_EQ(sprite.visible, 1);
}

TEST_F(SpriteAnimationsTest, RowsListUsedSlotsInSlotOrder)
{
    useAnim(sprite, 7, "run");
    useAnim(sprite, 3, "walk");
    anim(sprite, 5).isNew = -1; // reserved, never opened
    sprite.animCount = 2;
    const ObjectList loaded = animationRows(sprite);
    EXPECT_EQ(texts(loaded), (std::vector<std::string>{"walk", "run"}));
    EXPECT_EQ(slots(loaded), (std::vector<int>{3, 7}));
    EXPECT_EQ(loaded.selected, 0);
}

TEST_F(SpriteAnimationsTest, AnimCountZeroShowsNoRowsEvenWithUsedSlots)
{
    useAnim(sprite, 0, "walk");
    sprite.animCount = 0;
    const ObjectList loaded = animationRows(sprite);
    EXPECT_TRUE(loaded.lines.empty());
    EXPECT_EQ(loaded.selected, -1);
}

TEST_F(SpriteAnimationsTest, CurrentAnimationChoicesGoBySlotNumber)
{
    // Animations in slots 3 and 7: two rows, so slots 0 and 1 are offered, whatever they hold.
    useAnim(sprite, 3, "walk");
    useAnim(sprite, 7, "run");
    anim(sprite, 0).id = "gone";
    anim(sprite, 1).id = "reserved";
    anim(sprite, 1).isNew = -1;
    EXPECT_EQ(currentAnimationChoices(sprite, 2), std::vector<std::string>{"gone"});
    EXPECT_EQ(currentAnimationChoices(sprite, 0), std::vector<std::string>{});
    EXPECT_EQ(currentAnimationChoices(sprite, 8).size(), size_t(7));
    EXPECT_EQ(currentAnimationChoices(sprite, 500).size(), size_t(100)); // never past slot 100
}

TEST_F(SpriteAnimationsTest, NewAnimationTakesTheFirstFreeSlotAndTheRunningNumber)
{
    useAnim(sprite, 0, "walk");
    anim(sprite, 1).isNew = -1; // reserved by an earlier New Animation
    sprite.animCount = 1;
    rows = animationRows(sprite);
    doc->newObjectCounter = 4;
    EXPECT_EQ(newAnimation(*doc, sprite, rows), std::nullopt);
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"walk", "New_Object4"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{0, 2}));
    EXPECT_EQ(rows.selected, 1);
    EXPECT_EQ(anim(sprite, 2).isNew, -1);
    EXPECT_EQ(anim(sprite, 2).inUse, 0);
    EXPECT_EQ(doc->newObjectCounter, 5);
    EXPECT_EQ(doc->animOverflow, 0);
}

TEST_F(SpriteAnimationsTest, TheHundredthIsAcceptedTheHundredAndFirstRefused)
{
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(newAnimation(*doc, sprite, rows), std::nullopt) << i;
    EXPECT_EQ(rows.lines.size(), size_t(100));
    EXPECT_EQ(rows.lines.back().slot, 99);
    const auto refusal = newAnimation(*doc, sprite, rows);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->text, "No space left for animations! (Max 100)");
    EXPECT_EQ(refusal->title, "Object Overload");
    EXPECT_EQ(refusal->icon, MessageIcon::Critical);
    EXPECT_EQ(refusal->buttons, MessageButtons::OK);
    EXPECT_EQ(rows.lines.size(), size_t(100));
    EXPECT_EQ(anim(sprite, 100).isNew, 0);
    EXPECT_EQ(doc->newObjectCounter, 100);
}

TEST_F(SpriteAnimationsTest, ScanReachingSlotHundredFallsBackToTheOverflowCounter)
{
    for (int slot = 0; slot < 100; ++slot)
        useAnim(sprite, slot, "a" + std::to_string(slot));
    doc->animOverflow = 4;
    EXPECT_EQ(newAnimation(*doc, sprite, rows), std::nullopt);
    EXPECT_EQ(slots(rows), std::vector<int>{4});
    EXPECT_EQ(anim(sprite, 100).isNew, -1); // stays marked
    EXPECT_EQ(anim(sprite, 4).isNew, -1);
    EXPECT_EQ(doc->animOverflow, 5);
}

TEST_F(SpriteAnimationsTest, OverflowPastSlotHundredIsRefused)
{
    for (int slot = 0; slot <= 100; ++slot)
        useAnim(sprite, slot, "a");
    doc->animOverflow = 101;
    const auto refusal = newAnimation(*doc, sprite, rows);
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->text, "No space left for animations! (Max 100)");
    EXPECT_TRUE(rows.lines.empty());
    EXPECT_EQ(doc->animOverflow, 101);
    EXPECT_EQ(doc->newObjectCounter, 0);
}

TEST_F(SpriteAnimationsTest, RemoveFreesTheSlotAndSelectsTheNextOrTheRowAbove)
{
    useAnim(sprite, 0, "a");
    useAnim(sprite, 1, "b");
    useAnim(sprite, 2, "c");
    sprite.animCount = 3;
    rows = animationRows(sprite);
    rows.selected = 1;
    EXPECT_TRUE(removeAnimation(sprite, rows));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(rows.selected, 1);
    EXPECT_EQ(anim(sprite, 1).inUse, 0);
    EXPECT_EQ(anim(sprite, 1).isNew, 0);
    EXPECT_EQ(anim(sprite, 1).id, "b"); // other fields stay

    EXPECT_TRUE(removeAnimation(sprite, rows)); // the last row: the one above is selected
    EXPECT_EQ(texts(rows), std::vector<std::string>{"a"});
    EXPECT_EQ(rows.selected, 0);
    EXPECT_TRUE(removeAnimation(sprite, rows));
    EXPECT_TRUE(rows.lines.empty());
    EXPECT_EQ(rows.selected, -1);
    EXPECT_FALSE(removeAnimation(sprite, rows));
}

TEST_F(SpriteAnimationsTest, RemoveWithoutSelectionChangesNothing)
{
    useAnim(sprite, 0, "a");
    sprite.animCount = 1;
    rows = animationRows(sprite);
    rows.selected = -1;
    EXPECT_FALSE(removeAnimation(sprite, rows));
    EXPECT_EQ(rows.lines.size(), size_t(1));
    EXPECT_EQ(anim(sprite, 0).inUse, -1);
}

TEST_F(SpriteAnimationsTest, ClosingAnAnimationRenamesItsRowInPlace)
{
    useAnim(sprite, 4, "a");
    useAnim(sprite, 9, "b");
    sprite.animCount = 2;
    rows = animationRows(sprite);
    rows.selected = 0;
    EXPECT_TRUE(replaceSelectedLine(rows, "walk"));
    EXPECT_EQ(texts(rows), (std::vector<std::string>{"walk", "b"}));
    EXPECT_EQ(slots(rows), (std::vector<int>{4, 9}));
    EXPECT_EQ(rows.selected, 0);
}

} // namespace
} // namespace vorlane
