#include "project/ProjectWriter.h"

#include "ProjectTestSupport.h"
#include "model/Kinds.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

const std::vector<std::string> HeadLines{"\"\"", "\"\",\"\""};
const std::vector<std::string> AppLines{"\"\",\"\",\"\",0,0,0,0,0,0", "0,0,0,0,\"\""};

// The file of an untouched document with `records` in place of its empty sections.
std::string fileWith(std::initializer_list<int> counts, const std::vector<std::string> &records)
{
    return crlf(joinLines({HeadLines, countLines(counts), AppLines, records, emptyLogLines()}));
}

TEST(ProjectWriter, EmptyProjectWritesZeroCountsAndNoRecords)
{
    auto doc = makeDocument();
    EXPECT_EQ(projectFileBytes(*doc),
              "\"\"\r\n"
              "\"\",\"\"\r\n"
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
              "\"\",\"\",\"\",0,0,0,0,0,0\r\n"
              "0,0,0,0,\"\"\r\n"
              "0,0\r\n"
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
              "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
              "0\r\n");
}

TEST(ProjectWriter, EmptyListWritesZeroAndNothingInItsSection)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Font, 3, "fntA");
    doc->Fonts[3].path = "a.ttf";
    // Fonts are the fifth count; every other list is empty and leaves no trace.
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 1, 0, 0, 0, 0}, {"\"fntA\",\"a.ttf\""}));
}

TEST(ProjectWriter, CountsFollowListOrderAndSectionsFileOrder)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Cursor, 3, "cur");
    doc->Cursors[3].imageId = "img1";
    doc->Cursors[3].orientation = 4;
    // The list order, not the slot order, decides the order of the records.
    listObject(*doc, Kind::Image, 5, "img5");
    listObject(*doc, Kind::Image, 1, "img1");
    doc->Images[1].path = "one.bmp";
    doc->Images[1].red = 1;
    doc->Images[1].green = 2;
    doc->Images[1].blue = 3;
    doc->Images[1].cellWidth = 4;
    doc->Images[1].cellHeight = 5;
    doc->Images[1].bound = 6;
    doc->Images[1].positionX = 7;
    doc->Images[1].positionY = 8;
    doc->Images[1].visible = 9;
    doc->Images[1].alpha = 10;
    doc->Images[5].path = "five.bmp";

    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 1, 2, 0, 0, 0, 0, 0, 0},
                       {"\"img5\",\"five.bmp\",0,0,0,0,0,0,0,0,0,0",
                        "\"img1\",\"one.bmp\",1,2,3,4,5,7,8,9,6,10",
                        "\"cur\",\"img1\",4"}));
}

ButtonRec &numberedButton(Document &doc, int slot, const std::string &id)
{
    listObject(doc, Kind::Button, slot, id);
    ButtonRec &b = doc.Buttons[static_cast<size_t>(slot)];
    b.x = 1;
    b.y = 2;
    b.cursorId = "cur";
    b.currentFrame = 3;
    b.frameUp = 4;
    b.frameDown = 5;
    b.frameOver = 6;
    b.frameDisabled = 7;
    b.templateId = "tpl";
    b.templateRows = 8;
    b.templateColumns = 9;
    b.hotSpotWidth = 10;
    b.hotSpotHeight = 11;
    b.iconId = "icon";
    b.visible = 12;
    b.captionVisible = 13;
    b.iconVisible = 14;
    b.captionTextId = "caption";
    b.soundUp = "up";
    b.soundDown = "down";
    b.soundOver = "over";
    b.soundDisabled = "disabled";
    return b;
}

TEST(ProjectWriter, UnderscoreIdWritesTheSevenFieldsEvenWithIsHotSpotZero)
{
    auto doc = makeDocument();
    numberedButton(*doc, 0, "_door").isHotSpot = 0;
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({1, 0, 0, 0, 0, 0, 0, 0, 0}, {"\"_door\",1,2,\"cur\",3,10,11"}));
}

TEST(ProjectWriter, HotSpotWhoseIdLostItsUnderscoreWritesTheTwentyOneFields)
{
    auto doc = makeDocument();
    numberedButton(*doc, 4, "door").isHotSpot = 1;
    // Frames in the order disabled, up, over, down; then visible, iconVisible, captionVisible.
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({1, 0, 0, 0, 0, 0, 0, 0, 0},
                       {"\"door\",1,2,\"cur\",3,7,4,6,5,\"tpl\",8,9,\"icon\",\"caption\",12,14,13,"
                        "\"up\",\"down\",\"over\",\"disabled\""}));
}

TEST(ProjectWriter, SplashLineOnlyWhenSplashEnabledIsOne)
{
    auto doc = makeDocument();
    AppSettingsRec &app = doc->AppSettings;
    app.splashWidth = 640;
    app.splashHeight = 480;
    app.splashBpp = 16;
    app.splashImagePath = "splash.bmp";
    app.splashTimer = 5;
    app.splashRed = 1;
    app.splashGreen = 2;
    app.splashBlue = 3;
    for (int16_t value : {0, 2, -1, 32767}) {
        app.splashEnabled = value;
        const std::string line1 = "\"\",\"\",\"\",0,0,0,0,0," + std::to_string(value);
        EXPECT_EQ(projectFileBytes(*doc),
                  crlf(joinLines({HeadLines,
                                  countLines({0, 0, 0, 0, 0, 0, 0, 0, 0}),
                                  {line1, "0,0,0,0,\"\""},
                                  emptyLogLines()})))
            << "splashEnabled " << value;
    }
    app.splashEnabled = 1;
    EXPECT_EQ(
        projectFileBytes(*doc),
        crlf(joinLines(
            {HeadLines,
             countLines({0, 0, 0, 0, 0, 0, 0, 0, 0}),
             {"\"\",\"\",\"\",0,0,0,0,0,1", "640,480,16,\"splash.bmp\",5,1,2,3", "0,0,0,0,\"\""},
             emptyLogLines()})));
}

SpriteRec &plainSprite(Document &doc, int slot, const std::string &id)
{
    listObject(doc, Kind::Sprite, slot, id);
    SpriteRec &s = doc.Sprites[static_cast<size_t>(slot)];
    s.imageId = "img";
    s.currentAnimId = "walk";
    s.positionX = 5;
    s.positionY = -6;
    s.visible = 1;
    return s;
}

AnimRec &usedAnim(SpriteRec &sprite, int slot, const std::string &id)
{
    AnimRec &a = sprite.anims[static_cast<size_t>(slot)];
    a.inUse = -1;
    a.id = id;
    a.frameDelay = 10;
    a.animDelay = 20;
    a.repeat = 1;
    a.play = 0;
    a.direction = -1;
    a.defaultFrame = -1;
    return a;
}

TEST(ProjectWriter, AnimationWithoutUsedFramesWritesItsIdAndSettingsLines)
{
    auto doc = makeDocument();
    SpriteRec &s = plainSprite(*doc, 0, "spr");
    s.animCount = 1;
    usedAnim(s, 0, "walk").frameCount = 2; // no frame slot is used
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 0, 0, 0, 1, 0},
                       {"\"spr\",\"img\",\"walk\",5,-6,1,1", "\"walk\",2", "10,20,1,0,-1,-1"}));
}

TEST(ProjectWriter, FrameCountZeroLeavesOutUsedFrameSlots)
{
    auto doc = makeDocument();
    SpriteRec &s = plainSprite(*doc, 0, "spr");
    s.animCount = 1;
    AnimRec &a = usedAnim(s, 0, "walk");
    a.frameCount = 0;
    a.frames[0] = {-1, 4};
    a.frames[1] = {-1, 5};
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 0, 0, 0, 1, 0},
                       {"\"spr\",\"img\",\"walk\",5,-6,1,1", "\"walk\",0", "10,20,1,0,-1,-1"}));
}

TEST(ProjectWriter, UsedFramesAndAnimationsAreWrittenInSlotOrder)
{
    auto doc = makeDocument();
    SpriteRec &s = plainSprite(*doc, 2, "spr");
    s.animCount = 2;
    AnimRec &late = usedAnim(s, 9, "late");
    late.frameCount = 1;
    late.frames[100] = {-1, 100};
    AnimRec &early = usedAnim(s, 4, "early");
    early.frameCount = 3;
    early.frames[7] = {-1, 70};
    early.frames[2] = {-1, 20};
    early.frames[50] = {-1, -5};
    early.frames[3] = {0, 30}; // free
    s.anims[5].isNew = -1;     // reserved, never opened: not used
    s.anims[5].id = "reserved";
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 0, 0, 0, 1, 0},
                       {"\"spr\",\"img\",\"walk\",5,-6,1,2",
                        "\"early\",3",
                        "20",
                        "70",
                        "-5",
                        "10,20,1,0,-1,-1",
                        "\"late\",1",
                        "100",
                        "10,20,1,0,-1,-1"}));
}

TEST(ProjectWriter, SpriteWithAnimCountZeroWritesOnlyItsLine)
{
    auto doc = makeDocument();
    SpriteRec &s = plainSprite(*doc, 0, "spr");
    s.animCount = 0;
    usedAnim(s, 0, "walk").frameCount = 1;
    s.anims[0].frames[0] = {-1, 3};
    usedAnim(s, 1, "run");
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 0, 0, 0, 1, 0}, {"\"spr\",\"img\",\"walk\",5,-6,1,0"}));
}

TEST(ProjectWriter, SceneLayersOnlyWhenLayerCountIsPositive)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Scene, 0, "empty");
    SceneRec &empty = doc->Scenes[0];
    empty.useCursor = 1;
    empty.layerCount = 0;
    empty.layers[0] = {-1, 3, "img"};
    listObject(*doc, Kind::Scene, 1, "full");
    SceneRec &full = doc->Scenes[1];
    full.useMusic = 1;
    full.layerCount = 2;
    full.layers[6] = {-1, 2, "spr"};
    full.layers[1] = {-1, 5, "music"};
    full.layers[2] = {0, 1, "free"};
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 0, 0, 0, 0, 2},
                       {"\"empty\",1,0,0", "\"full\",0,1,2", "\"music\",5", "\"spr\",2"}));
}

TEST(ProjectWriter, CustomFiltersOnlyWhenTheCountIsPositiveThenEveryUsedSlot)
{
    auto doc = makeDocument();
    AppSettingsRec &app = doc->AppSettings;
    app.CustomFilters[0] = {-1, "zero"};
    app.CustomFilters[9] = {-1, "nine"};
    app.CustomFilters[50] = {-1, "fifty"};
    app.CustomFilters[3] = {0, "free"};
    const auto fileFor = [](const std::vector<std::string> &filters) {
        std::vector<std::string> log = emptyLogLines();
        log.back() = filters.front();
        log.insert(log.end(), filters.begin() + 1, filters.end());
        return crlf(joinLines({HeadLines, countLines({0, 0, 0, 0, 0, 0, 0, 0, 0}), AppLines, log}));
    };

    app.customFilterCount = 0;
    EXPECT_EQ(projectFileBytes(*doc), fileFor({"0"}));
    app.customFilterCount = -2;
    EXPECT_EQ(projectFileBytes(*doc), fileFor({"-2"}));
    // The count says one, every used slot is written all the same.
    app.customFilterCount = 1;
    EXPECT_EQ(projectFileBytes(*doc), fileFor({"1", "\"zero\"", "\"nine\"", "\"fifty\""}));
}

TEST(ProjectWriter, LogLinesHoldCountsThenTypeThenFileFilters)
{
    auto doc = makeDocument();
    AppSettingsRec &app = doc->AppSettings;
    app.logFileFilterCount = 2;
    app.logTypeFilterCount = 3;
    app.logTypeFilters = {1, 0, 1, 0, 0, 0, 1};
    app.logFileFilters = {0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1};
    EXPECT_EQ(projectFileBytes(*doc),
              crlf(joinLines({HeadLines,
                              countLines({0, 0, 0, 0, 0, 0, 0, 0, 0}),
                              AppLines,
                              {"2,3", "1", "0", "1", "0", "0", "0", "1"},
                              {"0", "0", "0", "0", "0", "0", "0", "0", "0", "1", "1"},
                              {"0"}})));
}

TEST(ProjectWriter, ApplicationLinesAndNumbersAtTheLimitsOfTheirFields)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "Name, with comma";
    doc->ProjectInfo.projectFilePath = "/home/me/p.dvb";
    doc->ProjectInfo.generatePath = "/home/me/out";
    AppSettingsRec &app = doc->AppSettings;
    app.rootFolder = "root";
    app.windowCaption = "caption";
    app.windowIcon = "icon";
    app.screenWidth = -32768;
    app.screenHeight = 32767;
    app.screenBpp = 32;
    app.screenType = 2;
    app.fps = 60;
    app.soundMix = -2147483647 - 1;
    app.soundChannels = 16;
    app.logEnabled = 1;
    app.useEngineScreen = -1;
    app.logPath = "log.txt";
    EXPECT_EQ(projectFileBytes(*doc),
              crlf(joinLines({{"\"Name, with comma\"", "\"/home/me/p.dvb\",\"/home/me/out\""},
                              countLines({0, 0, 0, 0, 0, 0, 0, 0, 0}),
                              {"\"root\",\"caption\",\"icon\",-32768,32767,32,2,60,0",
                               "-2147483648,16,1,-1,\"log.txt\""},
                              emptyLogLines()})));
    app.soundMix = 2147483647;
    EXPECT_NE(projectFileBytes(*doc).find("\r\n2147483647,16,1,-1,\"log.txt\"\r\n"),
              std::string::npos);
}

TEST(ProjectWriter, TextsAreWrittenInWindows1252WhileEveryCharacterFitsIt)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "Caf\xC3\xA9 \xE2\x82\xAC"; // "Café €"
    EXPECT_EQ(projectFileBytes(*doc).substr(0, 10), "\"Caf\xE9 \x80\"\r\n");
}

TEST(ProjectWriter, ACharacterOutsideWindows1252MakesTheFileUtf8NotAQuestionMark)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "Caf\xC3\xA9 \xE2\x82\xAC \xE6\x97\xA5"; // "Café € 日"
    const std::string bytes = projectFileBytes(*doc);
    EXPECT_EQ(bytes.substr(0, 20), "\xEF\xBB\xBF\"Caf\xC3\xA9 \xE2\x82\xAC \xE6\x97\xA5\"\r\n");
}

TEST(ProjectWriter, TextRecordsBeginWithTheirContent)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Text, 7, "txt");
    TextRec &t = doc->Texts[7];
    t.content = "Hello";
    t.fontId = "fnt";
    t.selectionImageId = "sel";
    int16_t value = 1;
    for (int16_t *field :
         {&t.x,         &t.y,           &t.clipWidth, &t.clipHeight,  &t.centered,
          &t.visible,   &t.delay,       &t.textType,  &t.repeat,      &t.foreRed,
          &t.foreGreen, &t.foreBlue,    &t.backRed,   &t.backGreen,   &t.backBlue,
          &t.pointSize, &t.styleNormal, &t.styleBold, &t.styleItalic, &t.styleUnderline})
        *field = value++;
    // x1 y2 clipWidth3 clipHeight4 centered5 visible6 delay7 textType8 repeat9 foreRGB10-12
    // backRGB13-15 pointSize16 normal17 bold18 italic19 underline20
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 1, 0, 0, 0, 0, 0},
                       {"\"Hello\",\"txt\",\"fnt\",1,2,5,6,9,7,3,4,8,\"sel\",16,17,19,18,20,10,11,"
                        "12,13,14,15"}));
}

TEST(ProjectWriter, MusicAndSoundEffectsShareTheirLayout)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Music, 100, "mus");
    doc->MusicTracks[100].path = "m.ogg";
    doc->MusicTracks[100].defaultVolume = 1;
    doc->MusicTracks[100].defaultPriority = 2;
    doc->MusicTracks[100].defaultPan = 3;
    listObject(*doc, Kind::SFX, 200, "sfx");
    doc->SoundEffects[200].path = "s.wav";
    doc->SoundEffects[200].defaultVolume = -4;
    doc->SoundEffects[200].defaultPriority = 5;
    doc->SoundEffects[200].defaultPan = -6;
    EXPECT_EQ(projectFileBytes(*doc),
              fileWith({0, 0, 0, 0, 0, 1, 1, 0, 0},
                       {"\"mus\",\"m.ogg\",1,2,3", "\"sfx\",\"s.wav\",-4,5,-6"}));
}

TEST(ProjectWriter, ReportsItsStepsInFileOrder)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Image, 0, "a");
    listObject(*doc, Kind::Scene, 0, "b");
    RecordingProgress progress;
    projectFileBytes(*doc, progress);
    EXPECT_EQ(progress.events,
              (std::vector<std::string>{"label Saving Application Data...",
                                        "label Saving Button Data...",
                                        "label Saving Image Data...",
                                        "label Saving Cursor Data...",
                                        "label Saving Text Data...",
                                        "label Saving Font Data...",
                                        "label Saving Music Data...",
                                        "label Saving SFX Data...",
                                        "label Saving Sprite Data...",
                                        "label Saving Scene Data...",
                                        "label Saving Log Data..."}));
    EXPECT_EQ(progress.maximum, 2);
    EXPECT_EQ(progress.current, 2);
}

} // namespace
} // namespace vorlane
