#include "rules/ScenePlacement.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

class ScenePlacementTest : public ::testing::Test
{
protected:
    std::unique_ptr<Document> doc = makeDocument();

    template<class Record>
    Record &listed(Kind kind, Record &record, int slot, const std::string &id)
    {
        record.inUse = -1;
        record.isNew = 0;
        record.id = id;
        doc->list(kind).lines.push_back({id, static_cast<int16_t>(slot)});
        return record;
    }
};

TEST_F(ScenePlacementTest, EachKindMovesItsOwnPositionFields)
{
    ButtonRec &button = listed(Kind::Button, doc->Buttons[2], 2, "btnPlay");
    ButtonRec &zone = listed(Kind::Button, doc->Buttons[3], 3, "_zone");
    ImageRec &image = listed(Kind::Image, doc->Images[1], 1, "imgSky");
    TextRec &text = listed(Kind::Text, doc->Texts[4], 4, "txtTitle");
    SpriteRec &sprite = listed(Kind::Sprite, doc->Sprites[5], 5, "sprHero");
    listed(Kind::Music, doc->MusicTracks[0], 0, "musTheme");

    const auto move = [this](int16_t kind, const std::string &id, ScenePoint to) {
        const std::optional<PositionFields> fields = layerPosition(*doc, LayerRec{-1, kind, id});
        EXPECT_TRUE(fields.has_value()) << id;
        if (fields)
            placeAt(*fields, to);
    };
    move(4, "btnPlay", {10, 20});
    move(4, "_zone", {30, 40});
    move(3, "imgSky", {50, 60});
    move(1, "txtTitle", {70, 80});
    move(2, "sprHero", {90, 100});
    EXPECT_EQ(button.x, 10);
    EXPECT_EQ(button.y, 20);
    EXPECT_EQ(zone.x, 30);
    EXPECT_EQ(zone.y, 40);
    EXPECT_EQ(image.positionX, 50);
    EXPECT_EQ(image.positionY, 60);
    EXPECT_EQ(text.x, 70);
    EXPECT_EQ(text.y, 80);
    EXPECT_EQ(sprite.positionX, 90);
    EXPECT_EQ(sprite.positionY, 100);
    // Nothing else of the records changed.
    ButtonRec expected;
    expected.inUse = -1;
    expected.id = "btnPlay";
    expected.x = 10;
    expected.y = 20;
    EXPECT_EQ(button, expected);
}

TEST_F(ScenePlacementTest, MusicMissingObjectsAndUnknownKindsHaveNoPosition)
{
    listed(Kind::Music, doc->MusicTracks[0], 0, "musTheme");
    ButtonRec &fresh = listed(Kind::Button, doc->Buttons[0], 0, "btnNew");
    fresh.isNew = -1;
    EXPECT_FALSE(layerPosition(*doc, LayerRec{-1, 5, "musTheme"}));
    EXPECT_FALSE(layerPosition(*doc, LayerRec{-1, 4, "btnGone"}));
    EXPECT_FALSE(layerPosition(*doc, LayerRec{-1, 4, "btnNew"}));
    EXPECT_FALSE(layerPosition(*doc, LayerRec{-1, 9, "musTheme"}));
}

TEST_F(ScenePlacementTest, SnapRoundsEachSideToTheNearestMultipleOfEight)
{
    EXPECT_EQ(droppedAt({100, 300}, {13, -5}, false), (ScenePoint{113, 295}));
    EXPECT_EQ(droppedAt({100, 300}, {13, -5}, true), (ScenePoint{112, 296}));
    EXPECT_EQ(droppedAt({0, 0}, {4, 3}, true), (ScenePoint{8, 0}));
    EXPECT_EQ(droppedAt({0, 0}, {-4, -12}, true), (ScenePoint{-8, -16}));
    EXPECT_EQ(droppedAt({0, 0}, {-3, 11}, true), (ScenePoint{0, 8}));
}

TEST_F(ScenePlacementTest, StoredLikeTypedNumbersBeyondSixteenBitsStopAtTheEnd)
{
    ButtonRec &button = listed(Kind::Button, doc->Buttons[0], 0, "btnPlay");
    const PositionFields fields = *layerPosition(*doc, LayerRec{-1, 4, "btnPlay"});
    EXPECT_TRUE(placeAt(fields, {40000, -40000}));
    EXPECT_EQ(button.x, 32767);
    EXPECT_EQ(button.y, -32768);
    EXPECT_FALSE(placeAt(fields, {32767, -32768}));
    EXPECT_TRUE(placeAt(fields, {-3, 7}));
    EXPECT_EQ(fields.point(), (ScenePoint{-3, 7}));
}

TEST_F(ScenePlacementTest, StepNamesTheKindAndTheObject)
{
    EXPECT_EQ(moveStepName(LayerRec{-1, 4, "btnPlay"}), "Move Button \"btnPlay\"");
    EXPECT_EQ(moveStepName(LayerRec{-1, 3, "imgSky"}), "Move Image \"imgSky\"");
    EXPECT_EQ(moveStepName(LayerRec{-1, 1, "txtTitle"}), "Move Text \"txtTitle\"");
    EXPECT_EQ(moveStepName(LayerRec{-1, 2, "sprHero"}), "Move Sprite \"sprHero\"");
}

} // namespace
} // namespace vorlane
