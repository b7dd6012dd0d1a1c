#include "rules/ScenePlan.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

class ScenePlanTest : public ::testing::Test
{
protected:
    std::unique_ptr<Document> doc = makeDocument();
    SceneRec &scene = doc->Scenes[0];

    template<class Record>
    Record &listed(Kind kind, Record &record, int slot, const std::string &id)
    {
        record.inUse = -1;
        record.isNew = 0;
        record.id = id;
        doc->list(kind).lines.push_back({id, static_cast<int16_t>(slot)});
        return record;
    }
    void layer(int slot, int16_t kind, const std::string &id)
    {
        scene.layers[static_cast<size_t>(slot)] = LayerRec{-1, kind, id};
    }
    void SetUp() override
    {
        doc->ProjectInfo.projectFilePath = "/projects/demo.dvb";
        ImageRec &back = listed(Kind::Image, doc->Images[3], 3, "imgBack");
        back.path = "art\\back.png";
        back.positionX = 10;
        back.positionY = 20;
        back.visible = 1;
        back.red = 255;
        back.blue = 255;
        back.alpha = 200;
        ImageRec &sheet = listed(Kind::Image, doc->Images[1], 1, "imgHero");
        sheet.path = "hero.png";
        sheet.cellWidth = 32;
        sheet.cellHeight = 48;
    }
};

TEST_F(ScenePlanTest, LayersComeInSlotOrderWhateverTheListOrder)
{
    layer(5, 3, "imgBack");
    layer(2, 3, "imgHero");
    layer(9, 3, "imgBack");
    const std::vector<SceneItem> items = scenePlan(*doc, scene, {9, 5, 2});
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].layerSlot, 2);
    EXPECT_EQ(items[1].layerSlot, 5);
    EXPECT_EQ(items[2].layerSlot, 9);
}

TEST_F(ScenePlanTest, ImageAtItsPositionWithItsPicture)
{
    layer(0, 3, "imgBack");
    const std::vector<SceneItem> items = scenePlan(*doc, scene, {0});
    ASSERT_EQ(items.size(), 1u);
    const SceneItem &item = items[0];
    EXPECT_EQ(item.kind, SceneItemKind::Image);
    EXPECT_EQ(item.x, 10);
    EXPECT_EQ(item.y, 20);
    EXPECT_TRUE(item.hasPicture);
    EXPECT_EQ(item.cell, 0);
    EXPECT_EQ(item.picture,
              (PictureSpec{"art\\back.png", "/projects/art/back.png", 0, 0, 255, 0, 255, 200}));
}

TEST_F(ScenePlanTest, SpriteShowsTheFirstCellOfItsCurrentAnimation)
{
    SpriteRec &hero = listed(Kind::Sprite, doc->Sprites[4], 4, "sprHero");
    hero.imageId = "imgHero";
    hero.currentAnimId = "walk";
    hero.positionX = 100;
    hero.positionY = 150;
    hero.visible = 1;
    hero.anims[0].inUse = -1;
    hero.anims[0].id = "idle";
    hero.anims[0].frames[0] = FrameRec{-1, 2};
    hero.anims[3].inUse = -1;
    hero.anims[3].id = "walk";
    hero.anims[3].frames[4] = FrameRec{-1, 6};
    hero.anims[3].frames[1] = FrameRec{-1, 5};
    layer(0, 2, "sprHero");
    const SceneItem item = scenePlan(*doc, scene, {0}).at(0);
    EXPECT_EQ(item.kind, SceneItemKind::Sprite);
    EXPECT_EQ(item.cell, 5);
    EXPECT_EQ(item.x, 100);
    EXPECT_EQ(item.y, 150);
    EXPECT_EQ(item.picture.file, "/projects/hero.png");
    EXPECT_EQ(item.picture.cellWidth, 32);

    hero.currentAnimId = "null";
    EXPECT_EQ(scenePlan(*doc, scene, {0}).at(0).cell, 1);
}

TEST_F(ScenePlanTest, ButtonShowsItsUpCellAndHotSpotItsRectangle)
{
    ButtonRec &play = listed(Kind::Button, doc->Buttons[0], 0, "btnPlay");
    play.templateId = "imgHero";
    play.frameUp = 3;
    play.templateRows = 2;
    play.templateColumns = 2;
    play.x = 40;
    play.y = 50;
    play.visible = 1;
    ButtonRec &zone = listed(Kind::Button, doc->Buttons[1], 1, "_zone");
    zone.x = 600;
    zone.y = 20;
    zone.hotSpotWidth = 64;
    zone.hotSpotHeight = 32;
    layer(0, 4, "btnPlay");
    layer(1, 4, "_zone");
    const std::vector<SceneItem> items = scenePlan(*doc, scene, {0, 1});
    EXPECT_EQ(items[0].kind, SceneItemKind::Button);
    EXPECT_EQ(items[0].cell, 3);
    EXPECT_EQ(items[0].rows, 2);
    EXPECT_EQ(items[0].columns, 2);
    EXPECT_EQ(items[0].picture.storedPath, "hero.png");
    EXPECT_EQ(items[1].kind, SceneItemKind::HotSpot);
    EXPECT_EQ(items[1].x, 600);
    EXPECT_EQ(items[1].width, 64);
    EXPECT_EQ(items[1].height, 32);
}

TEST_F(ScenePlanTest, TextWithItsColourSizeAndFontFile)
{
    FontRec &font = listed(Kind::Font, doc->Fonts[0], 0, "fntMenu");
    font.path = "fonts/menu.ttf";
    TextRec &title = listed(Kind::Text, doc->Texts[2], 2, "txtTitle");
    title.content = "Quest";
    title.fontId = "fntMenu";
    title.pointSize = 24;
    title.foreRed = 250;
    title.foreGreen = 200;
    title.styleBold = 1;
    title.x = 5;
    title.y = 6;
    layer(0, 1, "txtTitle");
    const SceneItem item = scenePlan(*doc, scene, {0}).at(0);
    EXPECT_EQ(item.kind, SceneItemKind::Text);
    EXPECT_EQ(item.content, "Quest");
    EXPECT_EQ(item.pointSize, 24);
    EXPECT_EQ(item.foreRed, 250);
    EXPECT_EQ(item.foreGreen, 200);
    EXPECT_EQ(item.foreBlue, 0);
    EXPECT_TRUE(item.bold);
    EXPECT_FALSE(item.italic);
    EXPECT_EQ(item.fontStoredPath, "fonts/menu.ttf");
    EXPECT_EQ(item.fontFile, "/projects/fonts/menu.ttf");
}

TEST_F(ScenePlanTest, MusicDrawsNothingAndUnknownObjectsAreMissing)
{
    listed(Kind::Music, doc->MusicTracks[0], 0, "musTheme");
    layer(0, 5, "musTheme");
    layer(1, 3, "imgGone");
    layer(2, 7, "imgBack");
    doc->Images[5].id = "imgNew";
    doc->Images[5].isNew = -1;
    doc->list(Kind::Image).lines.push_back({"imgNew", 5});
    layer(3, 3, "imgNew");
    const std::vector<SceneItem> items = scenePlan(*doc, scene, {0, 1, 2, 3});
    EXPECT_EQ(items[0].kind, SceneItemKind::Music);
    EXPECT_EQ(items[1].kind, SceneItemKind::Missing);
    EXPECT_EQ(items[2].kind, SceneItemKind::Missing);
    EXPECT_EQ(items[3].kind, SceneItemKind::Missing);
    EXPECT_EQ(layerObjectKind(1), Kind::Text);
    EXPECT_EQ(layerObjectKind(2), Kind::Sprite);
    EXPECT_EQ(layerObjectKind(3), Kind::Image);
    EXPECT_EQ(layerObjectKind(4), Kind::Button);
    EXPECT_EQ(layerObjectKind(5), Kind::Music);
    EXPECT_EQ(layerObjectKind(0), std::nullopt);
    EXPECT_EQ(layerObjectKind(6), std::nullopt);
}

TEST_F(ScenePlanTest, LayersNotInUseAreLeftOut)
{
    layer(0, 3, "imgBack");
    scene.layers[1] = LayerRec{0, 3, "imgBack"};
    EXPECT_EQ(scenePlan(*doc, scene, {0, 1, 200, -1}).size(), 1u);
}

TEST_F(ScenePlanTest, EngineReadsUsedLayersOnlyWithALayerCount)
{
    layer(4, 3, "imgBack");
    layer(1, 3, "imgBack");
    EXPECT_EQ(engineLayerSlots(scene), std::vector<int>{});
    scene.layerCount = 2;
    EXPECT_EQ(engineLayerSlots(scene), (std::vector<int>{1, 4}));
}

TEST_F(ScenePlanTest, ScreenSizeOrDefault)
{
    EXPECT_EQ(previewScreen(doc->AppSettings), (ScreenSize{640, 480}));
    doc->AppSettings.screenWidth = 800;
    EXPECT_EQ(previewScreen(doc->AppSettings), (ScreenSize{640, 480}));
    doc->AppSettings.screenHeight = 600;
    EXPECT_EQ(previewScreen(doc->AppSettings), (ScreenSize{800, 600}));
}

TEST_F(ScenePlanTest, ListedObjectIsFoundByIdInListOrder)
{
    ImageRec &twin = listed(Kind::Image, doc->Images[0], 0, "imgBack");
    twin.path = "twin.png";
    // imgBack in slot 3 was listed first.
    EXPECT_EQ(findListedObject(*doc, Kind::Image, "imgBack"), 3);
    EXPECT_EQ(findListedObject(*doc, Kind::Image, "null"), std::nullopt);
    EXPECT_EQ(findListedObject(*doc, Kind::Image, "nothing"), std::nullopt);
}

} // namespace
} // namespace vorlane
