#include "history/History.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

class HistoryTest : public ::testing::Test
{
protected:
    HistoryTest()
        : doc(makeDocument())
    {
        setUpNewProject(*doc, "game");
        doc->Buttons[1] = {};
        doc->Buttons[1].inUse = -1;
        doc->Buttons[1].id = "btnPlay";
        doc->list(Kind::Button).lines = {{"btnPlay", 1}};
        doc->objectCount(Kind::Button) = 1;
    }

    std::unique_ptr<Document> copy() const
    {
        auto c = makeDocument();
        *c = *doc;
        return c;
    }

    std::unique_ptr<Document> doc;
};

TEST_F(HistoryTest, AStepThatChangesNothingIsNotRecorded)
{
    History history(*doc);
    history.beginStep("Edit Button \"btnPlay\"");
    EXPECT_TRUE(history.inStep());
    doc->Buttons[1].x = 5;
    doc->Buttons[1].x = 0;
    EXPECT_FALSE(history.endStep());
    EXPECT_FALSE(history.inStep());
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.undoName(), "");
    EXPECT_EQ(history.stepCount(), 0u);
}

TEST_F(HistoryTest, UndoPutsBackTheDocumentBeforeTheStepAndRedoTheOneAfter)
{
    History history(*doc);
    const auto before = copy();
    history.beginStep("Edit Button \"btnPlay\"");
    doc->Buttons[1].x = 12;
    doc->Buttons[1].soundUp = "a sound whose name is longer than any short text";
    doc->list(Kind::Button).lines[0].text = "btnStart";
    doc->Sprites[3].anims[7].frames[100].cell = 9;
    doc->Sprites[3].positionX = 4;
    doc->AppSettings.CustomFilters[50].text = "x";
    doc->ProjectInfo.generatePath = "/out";
    doc->openedFrom = "/p/game.dvb";
    doc->layerOverflow = 3;
    EXPECT_TRUE(history.endStep());
    const auto after = copy();

    ASSERT_TRUE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undoName(), "Edit Button \"btnPlay\"");
    history.undo();
    EXPECT_TRUE(*doc == *before);
    EXPECT_FALSE(history.canUndo());
    ASSERT_TRUE(history.canRedo());
    EXPECT_EQ(history.redoName(), "Edit Button \"btnPlay\"");
    EXPECT_EQ(history.undoName(), "");
    history.redo();
    EXPECT_TRUE(*doc == *after);
    EXPECT_FALSE(history.canRedo());
}

TEST_F(HistoryTest, ANewStepClearsWhatCouldBeRedone)
{
    History history(*doc);
    history.beginStep("Add Button");
    doc->Buttons[2].inUse = -1;
    history.endStep();
    history.beginStep("Add Image");
    doc->Images[2].inUse = -1;
    history.endStep();
    history.undo();
    ASSERT_TRUE(history.canRedo());
    history.beginStep("Add Text");
    doc->Texts[2].inUse = -1;
    EXPECT_TRUE(history.endStep());
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.redoName(), "");
    EXPECT_EQ(history.undoName(), "Add Text");
    EXPECT_EQ(history.stepCount(), 2u);
    history.undo();
    EXPECT_EQ(history.undoName(), "Add Button");
    EXPECT_EQ(doc->Images[2].inUse, 0);
}

TEST_F(HistoryTest, AStepInsideAnOpenStepBelongsToTheOuterOne)
{
    History history(*doc);
    const auto before = copy();
    history.beginStep("Edit Sprite \"spr\"");
    doc->Sprites[1].id = "spr";
    history.beginStep("Edit Animation");
    doc->Sprites[1].anims[1].id = "walk";
    EXPECT_FALSE(history.endStep());
    EXPECT_TRUE(history.inStep());
    EXPECT_FALSE(history.canUndo());
    EXPECT_TRUE(history.endStep());
    EXPECT_EQ(history.stepCount(), 1u);
    EXPECT_EQ(history.undoName(), "Edit Sprite \"spr\"");
    history.undo();
    EXPECT_TRUE(*doc == *before);
}

TEST_F(HistoryTest, ACutRecordsWhatChangedSoFarAndTheStepGoesOn)
{
    History history(*doc);
    const auto start = copy();
    history.beginStep("Edit Scene \"scnMain\"");
    doc->Scenes[1].id = "scnMain";
    EXPECT_TRUE(history.cutStep());
    const auto afterFirst = copy();
    EXPECT_FALSE(history.cutStep()); // nothing since
    doc->Scenes[1].layers[4].objectId = "imgHero";
    EXPECT_TRUE(history.cutStep("Move \"imgHero\""));
    const auto afterMove = copy();
    doc->Scenes[1].useMusic = 1;
    EXPECT_TRUE(history.endStep());
    EXPECT_EQ(history.stepCount(), 3u);
    EXPECT_EQ(history.recordedSteps(), 3u);

    EXPECT_EQ(history.undoName(), "Edit Scene \"scnMain\"");
    history.undo();
    EXPECT_TRUE(*doc == *afterMove);
    EXPECT_EQ(history.undoName(), "Move \"imgHero\"");
    history.undo();
    EXPECT_TRUE(*doc == *afterFirst);
    EXPECT_EQ(history.undoName(), "Edit Scene \"scnMain\"");
    history.undo();
    EXPECT_TRUE(*doc == *start);
    EXPECT_FALSE(history.cutStep());
}

TEST_F(HistoryTest, UndoAndRedoWaitWhileAStepIsOpen)
{
    History history(*doc);
    history.beginStep("Add Button");
    doc->Buttons[2].inUse = -1;
    history.endStep();
    history.undo();
    history.beginStep("Window Properties");
    doc->AppSettings.fps = 30;
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    history.redo();
    EXPECT_EQ(doc->Buttons[2].inUse, 0);
    history.endStep();
    EXPECT_TRUE(history.canUndo());
    history.undo();
    EXPECT_EQ(doc->AppSettings.fps, 0);
}

TEST_F(HistoryTest, TheOldestStepsGoFirstWhenTheMemoryIsFull)
{
    // Each step replaces one long text of its own image: its before and after cost over 2 kB.
    History history(*doc, 16 * 1024);
    for (int slot = 1; slot <= 20; ++slot) {
        history.beginStep("Edit Image " + std::to_string(slot));
        doc->Images[static_cast<size_t>(slot)].path = std::string(1000, 'p');
        history.endStep();
        EXPECT_LE(history.bytes(), 16u * 1024);
    }
    EXPECT_LT(history.stepCount(), 20u);
    EXPECT_GE(history.stepCount(), 2u);
    const std::size_t kept = history.stepCount();
    for (std::size_t i = 0; i < kept; ++i)
        history.undo();
    EXPECT_FALSE(history.canUndo());
    const int oldestKept = 20 - static_cast<int>(kept) + 1;
    EXPECT_EQ(doc->Images[static_cast<size_t>(oldestKept)].path, "");
    EXPECT_EQ(doc->Images[static_cast<size_t>(oldestKept - 1)].path, std::string(1000, 'p'));
}

TEST_F(HistoryTest, AThousandSmallStepsAreAllKept)
{
    History history(*doc);
    // Cut from one open step, so that the test copies the document once.
    history.beginStep("Edit Button \"btnPlay\"");
    for (int i = 1; i <= 1000; ++i) {
        doc->Buttons[1].x = static_cast<int16_t>(i);
        history.cutStep();
    }
    history.endStep();
    EXPECT_EQ(history.stepCount(), 1000u);
    for (int i = 0; i < 1000; ++i)
        history.undo();
    EXPECT_EQ(doc->Buttons[1].x, 0);
}

TEST_F(HistoryTest, AStepCostsWhatItChangedNotTheDocument)
{
    History history(*doc);
    history.beginStep("Edit Button \"btnPlay\"");
    doc->Buttons[1].x = 3;
    doc->Buttons[1].captionTextId = "txtCaption";
    doc->list(Kind::Button).lines[0].text = "btnPlay2";
    history.endStep();
    EXPECT_LT(history.bytes(), 4u * 1024);

    // One frame of one animation of one sprite: one animation is kept, not the sprite.
    const std::size_t before = history.bytes();
    history.beginStep("Edit Sprite \"spr\"");
    doc->Sprites[200].anims[100].frames[100].cell = 7;
    history.endStep();
    EXPECT_LT(history.bytes() - before, 2u * 1024);
}

TEST_F(HistoryTest, AListKeepsOnlyTheRunOfLinesThatChanged)
{
    ObjectList &images = doc->list(Kind::Image);
    for (int16_t slot = 1; slot <= 200; ++slot)
        images.lines.push_back({"image number " + std::to_string(slot) + " of the project", slot});
    History history(*doc);
    const auto before = copy();
    history.beginStep("Remove Image \"image number 100 of the project\"");
    images.lines.erase(images.lines.begin() + 99);
    images.selected = 99;
    history.endStep();
    const auto after = copy();
    EXPECT_LT(history.bytes(), 1024u);

    history.undo();
    EXPECT_TRUE(*doc == *before);
    history.redo();
    EXPECT_TRUE(*doc == *after);

    history.beginStep("Add Image");
    images.lines.insert(images.lines.begin(), ListLine{"first", 7});
    images.lines.push_back({"last", 8});
    history.endStep();
    const auto both = copy();
    history.undo();
    EXPECT_TRUE(*doc == *after);
    history.redo();
    EXPECT_TRUE(*doc == *both);
}

TEST_F(HistoryTest, UnsavedUntilMarkedAndAgainAfterAStep)
{
    History history(*doc);
    EXPECT_TRUE(history.unsaved());
    history.markSaved();
    EXPECT_FALSE(history.unsaved());
    history.beginStep("Edit Button \"btnPlay\"");
    doc->Buttons[1].y = 8;
    history.endStep();
    EXPECT_TRUE(history.unsaved());
    history.undo();
    EXPECT_FALSE(history.unsaved());
    history.redo();
    EXPECT_TRUE(history.unsaved());
    history.markSaved();
    EXPECT_FALSE(history.unsaved());
    history.undo();
    EXPECT_TRUE(history.unsaved());
}

TEST_F(HistoryTest, AStepThatPutsBackTheSavedStateLeavesNothingUnsaved)
{
    History history(*doc);
    history.markSaved();
    history.beginStep("Edit Button \"btnPlay\"");
    doc->Buttons[1].y = 8;
    history.endStep();
    history.beginStep("Edit Button \"btnPlay\"");
    doc->Buttons[1].y = 0;
    history.endStep();
    EXPECT_FALSE(history.unsaved());
}

TEST_F(HistoryTest, SelectionAndTheCurrentObjectAreNotUnsavedChanges)
{
    History history(*doc);
    history.markSaved();
    doc->list(Kind::Button).selected = 0;
    doc->currentObjectIndex = 1;
    doc->currentAnimIndex = 4;
    EXPECT_FALSE(history.unsaved());
    doc->newObjectCounter = 1;
    EXPECT_TRUE(history.unsaved());
}

TEST_F(HistoryTest, ASavedStateDroppedFromTheHistoryStaysUnsaved)
{
    History history(*doc, 8 * 1024);
    history.markSaved();
    for (int slot = 1; slot <= 10; ++slot) {
        history.beginStep("Edit Image");
        doc->Images[static_cast<size_t>(slot)].path = std::string(1000, 'p');
        history.endStep();
    }
    while (history.canUndo())
        history.undo();
    EXPECT_EQ(doc->Images[1].path, std::string(1000, 'p'));
    EXPECT_TRUE(history.unsaved());
}

} // namespace
} // namespace vorlane
