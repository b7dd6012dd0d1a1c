#include "history/StepNames.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(StepNames, EachKindIsNamedAsItsTab)
{
    EXPECT_EQ(kindStepName(Kind::Button), "Button");
    EXPECT_EQ(kindStepName(Kind::Cursor), "Cursor");
    EXPECT_EQ(kindStepName(Kind::Image), "Image");
    EXPECT_EQ(kindStepName(Kind::Text), "Text");
    EXPECT_EQ(kindStepName(Kind::Font), "Font");
    EXPECT_EQ(kindStepName(Kind::Music), "Music");
    EXPECT_EQ(kindStepName(Kind::SFX), "SFX");
    EXPECT_EQ(kindStepName(Kind::Sprite), "Sprite");
    EXPECT_EQ(kindStepName(Kind::Scene), "Scene");
}

TEST(StepNames, EditAddAndRemoveNameTheKindAndTheId)
{
    EXPECT_EQ(editStepName(Kind::Button, "btnPlay"), "Edit Button \"btnPlay\"");
    EXPECT_EQ(addStepName(Kind::Image), "Add Image");
    EXPECT_EQ(removeStepName(Kind::Image, "imgHero"), "Remove Image \"imgHero\"");
    EXPECT_EQ(removeStepName(Kind::SFX, ""), "Remove SFX \"\"");
}

TEST(StepNames, RenameNamesTheKindAndTheIdTheObjectHad)
{
    EXPECT_EQ(renameStepName(Kind::Image, "imgHero"), "Rename Image \"imgHero\"");
    EXPECT_EQ(renameStepName(Kind::SFX, "New_Object3"), "Rename SFX \"New_Object3\"");
    EXPECT_EQ(renameStepName(Kind::Music, "mus&Theme"), "Rename Music \"mus&Theme\"");
}

TEST(StepNames, OpenNamesTheFileWithoutItsFolder)
{
    EXPECT_EQ(openStepName("/home/ann/games/game.dvb"), "Open \"game.dvb\"");
    EXPECT_EQ(openStepName("game.dvb"), "Open \"game.dvb\"");
    EXPECT_EQ(openStepName("C:\\games\\old.dvb"), "Open \"old.dvb\"");
}

TEST(StepNames, FixedNames)
{
    EXPECT_STREQ(NewStepName, "New Project");
    EXPECT_STREQ(RemoveNewObjectsStepName, "Remove New Objects");
    EXPECT_STREQ(RootFolderStepName, "Type Root Folder");
}

} // namespace
} // namespace vorlane
