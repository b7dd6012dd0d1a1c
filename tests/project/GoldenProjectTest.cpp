#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include "ProjectTestSupport.h"
#include "rules/NewObjects.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

std::string golden(const std::string &name)
{
    return readBytes(std::string(VORLANE_TEST_DATA) + "/project/" + name);
}

void setButton(ButtonRec &b,
               std::array<int16_t, 4> position, // x, y, currentFrame, isHotSpot
               std::array<int16_t, 4> frames,   // up, down, over, disabled
               std::array<int16_t, 7>
                   layout, // rows, columns, hot spot width and height, visible, caption, icon
               std::array<const char *, 8>
                   texts) // cursor, template, icon, caption, sounds up down over disabled
{
    b.x = position[0];
    b.y = position[1];
    b.currentFrame = position[2];
    b.isHotSpot = position[3];
    b.frameUp = frames[0];
    b.frameDown = frames[1];
    b.frameOver = frames[2];
    b.frameDisabled = frames[3];
    b.templateRows = layout[0];
    b.templateColumns = layout[1];
    b.hotSpotWidth = layout[2];
    b.hotSpotHeight = layout[3];
    b.visible = layout[4];
    b.captionVisible = layout[5];
    b.iconVisible = layout[6];
    b.cursorId = texts[0];
    b.templateId = texts[1];
    b.iconId = texts[2];
    b.captionTextId = texts[3];
    b.soundUp = texts[4];
    b.soundDown = texts[5];
    b.soundOver = texts[6];
    b.soundDisabled = texts[7];
}

// The golden project: every kind, both button forms, a hot spot with a cursor, a sprite whose
// animations sit in slots 3 and 7 with frames in higher slots, a sprite with animCount 0 over
// a used slot, a scene with two layers, custom filters in slots 2 and 7, and a new object
// that Save drops. Lists are not in slot order.
std::unique_ptr<Document> goldenDocument(bool splash)
{
    auto doc = makeDocument();
    Document &d = *doc;
    d.ProjectInfo.projectName = "Golden Project";
    d.ProjectInfo.projectFilePath = "C:\\Games\\Golden\\golden.dvb";
    d.ProjectInfo.generatePath = "C:\\Games\\Golden\\Data";
    d.ProjectInfo.projectOpen = -1;

    AppSettingsRec &app = d.AppSettings;
    app.rootFolder = "C:\\Games\\Golden";
    app.windowCaption = "Golden Quest";
    app.windowIcon = "icons\\golden.ico";
    app.screenWidth = 800;
    app.screenHeight = 600;
    app.screenBpp = 32;
    app.screenType = 2;
    app.fps = 60;
    app.splashEnabled = splash ? 1 : 0;
    app.splashWidth = 640;
    app.splashHeight = 480;
    app.splashBpp = 16;
    app.splashImagePath = "images\\splash.bmp";
    app.splashTimer = 3000;
    app.splashRed = 255;
    app.splashGreen = 0;
    app.splashBlue = 255;
    app.soundMix = 44100;
    app.soundChannels = 16;
    app.logEnabled = 1;
    app.useEngineScreen = 0;
    app.logPath = "logs\\golden.log";
    app.logFileFilterCount = 2;
    app.logTypeFilterCount = 3;
    app.logTypeFilters = {1, 0, 1, 0, 0, 0, 1};
    app.logFileFilters = {0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    app.customFilterCount = 2;
    app.CustomFilters[2] = {-1, "Hero"};
    app.CustomFilters[7] = {-1, "Scene: Title"};
    app.CustomFilters[4] = {0, "removed filter"};

    listObject(d, Kind::Button, 4, "btnPlay");
    setButton(
        d.Buttons[4],
        {100, 200, 1, 0},
        {1, 2, 3, 4},
        {2, 2, 7, 7, 1, 1, 0},
        {"curHand", "imgTemplate", "null", "txtHello", "sfxClick", "sfxDoor", "null", "null"});
    listObject(d, Kind::Button, 0, "_hotDoor");
    setButton(d.Buttons[0],
              {-20, 35, 1, 1},
              {1, 0, 0, 0},
              {0, 0, 64, 128, 1, 1, 1},
              {"curHand", "imgTemplate", "null", "null", "null", "null", "null", "null"});
    listObject(d, Kind::Button, 1, "New_Object1");
    d.Buttons[1].inUse = 0;
    d.Buttons[1].isNew = -1;
    listObject(d, Kind::Button, 2, "btnQuit");
    setButton(d.Buttons[2],
              {100, 260, 5, 0},
              {5, 6, 7, 8},
              {4, 2, 0, 0, 1, 0, 1},
              {"null", "imgTemplate", "imgCursor", "null", "null", "sfxClick", "sfxClick", "null"});

    listObject(d, Kind::Cursor, 1, "curHand");
    d.Cursors[1].imageId = "imgCursor";
    d.Cursors[1].orientation = 1;

    listObject(d, Kind::Image, 3, "imgTemplate");
    ImageRec &tpl = d.Images[3];
    tpl.path = "images\\buttons.bmp";
    tpl.red = 255;
    tpl.blue = 255;
    tpl.cellWidth = 64;
    tpl.cellHeight = 32;
    tpl.bound = 1;
    tpl.alpha = 255;
    listObject(d, Kind::Image, 0, "imgCursor");
    ImageRec &cur = d.Images[0];
    cur.path = "images\\cursor.bmp";
    cur.cellWidth = 16;
    cur.cellHeight = 16;
    cur.positionX = -5;
    cur.positionY = 12;
    cur.visible = 1;
    cur.alpha = 128;

    listObject(d, Kind::Text, 5, "txtHello");
    TextRec &t = d.Texts[5];
    t.content = "Hello, World \xE2\x80\x93 \xC3\xBCn\xC3\xAF"
                "code \xE2\x82\xAC"; // "Hello, World – ünïcode €"
    t.fontId = "fntMain";
    t.selectionImageId = "imgCursor";
    t.x = 10;
    t.y = 20;
    t.centered = 1;
    t.visible = 0;
    t.repeat = 1;
    t.delay = 50;
    t.clipWidth = 300;
    t.clipHeight = 40;
    t.textType = 2;
    t.pointSize = 12;
    t.styleItalic = 1;
    t.foreRed = 255;
    t.foreGreen = 200;
    t.foreBlue = 150;
    t.backGreen = 10;
    t.backBlue = 128;

    listObject(d, Kind::Font, 0, "fntMain");
    d.Fonts[0].path = "fonts\\main.ttf";

    listObject(d, Kind::Music, 2, "musTheme");
    d.MusicTracks[2].path = "music\\theme.ogg";
    d.MusicTracks[2].defaultVolume = 100;
    d.MusicTracks[2].defaultPriority = 1;
    d.MusicTracks[2].defaultPan = -50;

    listObject(d, Kind::SFX, 7, "sfxDoor");
    d.SoundEffects[7].path = "sfx\\door.wav";
    d.SoundEffects[7].defaultVolume = 90;
    d.SoundEffects[7].defaultPriority = 3;
    d.SoundEffects[7].defaultPan = 25;
    listObject(d, Kind::SFX, 1, "sfxClick");
    d.SoundEffects[1].path = "sfx\\click.wav";
    d.SoundEffects[1].defaultVolume = 80;
    d.SoundEffects[1].defaultPriority = 2;

    listObject(d, Kind::Sprite, 0, "sprHero");
    SpriteRec &hero = d.Sprites[0];
    hero.imageId = "imgTemplate";
    hero.currentAnimId = "walk";
    hero.positionX = 50;
    hero.positionY = -60;
    hero.visible = 1;
    hero.animCount = 2;
    AnimRec &walk = hero.anims[3];
    walk = {};
    walk.inUse = -1;
    walk.id = "walk";
    walk.frameCount = 2;
    walk.frames[5] = {-1, 4};
    walk.frames[9] = {-1, 7};
    walk.frameDelay = 100;
    walk.animDelay = 500;
    walk.repeat = 1;
    walk.play = 1;
    walk.direction = 1;
    walk.defaultFrame = -1;
    hero.anims[5].isNew = -1; // added in the sprite editor, never opened
    hero.anims[5].id = "unopened";
    AnimRec &idle = hero.anims[7];
    idle.inUse = -1;
    idle.id = "idle";
    idle.frameCount = 1;
    idle.frames[2] = {-1, 0};
    idle.frameDelay = 200;
    idle.play = 1;
    idle.direction = -1;

    listObject(d, Kind::Sprite, 6, "sprCoin");
    SpriteRec &coin = d.Sprites[6];
    coin.imageId = "imgCursor";
    coin.currentAnimId = "null";
    coin.animCount = 0;
    coin.anims[0].inUse = -1; // left over; animCount 0 keeps it out of the file
    coin.anims[0].id = "stale";

    listObject(d, Kind::Scene, 1, "scnTitle");
    SceneRec &scene = d.Scenes[1];
    scene.useCursor = 1;
    scene.layerCount = 2;
    scene.layers[0] = {-1, 3, "imgCursor"};
    scene.layers[4] = {-1, 2, "sprHero"};
    return doc;
}

std::string savedBytes(Document &doc)
{
    removeNewObjects(doc); // as Save does first
    return projectFileBytes(doc);
}

TEST(GoldenProject, WritesTheGoldenFile)
{
    auto doc = goldenDocument(true);
    EXPECT_EQ(savedBytes(*doc), golden("golden.dvb"));
    EXPECT_EQ(doc->list(Kind::Button).lines.size(), 3u);
}

TEST(GoldenProject, WritesTheGoldenFileWithSplashOff)
{
    auto doc = goldenDocument(false);
    EXPECT_EQ(savedBytes(*doc), golden("golden-splash-off.dvb"));
}

TEST(GoldenProject, GoldenFilesDifferOnlyInTheSplashLines)
{
    std::vector<std::string> on = splitCrlf(golden("golden.dvb"));
    const std::vector<std::string> off = splitCrlf(golden("golden-splash-off.dvb"));
    ASSERT_EQ(on.size(), 59u);
    EXPECT_EQ(on[12], "640,480,16,\"images\\splash.bmp\",3000,255,0,255");
    on.erase(on.begin() + 12);
    on[11].back() = '0';
    EXPECT_EQ(on, off);
}

TEST(GoldenProject, ReopensIntoPackedSlotsInFileOrder)
{
    auto doc = makeDocument();
    ASSERT_EQ(readProject(golden("golden.dvb"), *doc).status, ProjectReadResult::Status::Read);
    Document &d = *doc;
    EXPECT_EQ(d.ProjectInfo.projectFilePath, "C:\\Games\\Golden\\golden.dvb");
    EXPECT_EQ(d.ObjectCounts, (std::array<int16_t, 9>{3, 1, 2, 1, 1, 1, 2, 2, 1}));

    const auto texts = [&](Kind kind) {
        std::vector<std::string> out;
        for (const ListLine &line : d.list(kind).lines)
            out.push_back(line.text + "@" + std::to_string(line.slot));
        return out;
    };
    EXPECT_EQ(texts(Kind::Button),
              (std::vector<std::string>{"btnPlay@0", "_hotDoor@1", "btnQuit@2"}));
    EXPECT_EQ(texts(Kind::Image), (std::vector<std::string>{"imgTemplate@0", "imgCursor@1"}));
    EXPECT_EQ(texts(Kind::SFX), (std::vector<std::string>{"sfxDoor@0", "sfxClick@1"}));
    EXPECT_EQ(texts(Kind::Sprite), (std::vector<std::string>{"sprHero@0", "sprCoin@1"}));

    EXPECT_EQ(d.Buttons[1].cursorId, "null");
    EXPECT_EQ(d.Buttons[1].isHotSpot, 1);
    EXPECT_EQ(d.Buttons[0].cursorId, "curHand");
    EXPECT_EQ(d.Texts[0].content,
              "Hello, World \xE2\x80\x93 \xC3\xBCn\xC3\xAF"
              "code \xE2\x82\xAC");

    const SpriteRec &hero = d.Sprites[0];
    EXPECT_EQ(hero.anims[0].id, "walk");
    EXPECT_EQ(hero.anims[0].frames[0].cell, 4);
    EXPECT_EQ(hero.anims[0].frames[1].cell, 7);
    EXPECT_EQ(hero.anims[0].frames[1].inUse, -1);
    EXPECT_EQ(hero.anims[0].frames[5].inUse, 0);
    EXPECT_EQ(hero.anims[1].id, "idle");
    EXPECT_EQ(hero.anims[1].frames[0].inUse, -1);
    EXPECT_EQ(hero.anims[3].inUse, 0);
    EXPECT_EQ(d.Sprites[1].anims[0].inUse, 0);

    EXPECT_EQ(d.Scenes[0].layers[1].objectId, "sprHero");
    EXPECT_EQ(d.Scenes[0].layers[1].inUse, -1);
    EXPECT_EQ(d.Scenes[0].layers[4].inUse, 0);

    EXPECT_EQ(d.AppSettings.CustomFilters[1].text, "Hero");
    EXPECT_EQ(d.AppSettings.CustomFilters[2].text, "Scene: Title");
    EXPECT_EQ(d.AppSettings.CustomFilters[2].inUse, -1);
    EXPECT_EQ(d.AppSettings.CustomFilters[7].inUse, 0);
    EXPECT_EQ(d.customFilterOverflow, 2);
}

TEST(GoldenProject, SavingTheReopenedFileLosesOnlyTheHotSpotCursor)
{
    auto doc = makeDocument();
    ASSERT_EQ(readProject(golden("golden.dvb"), *doc).status, ProjectReadResult::Status::Read);
    std::vector<std::string> expected = splitCrlf(golden("golden.dvb"));
    ASSERT_EQ(expected[15], "\"_hotDoor\",-20,35,\"curHand\",1,64,128");
    expected[15] = "\"_hotDoor\",-20,35,\"null\",1,64,128";
    EXPECT_EQ(projectFileBytes(*doc), crlf(expected));
}

TEST(GoldenProject, SplashOffGoldenReopensWithoutSplashValues)
{
    auto doc = makeDocument();
    ASSERT_EQ(readProject(golden("golden-splash-off.dvb"), *doc).status,
              ProjectReadResult::Status::Read);
    const AppSettingsRec &app = doc->AppSettings;
    EXPECT_EQ(app.splashEnabled, 0);
    EXPECT_EQ(app.splashWidth, 0);
    EXPECT_EQ(app.splashHeight, 0);
    EXPECT_EQ(app.splashBpp, 0);
    EXPECT_EQ(app.splashTimer, 0);
    EXPECT_EQ(app.splashRed, 0);
    EXPECT_EQ(app.splashGreen, 0);
    EXPECT_EQ(app.splashBlue, 0);
    EXPECT_EQ(app.splashImagePath, "null");
    EXPECT_EQ(app.soundMix, 44100);
}

} // namespace
} // namespace vorlane
