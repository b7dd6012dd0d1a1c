#include "project/ProjectReader.h"

#include "ProjectTestSupport.h"
#include "io/Cp1252.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

const std::vector<std::string> &SmallProject = smallProjectLines();

TEST(ProjectReader, ReadsEveryLineIntoTheDocument)
{
    auto doc = makeDocument();
    const ProjectReadResult r = readProject(crlf(SmallProject), *doc);
    ASSERT_EQ(r.status, ProjectReadResult::Status::Read) << r.line << ": " << r.message;

    EXPECT_EQ(doc->ProjectInfo.projectName, "Small");
    EXPECT_EQ(doc->ProjectInfo.projectFilePath, "/p/small.dvb");
    EXPECT_EQ(doc->ProjectInfo.generatePath, "/p/out");
    EXPECT_EQ(doc->ObjectCounts, (std::array<int16_t, 9>{2, 1, 1, 1, 1, 1, 1, 1, 1}));

    const AppSettingsRec &app = doc->AppSettings;
    EXPECT_EQ(app.rootFolder, "root");
    EXPECT_EQ(app.windowCaption, "caption");
    EXPECT_EQ(app.windowIcon, "icon");
    EXPECT_EQ(app.screenWidth, 800);
    EXPECT_EQ(app.screenHeight, 600);
    EXPECT_EQ(app.screenBpp, 32);
    EXPECT_EQ(app.screenType, 2);
    EXPECT_EQ(app.fps, 60);
    EXPECT_EQ(app.splashEnabled, 1);
    EXPECT_EQ(app.splashWidth, 640);
    EXPECT_EQ(app.splashHeight, 480);
    EXPECT_EQ(app.splashBpp, 16);
    EXPECT_EQ(app.splashImagePath, "splash.bmp");
    EXPECT_EQ(app.splashTimer, 3);
    EXPECT_EQ(app.splashRed, 4);
    EXPECT_EQ(app.splashGreen, 5);
    EXPECT_EQ(app.splashBlue, 6);
    EXPECT_EQ(app.soundMix, 44100);
    EXPECT_EQ(app.soundChannels, 8);
    EXPECT_EQ(app.logEnabled, 1);
    EXPECT_EQ(app.useEngineScreen, -1);
    EXPECT_EQ(app.logPath, "log.txt");

    const ButtonRec &b = doc->Buttons[0];
    EXPECT_EQ(b.id, "btn");
    EXPECT_EQ(b.x, 10);
    EXPECT_EQ(b.y, 20);
    EXPECT_EQ(b.cursorId, "cur");
    EXPECT_EQ(b.currentFrame, 1);
    EXPECT_EQ(b.frameDisabled, 4);
    EXPECT_EQ(b.frameUp, 1);
    EXPECT_EQ(b.frameOver, 3);
    EXPECT_EQ(b.frameDown, 2);
    EXPECT_EQ(b.templateId, "tpl");
    EXPECT_EQ(b.templateRows, 5);
    EXPECT_EQ(b.templateColumns, 6);
    EXPECT_EQ(b.iconId, "icon");
    EXPECT_EQ(b.captionTextId, "cap");
    EXPECT_EQ(b.visible, 1);
    EXPECT_EQ(b.iconVisible, 0);
    EXPECT_EQ(b.captionVisible, 1);
    EXPECT_EQ(b.soundUp, "su");
    EXPECT_EQ(b.soundDown, "sd");
    EXPECT_EQ(b.soundOver, "so");
    EXPECT_EQ(b.soundDisabled, "sx");
    EXPECT_EQ(b.isHotSpot, 0);

    const ImageRec &i = doc->Images[0];
    EXPECT_EQ(i.path, "a.bmp");
    EXPECT_EQ((std::array<int16_t, 10>{i.red,
                                       i.green,
                                       i.blue,
                                       i.cellWidth,
                                       i.cellHeight,
                                       i.positionX,
                                       i.positionY,
                                       i.visible,
                                       i.bound,
                                       i.alpha}),
              (std::array<int16_t, 10>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(doc->Cursors[0].imageId, "img");
    EXPECT_EQ(doc->Cursors[0].orientation, 3);

    const TextRec &t = doc->Texts[0];
    EXPECT_EQ(t.content, "Hi, there");
    EXPECT_EQ(t.id, "txt");
    EXPECT_EQ(t.fontId, "fnt");
    EXPECT_EQ(t.selectionImageId, "sel");
    EXPECT_EQ((std::array<int16_t, 20>{
                  t.x,           t.y,           t.centered,   t.visible,        t.repeat,
                  t.delay,       t.clipWidth,   t.clipHeight, t.textType,       t.pointSize,
                  t.styleNormal, t.styleItalic, t.styleBold,  t.styleUnderline, t.foreRed,
                  t.foreGreen,   t.foreBlue,    t.backRed,    t.backGreen,      t.backBlue}),
              (std::array<int16_t, 20>{1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                       11, 12, 13, 14, 15, 16, 17, 18, 19, 20}));

    EXPECT_EQ(doc->Fonts[0].path, "f.ttf");
    EXPECT_EQ(doc->MusicTracks[0].path, "m.ogg");
    EXPECT_EQ(doc->MusicTracks[0].defaultVolume, 1);
    EXPECT_EQ(doc->MusicTracks[0].defaultPriority, 2);
    EXPECT_EQ(doc->MusicTracks[0].defaultPan, 3);
    EXPECT_EQ(doc->SoundEffects[0].path, "s.wav");
    EXPECT_EQ(doc->SoundEffects[0].defaultPan, 6);

    const SpriteRec &s = doc->Sprites[0];
    EXPECT_EQ(s.imageId, "img");
    EXPECT_EQ(s.currentAnimId, "walk");
    EXPECT_EQ(s.positionX, 7);
    EXPECT_EQ(s.positionY, 8);
    EXPECT_EQ(s.visible, 1);
    EXPECT_EQ(s.animCount, 1);
    const AnimRec &a = s.anims[0];
    EXPECT_EQ(a.inUse, -1);
    EXPECT_EQ(a.id, "walk");
    EXPECT_EQ(a.frameCount, 2);
    EXPECT_EQ(a.frames[0].inUse, -1);
    EXPECT_EQ(a.frames[0].cell, 3);
    EXPECT_EQ(a.frames[1].inUse, -1);
    EXPECT_EQ(a.frames[1].cell, 4);
    EXPECT_EQ(a.frames[2].inUse, 0);
    EXPECT_EQ((std::array<int16_t, 6>{
                  a.frameDelay, a.animDelay, a.repeat, a.play, a.direction, a.defaultFrame}),
              (std::array<int16_t, 6>{100, 200, 1, 1, -1, -1}));
    EXPECT_EQ(s.anims[1].inUse, 0);

    const SceneRec &scene = doc->Scenes[0];
    EXPECT_EQ(scene.useCursor, 1);
    EXPECT_EQ(scene.useMusic, 0);
    EXPECT_EQ(scene.layerCount, 1);
    EXPECT_EQ(scene.layers[0].inUse, -1);
    EXPECT_EQ(scene.layers[0].objectId, "img");
    EXPECT_EQ(scene.layers[0].objectKind, 3);

    EXPECT_EQ(app.logFileFilterCount, 2);
    EXPECT_EQ(app.logTypeFilterCount, 3);
    EXPECT_EQ(app.logTypeFilters, (std::array<int16_t, 7>{1, 0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(app.logFileFilters, (std::array<int16_t, 11>{1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(app.customFilterCount, 2);
    EXPECT_EQ(doc->customFilterOverflow, 2);
    EXPECT_EQ(app.CustomFilters[0].inUse, 0);
    EXPECT_EQ(app.CustomFilters[1].inUse, -1);
    EXPECT_EQ(app.CustomFilters[1].text, "first");
    EXPECT_EQ(app.CustomFilters[2].inUse, -1);
    EXPECT_EQ(app.CustomFilters[2].text, "second");
    EXPECT_EQ(app.CustomFilters[3].inUse, 0);
}

TEST(ProjectReader, ListsEachRecordUnderItsIdWithItsSlotAsItemData)
{
    auto doc = makeDocument();
    doc->Buttons[1].isNew = -1; // whatever the slot held before
    ASSERT_EQ(readProject(crlf(SmallProject), *doc).status, ProjectReadResult::Status::Read);
    const auto &buttons = doc->list(Kind::Button).lines;
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0].text, "btn");
    EXPECT_EQ(buttons[0].slot, 0);
    EXPECT_EQ(buttons[1].text, "_hot");
    EXPECT_EQ(buttons[1].slot, 1);
    for (int slot : {0, 1}) {
        EXPECT_EQ(doc->Buttons[static_cast<size_t>(slot)].inUse, -1);
        EXPECT_EQ(doc->Buttons[static_cast<size_t>(slot)].isNew, 0);
    }
    EXPECT_EQ(doc->Buttons[2].inUse, 0);
    // A text line is listed under its id, not its content.
    ASSERT_EQ(doc->list(Kind::Text).lines.size(), 1u);
    EXPECT_EQ(doc->list(Kind::Text).lines[0].text, "txt");
    for (Kind kind : {Kind::Cursor,
                      Kind::Image,
                      Kind::Font,
                      Kind::Music,
                      Kind::SFX,
                      Kind::Sprite,
                      Kind::Scene}) {
        ASSERT_EQ(doc->list(kind).lines.size(), 1u);
        EXPECT_EQ(doc->list(kind).lines[0].slot, 0);
        EXPECT_EQ(slotOf(*doc, kind, 0).inUse, -1);
        EXPECT_EQ(slotOf(*doc, kind, 0).isNew, 0);
    }
    EXPECT_EQ(doc->list(Kind::SFX).lines[0].text, "sfx");
}

TEST(ProjectReader, HotSpotComesBackWithoutItsCursorAndWithItsDefaults)
{
    auto doc = makeDocument();
    ButtonRec &hot = doc->Buttons[1];
    hot.templateId = "old template"; // not in the short line: left as it was
    hot.frameOver = 9;
    ASSERT_EQ(readProject(crlf(SmallProject), *doc).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(hot.id, "_hot");
    EXPECT_EQ(hot.x, -1);
    EXPECT_EQ(hot.y, -2);
    EXPECT_EQ(hot.cursorId, "null"); // the file said "cur"
    EXPECT_EQ(hot.currentFrame, 7);
    EXPECT_EQ(hot.hotSpotWidth, 30);
    EXPECT_EQ(hot.hotSpotHeight, 40);
    EXPECT_EQ(hot.isHotSpot, 1);
    EXPECT_EQ(hot.frameDisabled, 0);
    EXPECT_EQ(hot.frameUp, 1);
    for (const std::string *reference : {&hot.captionTextId,
                                         &hot.iconId,
                                         &hot.soundDisabled,
                                         &hot.soundDown,
                                         &hot.soundOver,
                                         &hot.soundUp})
        EXPECT_EQ(*reference, "null");
    EXPECT_EQ(hot.templateId, "old template");
    EXPECT_EQ(hot.frameOver, 9);
}

TEST(ProjectReader, KeepingFileValuesKeepsAHotSpotsCursorAndTheSplashFlag)
{
    std::vector<std::string> lines = SmallProject;
    lines[11] = "\"root\",\"caption\",\"icon\",800,600,32,2,60,2";
    lines.erase(lines.begin() + 12);
    const std::string file = crlf(lines);

    auto dropped = makeDocument();
    ASSERT_EQ(readProject(file, *dropped).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(dropped->Buttons[1].cursorId, "null");
    EXPECT_EQ(dropped->AppSettings.splashEnabled, 0);

    auto kept = makeDocument();
    ProgressSink quiet;
    ReadOptions options;
    options.keepFileValues = true;
    ASSERT_EQ(readProject(file, *kept, quiet, options).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(kept->Buttons[1].cursorId, "cur");
    EXPECT_EQ(kept->AppSettings.splashEnabled, 2);
    EXPECT_EQ(kept->AppSettings.splashImagePath, "null");
    // Everything else as Open reads it.
    kept->Buttons[1].cursorId = "null";
    kept->AppSettings.splashEnabled = 0;
    EXPECT_TRUE(*kept == *dropped);
    EXPECT_EQ(projectFileBytes(*kept), projectFileBytes(*dropped));
}

TEST(ProjectReader, HotSpotCursorDoesNotSurviveSaveAndReload)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Button, 5, "_exit");
    doc->Buttons[5].isHotSpot = 1;
    doc->Buttons[5].cursorId = "hand";
    auto reopened = makeDocument();
    ASSERT_EQ(readProject(projectFileBytes(*doc), *reopened).status,
              ProjectReadResult::Status::Read);
    EXPECT_EQ(reopened->Buttons[0].id, "_exit");
    EXPECT_EQ(reopened->Buttons[0].cursorId, "null");
}

TEST(ProjectReader, AnimationsInSlotsThreeAndSevenReopenInSlotsZeroAndOne)
{
    auto doc = makeDocument();
    listObject(*doc, Kind::Sprite, 4, "spr");
    SpriteRec &s = doc->Sprites[4];
    s.animCount = 2;
    s.anims[3].inUse = -1;
    s.anims[3].id = "three";
    s.anims[3].frameCount = 2;
    s.anims[3].frames[10] = {-1, 11};
    s.anims[3].frames[60] = {-1, 61};
    s.anims[7].inUse = -1;
    s.anims[7].id = "seven";
    s.anims[7].direction = -1;

    auto reopened = makeDocument();
    ASSERT_EQ(readProject(projectFileBytes(*doc), *reopened).status,
              ProjectReadResult::Status::Read);
    const SpriteRec &r = reopened->Sprites[0];
    EXPECT_EQ(r.id, "spr");
    EXPECT_EQ(r.anims[0].id, "three");
    EXPECT_EQ(r.anims[0].inUse, -1);
    EXPECT_EQ(r.anims[0].frames[0].cell, 11);
    EXPECT_EQ(r.anims[0].frames[0].inUse, -1);
    EXPECT_EQ(r.anims[0].frames[1].cell, 61);
    EXPECT_EQ(r.anims[0].frames[1].inUse, -1);
    EXPECT_EQ(r.anims[0].frames[10].inUse, 0);
    EXPECT_EQ(r.anims[1].id, "seven");
    EXPECT_EQ(r.anims[1].inUse, -1);
    EXPECT_EQ(r.anims[1].direction, -1);
    EXPECT_EQ(r.anims[3].inUse, 0);
    EXPECT_EQ(r.anims[7].inUse, 0);
}

TEST(ProjectReader, SplashOffReopensWithEverySplashValueZeroAndNoImage)
{
    for (int16_t enabled : {0, 2, -1}) {
        auto doc = makeDocument();
        AppSettingsRec &app = doc->AppSettings;
        app.splashEnabled = enabled;
        app.splashWidth = 640;
        app.splashImagePath = "splash.bmp";
        auto reopened = makeDocument();
        AppSettingsRec &r = reopened->AppSettings;
        r.splashHeight = 1;
        r.splashBpp = 2;
        r.splashTimer = 3;
        r.splashRed = 4;
        r.splashGreen = 5;
        r.splashBlue = 6;
        ASSERT_EQ(readProject(projectFileBytes(*doc), *reopened).status,
                  ProjectReadResult::Status::Read);
        EXPECT_EQ((std::array<int16_t, 8>{r.splashEnabled,
                                          r.splashWidth,
                                          r.splashHeight,
                                          r.splashBpp,
                                          r.splashTimer,
                                          r.splashRed,
                                          r.splashGreen,
                                          r.splashBlue}),
                  (std::array<int16_t, 8>{}))
            << "splashEnabled " << enabled;
        EXPECT_EQ(r.splashImagePath, "null");
    }
}

TEST(ProjectReader, ScenesHoldExactlyTheLayersOfTheirFile)
{
    auto doc = makeDocument();
    SceneRec &scene = doc->Scenes[0];
    for (LayerRec &layer : scene.layers)
        layer = {-1, 1, "left over"}; // layer flags outlive InitData
    ASSERT_EQ(readProject(crlf(SmallProject), *doc).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(scene.layers[0].inUse, -1);
    EXPECT_EQ(scene.layers[0].objectId, "img");
    for (size_t l = 1; l < scene.layers.size(); ++l)
        EXPECT_EQ(scene.layers[l].inUse, 0) << "layer " << l;
    // Saving it again writes the one layer its layerCount announces.
    const std::string saved = projectFileBytes(*doc);
    EXPECT_NE(saved.find("\"scn\",1,0,1\r\n\"img\",3\r\n2,3\r\n"), std::string::npos);
}

TEST(ProjectReader, CustomFiltersFillSlotsFromOneAndLeaveSlotZeroAlone)
{
    auto doc = makeDocument();
    doc->AppSettings.CustomFilters[0] = {-1, "kept"};
    ASSERT_EQ(readProject(crlf(SmallProject), *doc).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(doc->AppSettings.CustomFilters[0].inUse, -1);
    EXPECT_EQ(doc->AppSettings.CustomFilters[0].text, "kept");
    EXPECT_EQ(doc->AppSettings.CustomFilters[1].text, "first");
}

TEST(ProjectReader, LineFeedOnlyFileReadsLikeItsCrLfTwin)
{
    std::string lf;
    for (const std::string &line : SmallProject)
        lf += line + "\n";
    auto fromCrLf = makeDocument();
    auto fromLf = makeDocument();
    ASSERT_EQ(readProject(crlf(SmallProject), *fromCrLf).status, ProjectReadResult::Status::Read);
    ASSERT_EQ(readProject(lf, *fromLf).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(projectFileBytes(*fromLf), projectFileBytes(*fromCrLf));
    EXPECT_EQ(fromLf->Texts[0].content, "Hi, there");

    // Line ends may also be mixed, and the last one may be missing.
    std::string mixed = crlf(SmallProject);
    mixed.erase(mixed.find("\r\n\"img\",\"a.bmp\""), 1);
    mixed.resize(mixed.size() - 2);
    auto fromMixed = makeDocument();
    ASSERT_EQ(readProject(mixed, *fromMixed).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(projectFileBytes(*fromMixed), projectFileBytes(*fromCrLf));
}

TEST(ProjectReader, EveryByteOtherThanTheQuoteSurvivesInsideAText)
{
    std::string bytes;
    for (int byte = 0x20; byte <= 0xFF; ++byte)
        if (byte != '"')
            bytes.push_back(static_cast<char>(byte));
    bytes += "\t\x01\x1F"; // control characters other than CR and LF pass as well

    std::vector<std::string> lines = SmallProject;
    lines[15] = "\"_hot\",-1,-2,\"null\",7,30,40"; // a hot spot's cursor would not come back
    lines[0] = "\"" + bytes + "\"";
    lines[49] = "\"" + bytes + "\"";
    const std::string file = crlf(lines);

    auto doc = makeDocument();
    ASSERT_EQ(readProject(file, *doc).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(doc->ProjectInfo.projectName, toUtf8(bytes));
    EXPECT_EQ(doc->ProjectInfo.projectName.substr(0, 3), " !#");
    EXPECT_EQ(doc->ProjectInfo.projectName.substr(doc->ProjectInfo.projectName.find('~'), 5),
              "~\x7F\xE2\x82\xAC"); // 0x80 is the euro sign
    EXPECT_EQ(doc->AppSettings.CustomFilters[1].text, toUtf8(bytes));
    EXPECT_EQ(projectFileBytes(*doc), file);
}

TEST(ProjectReader, FieldsEndAtCommasAndLineEndsAlike)
{
    // The reader takes the file as one stream of fields: a record may be split over lines.
    std::vector<std::string> lines = SmallProject;
    lines[16] = "\"img\",\"a.bmp\",1,2,3\r\n4,5,6,7,8,9,10";
    auto split = makeDocument();
    auto whole = makeDocument();
    ASSERT_EQ(readProject(crlf(lines), *split).status, ProjectReadResult::Status::Read);
    ASSERT_EQ(readProject(crlf(SmallProject), *whole).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(projectFileBytes(*split), projectFileBytes(*whole));
}

TEST(ProjectReader, WhateverFollowsTheLastFieldIsIgnored)
{
    auto doc = makeDocument();
    const ProjectReadResult r = readProject(crlf(SmallProject) + "\"third\"\r\nmore\r\n", *doc);
    EXPECT_EQ(r.status, ProjectReadResult::Status::Read);
    EXPECT_EQ(doc->AppSettings.CustomFilters[3].inUse, 0);
}

TEST(ProjectReader, MismatchedAnimCountIsMisreadIntoTheNextLines)
{
    // animCount says 2 but one animation is used: the next sprite's line is taken for the
    // second animation, and its image id is no frame count.
    auto doc = makeDocument();
    listObject(*doc, Kind::Sprite, 0, "sprA");
    doc->Sprites[0].animCount = 2;
    doc->Sprites[0].anims[0].inUse = -1;
    doc->Sprites[0].anims[0].id = "walk";
    listObject(*doc, Kind::Sprite, 1, "sprB");
    doc->Sprites[1].imageId = "img";
    const std::string file = projectFileBytes(*doc);
    ASSERT_EQ(splitCrlf(file)[16], "\"sprB\",\"img\",\"\",0,0,0,0");

    auto reopened = makeDocument();
    const ProjectReadResult r = readProject(file, *reopened);
    EXPECT_EQ(r.status, ProjectReadResult::Status::Damaged);
    EXPECT_EQ(damageText("project.dvb", r.line, r.message),
              "project.dvb:17: a number was expected for frameCount");
    EXPECT_EQ(reopened->Sprites[0].anims[1].id, "sprB");
    EXPECT_EQ(reopened->list(Kind::Sprite).lines.size(), 0u);
}

// Lists sprite `id` in slot 0 with one animation, "walk", and returns the animation.
AnimRec &listSpriteWithOneAnimation(Document &doc, const std::string &id)
{
    listObject(doc, Kind::Sprite, 0, id);
    SpriteRec &sprite = doc.Sprites[0];
    sprite.animCount = 1;
    AnimRec &anim = sprite.anims[0];
    anim.inUse = -1;
    anim.id = "walk";
    return anim;
}

// The project file of one sprite whose one animation has the cell lines `cells`, each with
// its own line end; the line of the first cell is the file's line 16.
std::string fileWithCellLines(const std::vector<std::string> &cells)
{
    auto doc = makeDocument();
    AnimRec &anim = listSpriteWithOneAnimation(*doc, "sprA");
    anim.frameCount = static_cast<int16_t>(cells.size());
    for (size_t i = 0; i < cells.size(); ++i)
        anim.frames[i] = {-1, static_cast<int16_t>(1000 + i)};
    std::string file = projectFileBytes(*doc);
    EXPECT_EQ(splitCrlf(file)[15], "1000");
    for (size_t i = 0; i < cells.size(); ++i) {
        const std::string placeholder = "\n" + std::to_string(1000 + i) + "\r\n";
        const size_t at = file.find(placeholder);
        EXPECT_NE(at, std::string::npos);
        file.replace(at + 1, placeholder.size() - 1, cells[i]);
    }
    return file;
}

TEST(ProjectReader, CellLinesOfEveryWidthAndLineEndReadBack)
{
    const std::string file = fileWithCellLines({"0\r\n",
                                                "7\r\n",
                                                "42\r\n",
                                                "07\r\n",
                                                "123\r\n",
                                                "4095\r\n",
                                                "32767\r\n",
                                                "-5\r\n",
                                                "9\n",
                                                "10\n",
                                                "255\n",
                                                "00042\r\n",
                                                "8\r\n"});
    auto doc = makeDocument();
    ASSERT_EQ(readProject(file, *doc).status, ProjectReadResult::Status::Read);
    const AnimRec &anim = doc->Sprites[0].anims[0];
    std::vector<int16_t> cells;
    for (int i = 0; i < anim.frameCount; ++i) {
        EXPECT_EQ(anim.frames[static_cast<size_t>(i)].inUse, -1);
        cells.push_back(anim.frames[static_cast<size_t>(i)].cell);
    }
    EXPECT_EQ(cells, (std::vector<int16_t>{0, 7, 42, 7, 123, 4095, 32767, -5, 9, 10, 255, 42, 8}));
    EXPECT_EQ(anim.frames[13].inUse, 0);
}

TEST(ProjectReader, DamagedCellLinesNameTheirLine)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"4x\r\n", "project.dvb:18: unexpected characters after cell"},
        {"4\r\r\n", "project.dvb:18: unexpected characters after cell"},
        {"12 \r\n", "project.dvb:18: unexpected characters after cell"},
        {"x\r\n", "project.dvb:18: a number was expected for cell"},
        {"\r\n", "project.dvb:18: a number was expected for cell"},
        {"40000\r\n", "project.dvb:18: cell must lie between -32768 and 32767"},
    };
    for (const auto &[line, expected] : cases) {
        SCOPED_TRACE(line);
        const std::string file = fileWithCellLines({"1\r\n", "23\r\n", line, "5\r\n"});
        auto doc = makeDocument();
        const ProjectReadResult r = readProject(file, *doc);
        ASSERT_EQ(r.status, ProjectReadResult::Status::Damaged);
        EXPECT_EQ(damageText("project.dvb", r.line, r.message), expected);
    }
}

TEST(ProjectReader, AFileCutShortAmongTheCellLinesNamesTheLineOfTheMissingCell)
{
    const std::string file = fileWithCellLines({"1\r\n", "23\r\n", "4\r\n", "5\r\n"});
    const size_t third = file.find("\r\n4\r\n") + 2;
    const std::vector<std::pair<std::string, std::string>> cases = {
        // After a whole cell line, after a cell without its line end, and inside a line end.
        {file.substr(0, third),
         "project.dvb:18: the file ends where a number was expected for cell"},
        {file.substr(0, third + 1),
         "project.dvb:18: the file ends where a number was expected for cell"},
        {file.substr(0, third + 2),
         "project.dvb:18: the file ends where a number was expected for cell"},
    };
    for (const auto &[bytes, expected] : cases) {
        SCOPED_TRACE(bytes.substr(bytes.size() - 8));
        auto doc = makeDocument();
        const ProjectReadResult r = readProject(bytes, *doc);
        ASSERT_EQ(r.status, ProjectReadResult::Status::Damaged);
        EXPECT_EQ(damageText("project.dvb", r.line, r.message), expected);
        EXPECT_EQ(doc->Sprites[0].anims[0].frames[1].cell, 23);
    }
}

TEST(ProjectReader, MismatchedLayerCountIsMisreadIntoTheLogLines)
{
    // layerCount says 1 but two layers are used: the second layer's line is read where the
    // log counts stand.
    auto doc = makeDocument();
    listObject(*doc, Kind::Scene, 0, "scn");
    doc->Scenes[0].layerCount = 1;
    doc->Scenes[0].layers[0] = {-1, 1, "a"};
    doc->Scenes[0].layers[4] = {-1, 2, "b"};
    const std::string file = projectFileBytes(*doc);
    ASSERT_EQ(splitCrlf(file)[15], "\"b\",2");

    auto reopened = makeDocument();
    const ProjectReadResult r = readProject(file, *reopened);
    EXPECT_EQ(r.status, ProjectReadResult::Status::Damaged);
    EXPECT_EQ(damageText("project.dvb", r.line, r.message),
              "project.dvb:16: a number was expected for logFileFilterCount");
    EXPECT_EQ(reopened->Scenes[0].layers[0].objectId, "a");
    EXPECT_EQ(reopened->list(Kind::Scene).lines.size(), 1u);
}

TEST(ProjectReader, MismatchedFrameCountShiftsLaterValuesWithoutNotice)
{
    // frameCount says 1 but two frames are used: the second cell becomes the frame delay, every
    // later value moves up by one field, and the last log line is left over. The file reads
    // "successfully" with wrong values.
    auto doc = makeDocument();
    AnimRec &a = listSpriteWithOneAnimation(*doc, "spr");
    a.frameCount = 1;
    a.frames[0] = {-1, 5};
    a.frames[1] = {-1, 6};
    a.frameDelay = 100;
    a.animDelay = 200;
    a.repeat = 1;
    a.play = 1;
    a.direction = 1;
    a.defaultFrame = -1;
    doc->AppSettings.logFileFilterCount = 4;
    doc->AppSettings.logTypeFilterCount = 7;

    auto reopened = makeDocument();
    ASSERT_EQ(readProject(projectFileBytes(*doc), *reopened).status,
              ProjectReadResult::Status::Read);
    const AnimRec &r = reopened->Sprites[0].anims[0];
    EXPECT_EQ(r.frames[0].cell, 5);
    EXPECT_EQ(r.frames[1].inUse, 0);
    EXPECT_EQ((std::array<int16_t, 6>{
                  r.frameDelay, r.animDelay, r.repeat, r.play, r.direction, r.defaultFrame}),
              (std::array<int16_t, 6>{6, 100, 200, 1, 1, 1}));
    EXPECT_EQ(reopened->AppSettings.logFileFilterCount, -1);
    EXPECT_EQ(reopened->AppSettings.logTypeFilterCount, 4);
    EXPECT_EQ(reopened->AppSettings.logTypeFilters[0], 7);
}

TEST(ProjectReader, ReportsItsStepsInFileOrder)
{
    auto doc = makeDocument();
    RecordingProgress progress;
    ASSERT_EQ(readProject(crlf(SmallProject), *doc, progress).status,
              ProjectReadResult::Status::Read);
    EXPECT_EQ(progress.events,
              (std::vector<std::string>{"label Loading Application Data...",
                                        "label Loading Button Data...",
                                        "label Loading Image Data...",
                                        "label Loading Cursor Data...",
                                        "label Loading Text Data...",
                                        "label Loading Font Data...",
                                        "label Loading Music Data...",
                                        "label Loading SFX Data...",
                                        "label Loading Sprite Data...",
                                        "label Loading Scene Data...",
                                        "label Loading Log Data..."}));
    EXPECT_EQ(progress.maximum, 10);
    EXPECT_EQ(progress.current, 10);
}

TEST(ProjectReader, EmptyFileIsToldApartAndLeavesTheDocumentAlone)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "before";
    const ProjectReadResult r = readProject("", *doc);
    EXPECT_EQ(r.status, ProjectReadResult::Status::Empty);
    EXPECT_EQ(doc->ProjectInfo.projectName, "before");

    // A lone line end is not empty: it is a first line without a name.
    const ProjectReadResult blank = readProject("\r\n", *doc);
    EXPECT_EQ(blank.status, ProjectReadResult::Status::Damaged);
    EXPECT_EQ(damageText("p.dvb", blank.line, blank.message),
              "p.dvb:1: text in double quotes was expected for projectName");
}

} // namespace
} // namespace vorlane
