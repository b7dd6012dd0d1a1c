#include "model/Kinds.h"
#include "model/modGlobal.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

TEST(TableLayout, SlotRangesMatchTheTables)
{
    auto doc = makeDocument();
    EXPECT_EQ(doc->Buttons.size(), 101u);
    EXPECT_EQ(doc->Cursors.size(), 26u);
    EXPECT_EQ(doc->Images.size(), 201u);
    EXPECT_EQ(doc->Texts.size(), 201u);
    EXPECT_EQ(doc->Fonts.size(), 26u);
    EXPECT_EQ(doc->MusicTracks.size(), 101u);
    EXPECT_EQ(doc->SoundEffects.size(), 201u);
    EXPECT_EQ(doc->Sprites.size(), 201u);
    EXPECT_EQ(doc->Scenes.size(), 101u);
    EXPECT_EQ(doc->Sprites[0].anims.size(), 101u);
    EXPECT_EQ(doc->Sprites[0].anims[0].frames.size(), 101u);
    EXPECT_EQ(doc->Scenes[0].layers.size(), 101u);
    EXPECT_EQ(doc->AppSettings.CustomFilters.size(), 51u);
    EXPECT_EQ(doc->AppSettings.logTypeFilters.size(), 7u);
    EXPECT_EQ(doc->AppSettings.logFileFilters.size(), 11u);
    for (Kind kind : ListOrder)
        EXPECT_EQ(withTable(*doc, kind, [](auto &t) { return t.size(); }),
                  static_cast<size_t>(kindInfo(kind).lastSlot + 1));
}

TEST(TableLayout, LogTablesHoldTheEngineNames)
{
    EXPECT_EQ(LogTypePrefixes[0], "Application: ");
    EXPECT_EQ(LogTypePrefixes[2], "@App Status: ");
    EXPECT_EQ(LogTypePrefixes[6], "!DEBUG!: ");
    EXPECT_EQ(LogModuleFiles[0], "capp.cpp");
    EXPECT_EQ(LogModuleFiles[4], "CSceneMngr.cpp");
    EXPECT_EQ(LogModuleFiles[10], "cvideo.cpp");
}

TEST(InitData, FreesEverySlotButKeepsOldTexts)
{
    auto doc = makeDocument();
    for (Kind kind : ListOrder) {
        const int last = kindInfo(kind).lastSlot;
        for (int slot = 0; slot <= last; ++slot) {
            auto view = slotOf(*doc, kind, slot);
            view.inUse = -1;
            view.isNew = static_cast<int16_t>(slot % 2 ? -1 : 0);
            view.id = "old" + std::to_string(slot);
        }
    }
    doc->Buttons[7].x = 33;
    InitData(*doc);
    for (Kind kind : ListOrder) {
        const int last = kindInfo(kind).lastSlot;
        for (int slot = 0; slot <= last; ++slot) {
            auto view = slotOf(*doc, kind, slot);
            EXPECT_EQ(view.inUse, 0);
            EXPECT_EQ(view.isNew, 0);
            EXPECT_EQ(view.id, "old" + std::to_string(slot));
        }
    }
    EXPECT_EQ(doc->Buttons[7].x, 33);
}

TEST(InitData, ReusedSpriteSlotKeepsAnimationTextsWithFlagsCleared)
{
    auto doc = makeDocument();
    auto &sprite = doc->Sprites[4];
    sprite.inUse = -1;
    sprite.anims[3].inUse = -1;
    sprite.anims[3].isNew = -1;
    sprite.anims[3].id = "walk";
    sprite.anims[3].frames[5].inUse = -1;
    sprite.anims[3].frames[5].cell = 9;
    InitData(*doc);
    EXPECT_EQ(sprite.inUse, 0);
    EXPECT_EQ(sprite.anims[3].inUse, 0);
    EXPECT_EQ(sprite.anims[3].isNew, 0);
    EXPECT_EQ(sprite.anims[3].frames[5].inUse, 0);
    EXPECT_EQ(sprite.anims[3].id, "walk");
    EXPECT_EQ(sprite.anims[3].frames[5].cell, 9);
}

TEST(InitData, SceneLayerFlagsSurvive)
{
    auto doc = makeDocument();
    doc->Scenes[2].inUse = -1;
    doc->Scenes[2].layerCount = 3;
    doc->Scenes[2].layers[1].inUse = -1;
    InitData(*doc);
    EXPECT_EQ(doc->Scenes[2].inUse, 0);
    EXPECT_EQ(doc->Scenes[2].layers[1].inUse, -1);
    EXPECT_EQ(doc->Scenes[2].layerCount, 3);
}

TEST(InitData, ClearsFilterCountsAndCustomSlotsFromOne)
{
    auto doc = makeDocument();
    auto &app = doc->AppSettings;
    app.customFilterCount = 4;
    app.logTypeFilterCount = 2;
    app.logFileFilterCount = 5;
    app.logTypeFilters[1] = 1;
    app.logFileFilters[3] = 1;
    for (auto &filter : app.CustomFilters)
        filter.inUse = -1;
    app.windowCaption = "Kept";
    doc->ObjectCounts[0] = 12;
    doc->ProjectInfo.projectName = "P";
    InitData(*doc);
    EXPECT_EQ(app.customFilterCount, 0);
    EXPECT_EQ(app.logTypeFilterCount, 0);
    EXPECT_EQ(app.logFileFilterCount, 0);
    EXPECT_EQ(app.CustomFilters[0].inUse, -1);
    for (size_t i = 1; i < app.CustomFilters.size(); ++i)
        EXPECT_EQ(app.CustomFilters[i].inUse, 0) << i;
    EXPECT_EQ(app.logTypeFilters[1], 1);
    EXPECT_EQ(app.logFileFilters[3], 1);
    EXPECT_EQ(app.windowCaption, "Kept");
    EXPECT_EQ(doc->ObjectCounts[0], 12);
    EXPECT_EQ(doc->ProjectInfo.projectName, "P");
}

TEST(NewProject, ResetsSettingsCountersAndTablesButKeepsRootAndFilters)
{
    auto doc = makeDocument();
    auto &app = doc->AppSettings;
    app.rootFolder = "C:\\game";
    doc->ProjectInfo.generatePath = "C:\\game\\data\\";
    doc->ProjectInfo.projectFilePath = "old.dvb";
    app.logTypeFilters[2] = 1;
    app.logFileFilters[9] = 1;
    app.screenType = 2;
    app.soundMix = 44100;
    app.splashEnabled = 1;
    doc->newObjectCounter = 9;
    doc->ObjectCounts.fill(5);
    doc->animOverflow = doc->frameOverflow = doc->layerOverflow = doc->customFilterOverflow = 3;
    doc->Buttons[1].inUse = -1;
    doc->list(Kind::Image).lines.push_back({"a", 0});
    doc->list(Kind::Image).selected = 0;

    setUpNewProject(*doc, "My Project");

    EXPECT_EQ(doc->ProjectInfo.projectName, "My Project");
    EXPECT_EQ(doc->ProjectInfo.projectFilePath, "");
    EXPECT_EQ(doc->ProjectInfo.projectOpen, -1);
    EXPECT_EQ(app.windowCaption, "QTA Application");
    EXPECT_EQ(app.windowIcon, "null");
    EXPECT_EQ(app.logPath, "null");
    EXPECT_EQ(app.splashImagePath, "null");
    EXPECT_EQ(app.screenType, 1);
    EXPECT_EQ(app.soundMix, 0);
    EXPECT_EQ(app.splashEnabled, 0);
    EXPECT_EQ(doc->newObjectCounter, 0);
    for (auto count : doc->ObjectCounts)
        EXPECT_EQ(count, 0);
    EXPECT_EQ(doc->animOverflow, 0);
    EXPECT_EQ(doc->frameOverflow, 0);
    EXPECT_EQ(doc->layerOverflow, 0);
    EXPECT_EQ(doc->customFilterOverflow, 0);
    EXPECT_EQ(doc->Buttons[1].inUse, 0);
    EXPECT_TRUE(doc->list(Kind::Image).lines.empty());
    EXPECT_EQ(doc->list(Kind::Image).selected, -1);
    EXPECT_EQ(app.rootFolder, "C:\\game");
    EXPECT_EQ(doc->ProjectInfo.generatePath, "C:\\game\\data\\");
    EXPECT_EQ(app.logTypeFilters[2], 1);
    EXPECT_EQ(app.logFileFilters[9], 1);
}

TEST(Kinds, TabsFollowTheListOrder)
{
    EXPECT_EQ(tabOf(Kind::Button), 2);
    EXPECT_EQ(tabOf(Kind::Cursor), 3);
    EXPECT_EQ(tabOf(Kind::Image), 4);
    EXPECT_EQ(tabOf(Kind::Scene), 10);
    EXPECT_EQ(kindOfTab(8), Kind::SFX);
    EXPECT_FALSE(isObjectTab(1));
    EXPECT_FALSE(isObjectTab(11));
    EXPECT_THROW(slotOf(*makeDocument(), Kind::Cursor, 26), std::out_of_range);
}

TEST(DocumentValue, ACopyEqualsItsOriginalUntilOneFieldDiffers)
{
    auto doc = makeDocument();
    setUpNewProject(*doc, "Copy");
    doc->Buttons[3].id = "btnPlay";
    doc->list(Kind::Button).lines.push_back({"btnPlay", 3});
    auto copy = std::make_unique<Document>(*doc);
    EXPECT_TRUE(*copy == *doc);

    copy->Sprites[200].anims[100].frames[100].cell = 7;
    EXPECT_FALSE(*copy == *doc);
    copy->Sprites[200].anims[100].frames[100].cell = 0;
    EXPECT_TRUE(*copy == *doc);

    copy->list(Kind::Button).lines[0].slot = 4;
    EXPECT_FALSE(*copy == *doc);
    copy->list(Kind::Button).lines[0].slot = 3;
    copy->layerOverflow = 1;
    EXPECT_FALSE(*copy == *doc);
    copy->layerOverflow = 0;
    copy->AppSettings.CustomFilters[50].inUse = -1;
    EXPECT_FALSE(*copy == *doc);
}

} // namespace
} // namespace vorlane
