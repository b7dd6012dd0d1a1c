#include "generate/EngineFiles.h"

#include "GenerateTestSupport.h"
#include "model/Kinds.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using testing::addObject;

class DataFiles : public ::testing::Test
{
protected:
    std::unique_ptr<Document> doc = makeDocument();
};

TEST_F(DataFiles, EmptyKindIsABareZero)
{
    for (Kind kind : FileOrder)
        EXPECT_EQ(dataFile(*doc, kind), "0\r\n") << kindInfo(kind).dataFile;
}

TEST_F(DataFiles, CountLineCarriesItsLeadingBlank)
{
    for (int16_t slot = 0; slot < 3; ++slot) {
        auto &font = addObject(*doc, Kind::Font, doc->Fonts, slot, "fnt" + std::to_string(slot));
        font.path = "f" + std::to_string(slot) + ".ttf";
    }
    EXPECT_EQ(fontDat(*doc),
              " 3\r\n"
              "fnt0 f0.ttf\r\n"
              "fnt1 f1.ttf\r\n"
              "fnt2 f2.ttf\r\n");
}

TEST_F(DataFiles, GraphicButtonLongLayout)
{
    auto &b = addObject(*doc, Kind::Button, doc->Buttons, 0, "cmdPlay");
    b.x = 10;
    b.y = 20;
    b.cursorId = "curHand";
    b.currentFrame = 1;
    b.frameUp = 1;
    b.frameDown = 2;
    b.frameOver = 3;
    b.frameDisabled = 4;
    b.templateId = "imgTpl";
    b.templateRows = 2;
    b.templateColumns = 3;
    b.iconId = "imgIcon";
    b.captionTextId = "txtPlay";
    b.visible = 1;
    b.iconVisible = 0;
    b.captionVisible = 1;
    b.soundUp = "sfxUp";
    b.soundDown = "sfxDown";
    b.soundOver = "sfxOver";
    b.soundDisabled = "sfxOff";
    b.hotSpotWidth = 99;
    b.hotSpotHeight = 98;
    EXPECT_EQ(buttonDat(*doc),
              " 1\r\n"
              "cmdPlay  10  20 curHand  1  4  1  3  2 imgTpl  2  3 imgIcon txtPlay  1  0  1"
              " sfxUp sfxDown sfxOver sfxOff\r\n");
}

TEST_F(DataFiles, HotSpotShortLayout)
{
    auto &b = addObject(*doc, Kind::Button, doc->Buttons, 0, "_zone");
    b.isHotSpot = 1;
    b.x = -4;
    b.y = 8;
    b.cursorId = "curArrow";
    b.currentFrame = 1;
    b.hotSpotWidth = 64;
    b.hotSpotHeight = 32;
    b.templateId = "not written";
    EXPECT_EQ(buttonDat(*doc), " 1\r\n_zone -4  8 curArrow  1  64  32\r\n");
}

TEST_F(DataFiles, HandTypedUnderscoreGivesTheHotSpotLayout)
{
    // isHotSpot says graphic button, but the identifier decides.
    auto &b = addObject(*doc, Kind::Button, doc->Buttons, 0, "_typed");
    b.isHotSpot = 0;
    b.x = 1;
    b.y = 2;
    b.cursorId = "null";
    b.currentFrame = 3;
    b.hotSpotWidth = 4;
    b.hotSpotHeight = 5;
    b.frameDisabled = 7;
    EXPECT_EQ(buttonDat(*doc), " 1\r\n_typed  1  2 null  3  4  5\r\n");
}

TEST_F(DataFiles, HotSpotWithoutUnderscoreGivesTheLongLayout)
{
    auto &b = addObject(*doc, Kind::Button, doc->Buttons, 0, "zone");
    b.isHotSpot = 1;
    b.cursorId = b.templateId = b.iconId = b.captionTextId = "null";
    b.soundUp = b.soundDown = b.soundOver = b.soundDisabled = "null";
    EXPECT_EQ(
        buttonDat(*doc),
        " 1\r\n"
        "zone  0  0 null  0  0  0  0  0 null  0  0 null null  0  0  0 null null null null\r\n");
}

TEST_F(DataFiles, ImageBoundStandsAfterAlpha)
{
    auto &i = addObject(*doc, Kind::Image, doc->Images, 0, "imgBack");
    i.path = "gfx\\back.png";
    i.red = 1;
    i.green = 2;
    i.blue = 3;
    i.cellWidth = 4;
    i.cellHeight = 5;
    i.bound = 6;
    i.positionX = 7;
    i.positionY = 8;
    i.visible = 9;
    i.alpha = 10;
    EXPECT_EQ(imageDat(*doc), " 1\r\nimgBack gfx\\back.png  1  2  3  4  5  7  8  10  6  9\r\n");
}

TEST_F(DataFiles, CursorLine)
{
    auto &c = addObject(*doc, Kind::Cursor, doc->Cursors, 4, "curHand");
    c.imageId = "imgCursors";
    c.orientation = 1;
    EXPECT_EQ(cursorDat(*doc), " 1\r\ncurHand imgCursors  1\r\n");
}

TEST_F(DataFiles, TextPiecesMeetWithSingleBlankJoints)
{
    auto &t = addObject(*doc, Kind::Text, doc->Texts, 0, "txtHello");
    t.content = "Hello, world";
    t.fontId = "fntMain";
    t.selectionImageId = "null";
    t.x = 1;
    t.y = 2;
    t.centered = 3;
    t.visible = 4;
    t.repeat = 5;
    t.delay = 6;
    t.clipWidth = 7;
    t.clipHeight = 8;
    t.textType = 9;
    t.pointSize = 10;
    t.styleNormal = 11;
    t.styleBold = 12;
    t.styleItalic = 13;
    t.styleUnderline = 14;
    t.foreRed = 15;
    t.foreGreen = 16;
    t.foreBlue = 17;
    t.backRed = 18;
    t.backGreen = 19;
    t.backBlue = 20;
    EXPECT_EQ(textDat(*doc),
              " 1\r\n"
              "Hello, world* txtHello fntMain  1  2 3  4  5  6  7 8  9 null  10  11  13  12  14"
              "  15  16  17  18  19  20\r\n");
}

TEST_F(DataFiles, NegativeNumberAtATextJointHasNoBlank)
{
    auto &t = addObject(*doc, Kind::Text, doc->Texts, 0, "t");
    t.content = "";
    t.fontId = "f";
    t.selectionImageId = "s";
    t.y = -2;
    t.centered = -1;
    t.clipWidth = 0;
    t.clipHeight = -1;
    EXPECT_EQ(textDat(*doc),
              " 1\r\n"
              "* t f  0 -2-1  0  0  0  0-1  0 s  0  0  0  0  0  0  0  0  0  0  0\r\n");
}

TEST_F(DataFiles, FontIdAndPathOnly)
{
    auto &f = addObject(*doc, Kind::Font, doc->Fonts, 0, "fntMain");
    f.path = "fonts\\main font.ttf";
    EXPECT_EQ(fontDat(*doc), " 1\r\nfntMain fonts\\main font.ttf\r\n");
}

TEST_F(DataFiles, MusicAndSoundEffectsShareTheirLayout)
{
    auto &m = addObject(*doc, Kind::Music, doc->MusicTracks, 0, "musTheme");
    m.path = "music\\theme.ogg";
    m.defaultVolume = 100;
    m.defaultPriority = 1;
    m.defaultPan = -50;
    auto &s = addObject(*doc, Kind::SFX, doc->SoundEffects, 0, "sfxClick");
    s.path = "sfx\\click.wav";
    s.defaultVolume = 80;
    s.defaultPriority = 2;
    s.defaultPan = 0;
    EXPECT_EQ(musicDat(*doc), " 1\r\nmusTheme music\\theme.ogg  100  1 -50\r\n");
    EXPECT_EQ(sfxDat(*doc), " 1\r\nsfxClick sfx\\click.wav  80  2  0\r\n");
}

TEST_F(DataFiles, ObjectsComeInListOrderNotSlotOrder)
{
    for (int16_t slot = 0; slot < 3; ++slot) {
        auto &c = addObject(*doc, Kind::Cursor, doc->Cursors, slot, "cur" + std::to_string(slot));
        c.imageId = "img";
        c.orientation = slot;
    }
    // Remove the object in slot 0, then add a new one: it takes slot 0 but is listed last.
    auto &lines = doc->list(Kind::Cursor).lines;
    lines.erase(lines.begin());
    doc->Cursors[0].inUse = 0;
    auto &again = addObject(*doc, Kind::Cursor, doc->Cursors, 0, "curAgain");
    again.orientation = 7;
    EXPECT_EQ(cursorDat(*doc),
              " 3\r\n"
              "cur1 img  1\r\n"
              "cur2 img  2\r\n"
              "curAgain img  7\r\n");
}

TEST_F(DataFiles, SpriteWithoutAnimationsIsOneLine)
{
    auto &s = addObject(*doc, Kind::Sprite, doc->Sprites, 0, "sprCoin");
    s.imageId = "imgCoin";
    s.currentAnimId = "null";
    s.positionX = 3;
    s.positionY = -4;
    s.visible = 1;
    s.animCount = 0;
    s.anims[0].inUse = -1; // left over: not written while animCount is 0
    s.anims[0].id = "aniOld";
    EXPECT_EQ(spriteDat(*doc), " 1\r\nsprCoin imgCoin null  3 -4  1  0\r\n");
}

TEST_F(DataFiles, AnimationFramesInSlotOrder)
{
    auto &s = addObject(*doc, Kind::Sprite, doc->Sprites, 2, "sprHero");
    s.imageId = "imgHero";
    s.currentAnimId = "aniWalk";
    s.animCount = 1;
    auto &a = s.anims[5];
    a.inUse = -1;
    a.id = "aniWalk";
    a.frameCount = 2;
    a.frames[7] = {-1, 70};
    a.frames[3] = {-1, 30};
    a.frames[5] = {0, 50};
    a.frameDelay = 100;
    a.animDelay = 200;
    a.repeat = 1;
    a.play = 0;
    a.direction = -1;
    a.defaultFrame = -1;
    EXPECT_EQ(spriteDat(*doc),
              " 1\r\n"
              "sprHero imgHero aniWalk  0  0  0  1\r\n"
              "aniWalk  2\r\n"
              " 30\r\n"
              " 70\r\n"
              " 100  200  1  0 -1 -1\r\n");
}

TEST_F(DataFiles, AnimationsAreScannedBySlotAndFramesOnlyWhenCounted)
{
    auto &s = addObject(*doc, Kind::Sprite, doc->Sprites, 0, "spr");
    s.imageId = "img";
    s.currentAnimId = "b";
    s.animCount = 2;
    s.anims[9] = {};
    s.anims[9].inUse = -1;
    s.anims[9].id = "b";
    s.anims[9].frameCount = 0;
    s.anims[9].frames[0] = {-1, 5}; // not written: frameCount is 0
    s.anims[1].inUse = -1;
    s.anims[1].id = "a";
    s.anims[1].frameCount = 1;
    s.anims[1].frames[100] = {-1, -3};
    s.anims[4].inUse = 0; // free slot with old texts
    s.anims[4].id = "old";
    EXPECT_EQ(spriteDat(*doc),
              " 1\r\n"
              "spr img b  0  0  0  2\r\n"
              "a  1\r\n"
              "-3\r\n"
              " 0  0  0  0  0  0\r\n"
              "b  0\r\n"
              " 0  0  0  0  0  0\r\n");
}

TEST_F(DataFiles, SceneLayersInSlotOrder)
{
    auto &s = addObject(*doc, Kind::Scene, doc->Scenes, 0, "scnTitle");
    s.useCursor = 1;
    s.useMusic = 0;
    s.layerCount = 2;
    s.layers[6] = {-1, 4, "cmdStart"};
    s.layers[1] = {-1, 3, "imgBack"};
    s.layers[3] = {0, 1, "txtOld"};
    auto &empty = addObject(*doc, Kind::Scene, doc->Scenes, 1, "scnEmpty");
    empty.layerCount = 0;
    empty.layers[0] = {-1, 2, "sprNotWritten"};
    EXPECT_EQ(sceneDat(*doc),
              " 2\r\n"
              "scnTitle  1  0  2\r\n"
              "imgBack  3\r\n"
              "cmdStart  4\r\n"
              "scnEmpty  0  0  0\r\n");
}

TEST_F(DataFiles, RecordCallbackRunsOncePerObject)
{
    for (int16_t slot = 0; slot < 4; ++slot)
        addObject(*doc, Kind::Sprite, doc->Sprites, slot, "s" + std::to_string(slot));
    int records = 0;
    const std::string bytes = dataFile(*doc, Kind::Sprite, [&] { ++records; });
    EXPECT_EQ(records, 4);
    EXPECT_EQ(bytes.substr(0, 7), " 4\r\ns0 ");
    EXPECT_EQ(bytes, spriteDat(*doc));
}

TEST_F(DataFiles, ManyLongRecordsAreWrittenWhole)
{
    for (int16_t slot = 0; slot < 40; ++slot) {
        auto &t = addObject(*doc, Kind::Text, doc->Texts, slot, "txt" + std::to_string(slot));
        t.content =
            std::string(static_cast<size_t>(400 + slot), static_cast<char>('a' + slot % 26));
    }
    int records = 0;
    const std::string bytes = dataFile(*doc, Kind::Text, [&] { ++records; });
    EXPECT_EQ(records, 40);
    EXPECT_EQ(bytes, textDat(*doc));
    EXPECT_EQ(bytes.substr(0, 11), " 40\r\naaaaaa");
    // Each record: its content, the identifier and the rest of its line.
    std::size_t at = 5;
    for (int slot = 0; slot < 40; ++slot) {
        const std::string content(static_cast<size_t>(400 + slot),
                                  static_cast<char>('a' + slot % 26));
        ASSERT_EQ(bytes.compare(at, content.size(), content), 0) << slot;
        at = bytes.find("\r\n", at) + 2;
    }
    EXPECT_EQ(at, bytes.size());
}

TEST_F(DataFiles, ARecordLargerThanAnyLineIsWrittenWhole)
{
    auto &t = addObject(*doc, Kind::Text, doc->Texts, 0, "txtLong");
    t.content = std::string(20000, 'x');
    const std::string bytes = textDat(*doc);
    EXPECT_EQ(bytes.substr(0, 4), " 1\r\n");
    EXPECT_EQ(bytes.substr(4, 20000), std::string(20000, 'x'));
    EXPECT_EQ(bytes.substr(20002, 11), "xx* txtLong");
}

TEST_F(DataFiles, FullSpriteTableWithWidestNumbers)
{
    // Every sprite, animation and frame slot used, every number as wide as it gets.
    for (int16_t slot = 0; slot <= 200; ++slot) {
        auto &s = addObject(*doc, Kind::Sprite, doc->Sprites, slot, "s");
        s.imageId = s.currentAnimId = "i";
        s.positionX = s.positionY = s.visible = -32768;
        s.animCount = 101;
        for (auto &a : s.anims) {
            a.inUse = -1;
            a.id = "a";
            a.frameCount = 101;
            for (auto &f : a.frames)
                f = {-1, -32768};
            a.frameDelay = a.animDelay = a.repeat = a.play = a.direction = a.defaultFrame = -32768;
        }
    }
    const std::string bytes = spriteDat(*doc);
    const std::string animation = "a  101\r\n" + [] {
        std::string frames;
        for (int i = 0; i < 101; ++i)
            frames += "-32768\r\n";
        return frames;
    }() + "-32768 -32768 -32768 -32768 -32768 -32768\r\n";
    const std::string sprite = "s i i -32768 -32768 -32768  101\r\n";
    ASSERT_EQ(bytes.size(), 6 + 201 * (sprite.size() + 101 * animation.size()));
    EXPECT_EQ(bytes.substr(0, 6 + sprite.size() + animation.size()),
              " 201\r\n" + sprite + animation);
    EXPECT_EQ(bytes.substr(bytes.size() - animation.size()), animation);
}

TEST_F(DataFiles, ListLineOutsideTheTableIsRefused)
{
    doc->list(Kind::Font).lines.push_back({"bad", 26});
    EXPECT_THROW(fontDat(*doc), std::out_of_range);
}

} // namespace
} // namespace vorlane
