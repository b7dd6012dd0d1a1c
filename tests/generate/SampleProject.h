#pragma once

#include "GenerateTestSupport.h"
#include "model/modGlobal.h"

namespace vorlane::testing {

// A small game with objects of every kind, both button forms, list orders that differ from
// the slot orders, never-opened objects and left-over slots that must not be written. Its
// engine files are kept under tests/data/generate/sample/.
inline void buildSampleProject(Document &doc)
{
    auto &a = doc.AppSettings;
    a.rootFolder = "C:\\Games\\Quest";
    a.windowCaption = "Korrin Quest";
    a.windowIcon = "gfx\\icon.ico";
    a.screenWidth = 800;
    a.screenHeight = 600;
    a.screenBpp = 32;
    a.screenType = 1;
    a.fps = 60;
    a.splashEnabled = 1;
    a.splashWidth = 320;
    a.splashHeight = 240;
    a.splashBpp = 16;
    a.splashImagePath = "gfx\\splash.bmp";
    a.splashTimer = 3;
    a.splashRed = 255;
    a.splashGreen = 0;
    a.splashBlue = 255;
    a.soundMix = 22050;
    a.soundChannels = 8;
    a.useEngineScreen = 1;
    a.logEnabled = 1;
    a.logPath = "logs\\game.log";
    a.logTypeFilters[0] = 1;
    a.logTypeFilters[6] = 1;
    a.logTypeFilterCount = 2;
    a.logFileFilters[4] = 1;
    a.logFileFilters[10] = 1;
    a.logFileFilterCount = 2;
    a.CustomFilters[7] = {-1, "Loaded scene"};
    a.CustomFilters[2] = {-1, "Player:"};
    a.CustomFilters[4] = {0, "Removed filter"};
    a.customFilterCount = 2;

    // Buttons: the graphic button sits in slot 1 but is listed first.
    auto &start = addObject(doc, Kind::Button, doc.Buttons, 1, "cmdStart");
    start.x = 100;
    start.y = 200;
    start.cursorId = "curHand";
    start.currentFrame = 1;
    start.frameUp = 1;
    start.frameDown = 2;
    start.frameOver = 3;
    start.frameDisabled = 4;
    start.templateId = "imgButtons";
    start.templateRows = 2;
    start.templateColumns = 2;
    start.iconId = "null";
    start.captionTextId = "txtStart";
    start.visible = 1;
    start.iconVisible = 0;
    start.captionVisible = 1;
    start.soundUp = "sfxClick";
    start.soundDown = "sfxClick";
    start.soundOver = "null";
    start.soundDisabled = "null";
    auto &exitZone = addObject(doc, Kind::Button, doc.Buttons, 0, "_exitZone");
    exitZone.isHotSpot = 1;
    exitZone.x = -5;
    exitZone.y = 10;
    exitZone.cursorId = "curArrow";
    exitZone.currentFrame = 1;
    exitZone.hotSpotWidth = 64;
    exitZone.hotSpotHeight = 32;
    exitZone.templateId = "imgNotWritten";
    exitZone.frameDisabled = 9;
    // Added but never opened: dropped before writing.
    doc.Buttons[2].isNew = -1;
    doc.list(Kind::Button).lines.push_back({"New_Object3", 2});

    auto &background = addObject(doc, Kind::Image, doc.Images, 3, "imgBackground");
    background.path = "gfx\\background.png";
    background.cellWidth = 640;
    background.cellHeight = 480;
    background.visible = 1;
    background.alpha = 255;
    auto &buttons = addObject(doc, Kind::Image, doc.Images, 0, "imgButtons");
    buttons.path = "gfx\\buttons.bmp";
    buttons.red = 255;
    buttons.green = 0;
    buttons.blue = 255;
    buttons.cellWidth = 64;
    buttons.cellHeight = 32;
    buttons.bound = 1;
    buttons.positionX = 10;
    buttons.positionY = 20;
    buttons.visible = 0;
    buttons.alpha = 128;

    auto &hand = addObject(doc, Kind::Cursor, doc.Cursors, 0, "curHand");
    hand.imageId = "imgCursors";
    hand.orientation = 1;
    auto &arrow = addObject(doc, Kind::Cursor, doc.Cursors, 1, "curArrow");
    arrow.imageId = "imgCursors";
    arrow.orientation = 3;

    auto &startText = addObject(doc, Kind::Text, doc.Texts, 0, "txtStart");
    startText.content = "Caf\xC3\xA9 \xE2\x80\x93 Start game"; // "é" and an en dash
    startText.fontId = "fntMain";
    startText.selectionImageId = "null";
    startText.x = 12;
    startText.y = 34;
    startText.clipWidth = 200;
    startText.clipHeight = 40;
    startText.centered = 1;
    startText.visible = 1;
    startText.pointSize = 12;
    startText.styleBold = 1;
    startText.foreRed = 255;
    startText.foreGreen = 255;
    startText.foreBlue = 255;
    auto &score = addObject(doc, Kind::Text, doc.Texts, 1, "txtScore");
    score.content = "Score: 0";
    score.fontId = "fntMain";
    score.selectionImageId = "imgSelect";
    score.x = 5;
    score.y = 6;
    score.centered = 0;
    score.visible = 1;
    score.repeat = 1;
    score.delay = 250;
    score.clipWidth = 0;
    score.clipHeight = -1;
    score.textType = 2;
    score.pointSize = 10;
    score.styleNormal = 1;
    score.styleItalic = 1;
    score.styleBold = 0;
    score.styleUnderline = 1;
    score.foreGreen = 128;
    score.backRed = 10;
    score.backGreen = 20;
    score.backBlue = 30;

    addObject(doc, Kind::Font, doc.Fonts, 0, "fntMain").path = "fonts\\main.ttf";

    auto &theme = addObject(doc, Kind::Music, doc.MusicTracks, 2, "musTheme");
    theme.path = "music\\theme.ogg";
    theme.defaultVolume = 100;
    theme.defaultPriority = 1;
    theme.defaultPan = 0;

    auto &click = addObject(doc, Kind::SFX, doc.SoundEffects, 0, "sfxClick");
    click.path = "sfx\\click.wav";
    click.defaultVolume = 80;
    click.defaultPriority = 2;
    click.defaultPan = -50;
    auto &boom = addObject(doc, Kind::SFX, doc.SoundEffects, 5, "sfxBoom");
    boom.path = "sfx\\boom.wav";
    boom.defaultVolume = 127;
    boom.defaultPriority = 0;
    boom.defaultPan = 50;

    auto &hero = addObject(doc, Kind::Sprite, doc.Sprites, 0, "sprHero");
    hero.imageId = "imgHero";
    hero.currentAnimId = "aniWalk";
    hero.positionX = 100;
    hero.positionY = 150;
    hero.visible = 1;
    hero.animCount = 2;
    hero.anims[0].id = "aniFreed"; // a freed slot keeps its old texts
    auto &walk = hero.anims[1];
    walk.inUse = -1;
    walk.id = "aniWalk";
    walk.frameCount = 3;
    walk.frames[0] = {-1, 10};
    walk.frames[3] = {-1, 11};
    walk.frames[7] = {-1, 12};
    walk.frames[5] = {0, 99};
    walk.frameDelay = 100;
    walk.animDelay = 0;
    walk.repeat = 1;
    walk.play = 1;
    walk.direction = 1;
    walk.defaultFrame = -1;
    auto &jump = hero.anims[4];
    jump.inUse = -1;
    jump.id = "aniJump";
    jump.frameCount = 1;
    jump.frames[2] = {-1, 4};
    jump.frameDelay = 50;
    jump.animDelay = 200;
    jump.repeat = 0;
    jump.play = 0;
    jump.direction = -1;
    jump.defaultFrame = 0;
    auto &coin = addObject(doc, Kind::Sprite, doc.Sprites, 1, "sprCoin");
    coin.imageId = "imgCoin";
    coin.currentAnimId = "null";
    coin.positionX = 300;
    coin.positionY = -20;
    coin.visible = 0;
    coin.animCount = 0;
    coin.anims[0].inUse = -1;
    coin.anims[0].id = "aniSpin";

    auto &title = addObject(doc, Kind::Scene, doc.Scenes, 0, "scnTitle");
    title.useCursor = 1;
    title.useMusic = 1;
    title.layerCount = 2;
    title.layers[0] = {-1, 3, "imgBackground"};
    title.layers[2] = {0, 1, "txtRemoved"};
    title.layers[5] = {-1, 4, "cmdStart"};
    auto &level = addObject(doc, Kind::Scene, doc.Scenes, 1, "scnLevel1");
    level.useCursor = 0;
    level.useMusic = 1;
    level.layerCount = 1;
    level.layers[3] = {-1, 2, "sprHero"};
    // Never opened: dropped before writing.
    doc.Scenes[2].isNew = -1;
    doc.list(Kind::Scene).lines.push_back({"New_Object4", 2});
}

} // namespace vorlane::testing
