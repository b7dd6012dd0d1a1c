#include "rules/QuickStats.h"

#include "model/Kinds.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vorlane {
namespace {

using Captions = std::vector<StatLabel>;

ButtonRec liveButton()
{
    ButtonRec b;
    b.inUse = -1;
    b.x = 12;
    b.y = -7;
    b.currentFrame = 1;
    b.frameUp = 1;
    b.frameDown = 2;
    b.frameOver = 3;
    b.frameDisabled = 4;
    b.visible = 1;
    b.captionTextId = "txtCaption";
    b.soundUp = "null";
    b.soundDown = "null";
    b.soundOver = "null";
    b.soundDisabled = "null";
    b.cursorId = "curHand";
    b.iconId = "imgIcon";
    return b;
}

TEST(QuickStats, ButtonShowsEveryCaptionInOrder)
{
    auto doc = makeDocument();
    doc->Buttons[3] = liveButton();
    const QuickStats stats = UpdateButtonStats(*doc, 3);
    EXPECT_FALSE(stats.cover);
    EXPECT_EQ(stats.labels,
              (Captions{{"lblButtonStatsPosX", "Button X: 12"},
                        {"lblButtonStatsPosY", "Button Y: -7"},
                        {"lblButtonStatsState", "Button State: UP"},
                        {"lblButtonStatsVisible", "Button Visible: YES"},
                        {"lblButtonStatsCaption", "Has Caption: YES"},
                        {"lblButtonStatsSound", "Has Sounds: NO"},
                        {"lblButtonStatsCursor", "Has Cursor: YES"},
                        {"lblButtonStatsIcon", "Has Icon: YES"}}));
}

TEST(QuickStats, ButtonNoBranches)
{
    auto doc = makeDocument();
    ButtonRec &b = doc->Buttons[0];
    b = liveButton();
    b.visible = 0;
    b.captionTextId = "null";
    b.cursorId = "null";
    b.iconId = "null";
    const QuickStats stats = UpdateButtonStats(*doc, 0);
    EXPECT_EQ(stats.captionOf("lblButtonStatsVisible"), "Button Visible: NO");
    EXPECT_EQ(stats.captionOf("lblButtonStatsCaption"), "Has Caption: NO");
    EXPECT_EQ(stats.captionOf("lblButtonStatsSound"), "Has Sounds: NO");
    EXPECT_EQ(stats.captionOf("lblButtonStatsCursor"), "Has Cursor: NO");
    EXPECT_EQ(stats.captionOf("lblButtonStatsIcon"), "Has Icon: NO");
}

TEST(QuickStats, ButtonVisibleCountsOnlyOne)
{
    auto doc = makeDocument();
    doc->Buttons[0] = liveButton();
    doc->Buttons[0].visible = -1;
    EXPECT_EQ(UpdateButtonStats(*doc, 0).captionOf("lblButtonStatsVisible"), "Button Visible: NO");
}

TEST(QuickStats, ButtonEmptyCaptionCountsAsSet)
{
    auto doc = makeDocument();
    doc->Buttons[0] = liveButton();
    doc->Buttons[0].captionTextId = "";
    EXPECT_EQ(UpdateButtonStats(*doc, 0).captionOf("lblButtonStatsCaption"), "Has Caption: YES");
    doc->Buttons[0].captionTextId = "NULL"; // only the lower-case marker is unset
    EXPECT_EQ(UpdateButtonStats(*doc, 0).captionOf("lblButtonStatsCaption"), "Has Caption: YES");
}

TEST(QuickStats, ButtonHasSoundsWhenAnyOfTheFourIsSet)
{
    auto doc = makeDocument();
    for (std::string ButtonRec::*sound : {&ButtonRec::soundUp,
                                          &ButtonRec::soundDown,
                                          &ButtonRec::soundOver,
                                          &ButtonRec::soundDisabled}) {
        doc->Buttons[0] = liveButton();
        doc->Buttons[0].*sound = "sfxClick";
        EXPECT_EQ(UpdateButtonStats(*doc, 0).captionOf("lblButtonStatsSound"), "Has Sounds: YES");
    }
}

TEST(QuickStats, ButtonStateIsComparedDisabledDownUpOver)
{
    auto doc = makeDocument();
    ButtonRec &b = doc->Buttons[5];
    b = liveButton();
    auto state = [&] {
        return UpdateButtonStats(*doc, 5).captionOf("lblButtonStatsState");
    };

    b.currentFrame = 4;
    EXPECT_EQ(state(), "Button State: DISABLED");
    b.currentFrame = 2;
    EXPECT_EQ(state(), "Button State: DOWN");
    b.currentFrame = 1;
    EXPECT_EQ(state(), "Button State: UP");
    b.currentFrame = 3;
    EXPECT_EQ(state(), "Button State: OVER");

    // Shared codes read as the first state in the order disabled, down, up, over.
    b.frameUp = 0;
    b.frameDown = 0;
    b.frameOver = 0;
    b.frameDisabled = 0;
    b.currentFrame = 0;
    EXPECT_EQ(state(), "Button State: DISABLED");
    b.frameDisabled = 9;
    EXPECT_EQ(state(), "Button State: DOWN");
    b.frameDown = 9;
    EXPECT_EQ(state(), "Button State: UP");

    // No match: the label is still listed but keeps its caption.
    b.currentFrame = 7;
    const QuickStats stats = UpdateButtonStats(*doc, 5);
    ASSERT_EQ(stats.labels.size(), 8u);
    EXPECT_EQ(stats.labels[2].label, "lblButtonStatsState");
    EXPECT_FALSE(stats.labels[2].caption.has_value());
    EXPECT_EQ(stats.labels[3].caption, "Button Visible: YES");
}

TEST(QuickStats, NewObjectShowsTheCoverUntilItsEditorOpened)
{
    auto doc = makeDocument();
    doc->Buttons[2] = liveButton();
    doc->Buttons[2].inUse = 0;
    doc->Buttons[2].isNew = -1;
    QuickStats stats = UpdateButtonStats(*doc, 2);
    EXPECT_TRUE(stats.cover);
    EXPECT_TRUE(stats.labels.empty());

    // What the editor does on its first opening.
    doc->Buttons[2].inUse = -1;
    doc->Buttons[2].isNew = 0;
    stats = UpdateButtonStats(*doc, 2);
    EXPECT_FALSE(stats.cover);
    EXPECT_EQ(stats.captionOf("lblButtonStatsPosX"), "Button X: 12");
}

TEST(QuickStats, EveryKindIsCoveredWhileNew)
{
    auto doc = makeDocument();
    for (Kind kind : ListOrder) {
        slotOf(*doc, kind, 1).isNew = -1;
        const QuickStats stats = statsFor(*doc, kind, 1);
        EXPECT_TRUE(stats.cover) << kindInfo(kind).name;
        EXPECT_TRUE(stats.labels.empty()) << kindInfo(kind).name;
        EXPECT_FALSE(statsFor(*doc, kind, 0).cover) << kindInfo(kind).name;
        EXPECT_FALSE(statsFor(*doc, kind, 0).labels.empty()) << kindInfo(kind).name;
    }
}

TEST(QuickStats, ImageCaptions)
{
    auto doc = makeDocument();
    ImageRec &i = doc->Images[200];
    i.inUse = -1;
    i.path = "gfx\\hero.bmp";
    i.red = 255;
    i.green = 0;
    i.blue = 128;
    i.alpha = 64;
    i.cellWidth = 32;
    i.cellHeight = 48;
    i.positionX = -5;
    i.positionY = 600;
    i.bound = 1;
    i.visible = 1;
    EXPECT_EQ(UpdateImageStats(*doc, 200).labels,
              (Captions{{"lblImageStatsPathBottom", "gfx\\hero.bmp"},
                        {"lblImageStatsRed", "Transparent R: 255"},
                        {"lblImageStatsGreen", "Transparent G: 0"},
                        {"lblImageStatsBlue", "Transparent B: 128"},
                        {"lblImageStatsAlpha", "Alpha Value: 64"},
                        {"lblImageStatsWidth", "Img Width: 32"},
                        {"lblImageStatsHeight", "Img Height: 48"},
                        {"lblImageStatsPosX", "Image X: -5"},
                        {"lblImageStatsPosY", "Image Y: 600"},
                        {"lblImageStatsBound", "Is Bound: YES"},
                        {"lblImageStatsVisible", "Is Visible: YES"}}));

    i.path = "null";
    i.bound = 0;
    i.visible = -1;
    const QuickStats stats = UpdateImageStats(*doc, 200);
    EXPECT_EQ(stats.captionOf("lblImageStatsPathBottom"), "");
    EXPECT_EQ(stats.captionOf("lblImageStatsBound"), "Is Bound: NO");
    EXPECT_EQ(stats.captionOf("lblImageStatsVisible"), "Is Visible: NO");
    for (const StatLabel &entry : stats.labels)
        EXPECT_NE(entry.label, "lblImageStatsPathTop");
}

TEST(QuickStats, CursorOrientationCodes)
{
    auto doc = makeDocument();
    CursorRec &c = doc->Cursors[25];
    c.imageId = "imgArrow";
    const char *const names[] = {
        "CENTER", "LOWER-LEFT", "LOWER-RIGHT", "UPPER-RIGHT", "UPPER-LEFT"};
    for (int16_t code = 1; code <= 5; ++code) {
        c.orientation = code;
        EXPECT_EQ(UpdateCursorStats(*doc, 25).labels,
                  (Captions{{"lblCursorStatsOrientation",
                             std::string("Cursor Orientation: ") + names[code - 1]},
                            {"lblCursorStatsImage", "Cursor Image: imgArrow"}}));
    }
}

TEST(QuickStats, CursorUnknownOrientationKeepsTheLabel)
{
    auto doc = makeDocument();
    CursorRec &c = doc->Cursors[0];
    c.imageId = "null";
    for (int16_t code : {0, 6, -1}) {
        c.orientation = code;
        EXPECT_EQ(UpdateCursorStats(*doc, 0).labels,
                  (Captions{{"lblCursorStatsOrientation", std::nullopt},
                            {"lblCursorStatsImage", "Cursor Image: null"}}))
            << code;
    }
}

TEST(QuickStats, TextCaptions)
{
    auto doc = makeDocument();
    TextRec &t = doc->Texts[7];
    t.fontId = "fntArial";
    t.x = 100;
    t.y = 20;
    t.centered = 1;
    t.visible = 1;
    t.pointSize = 12;
    t.delay = 30;
    t.repeat = 1;
    t.clipWidth = 32;
    t.clipHeight = 16;
    t.textType = 1;
    EXPECT_EQ(UpdateTextStats(*doc, 7).labels,
              (Captions{{"lblTextStatsFont", "Font: fntArial"},
                        {"lblTextStatsPosX", "Text X: 100"},
                        {"lblTextStatsPosY", "Text Y: 20"},
                        {"lblTextStatsCentered", "Text Centered: YES"},
                        {"lblTextStatsVisible", "Text Visible: YES"},
                        {"lblTextStatsPoint", "Text Point: 12"},
                        {"lblTextStatsDelay", "Text Delay: 30"},
                        {"lblTextStatsRepeat", "Repeat On: YES"},
                        {"lblTextStatsClipWidth", "Clip Width: 32"},
                        {"lblTextStatsClipHeight", "Clip Height: 32"},
                        {"lblTextStatsType", "Text Type: INPUT"}}));

    t.fontId = "null";
    t.centered = 0;
    t.visible = 0;
    t.repeat = -1;
    const QuickStats stats = UpdateTextStats(*doc, 7);
    EXPECT_EQ(stats.captionOf("lblTextStatsFont"), "Font: ");
    EXPECT_EQ(stats.captionOf("lblTextStatsCentered"), "Text Centered: NO");
    EXPECT_EQ(stats.captionOf("lblTextStatsVisible"), "Text Visible: NO");
    EXPECT_EQ(stats.captionOf("lblTextStatsRepeat"), "Repeat On: NO");
}

TEST(QuickStats, TextClipHeightShowsTheClipWidth)
{
    auto doc = makeDocument();
    doc->Texts[0].clipWidth = 32;
    doc->Texts[0].clipHeight = 16;
    const QuickStats stats = UpdateTextStats(*doc, 0);
    EXPECT_EQ(stats.captionOf("lblTextStatsClipWidth"), "Clip Width: 32");
    EXPECT_EQ(stats.captionOf("lblTextStatsClipHeight"), "Clip Height: 32");
}

TEST(QuickStats, TextTypeCodes)
{
    auto doc = makeDocument();
    TextRec &t = doc->Texts[1];
    auto type = [&] {
        return UpdateTextStats(*doc, 1).labels.back();
    };
    t.textType = 0;
    EXPECT_EQ(type(), (StatLabel{"lblTextStatsType", "Text Type: NORMAL"}));
    t.textType = 1;
    EXPECT_EQ(type(), (StatLabel{"lblTextStatsType", "Text Type: INPUT"}));
    t.textType = 2;
    EXPECT_EQ(type(), (StatLabel{"lblTextStatsType", "Text Type: SELECT"}));
    t.textType = 3;
    EXPECT_EQ(type(), (StatLabel{"lblTextStatsType", std::nullopt}));
    t.textType = -1;
    EXPECT_EQ(type(), (StatLabel{"lblTextStatsType", std::nullopt}));
}

TEST(QuickStats, FontPathOrBarePrefix)
{
    auto doc = makeDocument();
    doc->Fonts[25].path = "fonts\\arial.ttf";
    EXPECT_EQ(UpdateFontStats(*doc, 25).labels,
              (Captions{{"lblFontStatsPath", "Font Path: fonts\\arial.ttf"}}));
    doc->Fonts[25].path = "null";
    EXPECT_EQ(UpdateFontStats(*doc, 25).labels, (Captions{{"lblFontStatsPath", "Font Path: "}}));
}

TEST(QuickStats, MusicCaptions)
{
    auto doc = makeDocument();
    MusicRec &m = doc->MusicTracks[100];
    m.path = "music\\theme.mid";
    m.defaultVolume = 80;
    m.defaultPan = -10;
    m.defaultPriority = 3;
    EXPECT_EQ(UpdateMusicStats(*doc, 100).labels,
              (Captions{{"lblMusicStatsPath", "Music Path: music\\theme.mid"},
                        {"lblMusicStatsVolume", "Default Volume: 80"},
                        {"lblMusicStatsPan", "Default Pan: -10"},
                        {"lblMusicStatsPriority", "Default Priority: 3"}}));
    m.path = "null";
    EXPECT_EQ(UpdateMusicStats(*doc, 100).captionOf("lblMusicStatsPath"), "Music Path: ");
}

TEST(QuickStats, SFXCaptions)
{
    auto doc = makeDocument();
    SFXRec &s = doc->SoundEffects[200];
    s.path = "sfx\\boom.wav";
    s.defaultVolume = 127;
    s.defaultPan = 5;
    s.defaultPriority = 1;
    EXPECT_EQ(UpdateSFXStats(*doc, 200).labels,
              (Captions{{"lblSFXStatsPath", "SFX Path: sfx\\boom.wav"},
                        {"lblSFXStatsVolume", "Default Volume: 127"},
                        {"lblSFXStatsPan", "Default Pan: 5"},
                        {"lblSFXStatsPriority", "Default Priority: 1"}}));
    s.path = "null";
    EXPECT_EQ(UpdateSFXStats(*doc, 200).captionOf("lblSFXStatsPath"), "SFX Path: ");
}

TEST(QuickStats, SpriteCaptions)
{
    auto doc = makeDocument();
    SpriteRec &s = doc->Sprites[9];
    s.imageId = "imgHero";
    s.currentAnimId = "walk";
    s.positionX = 40;
    s.positionY = -2;
    s.visible = 1;
    s.animCount = 3;
    EXPECT_EQ(UpdateSpriteStats(*doc, 9).labels,
              (Captions{{"lblSpriteStatsImage", "Sprite Image: imgHero"},
                        {"lblSpriteStatsAnim", "Current Animation: walk"},
                        {"lblSpriteStatsPosX", "Sprite X: 40"},
                        {"lblSpriteStatsPosY", "Sprite Y: -2"},
                        {"lblSpriteStatsVisible", "Is Visible: YES"},
                        {"lblSpriteStatsAnimCount", "# of Anims: 3"}}));

    s.imageId = "null";
    s.currentAnimId = "null";
    s.visible = 0;
    const QuickStats stats = UpdateSpriteStats(*doc, 9);
    EXPECT_EQ(stats.captionOf("lblSpriteStatsImage"), "Sprite Image:");
    EXPECT_EQ(stats.captionOf("lblSpriteStatsAnim"), "Current Animation:");
    EXPECT_EQ(stats.captionOf("lblSpriteStatsVisible"), "Is Visible: NO");
}

TEST(QuickStats, SceneCaptions)
{
    auto doc = makeDocument();
    SceneRec &s = doc->Scenes[4];
    s.layerCount = 6;
    s.useCursor = 1;
    s.useMusic = 1;
    EXPECT_EQ(UpdateSceneStats(*doc, 4).labels,
              (Captions{{"lblSceneStatsLayers", "# of Layers: 6"},
                        {"lblSceneStatsCursor", "Show Mouse: YES"},
                        {"lblSceneStatsMusic", "Stop Music: YES"}}));
    s.useCursor = 0;
    s.useMusic = -1;
    EXPECT_EQ(UpdateSceneStats(*doc, 4).labels,
              (Captions{{"lblSceneStatsLayers", "# of Layers: 6"},
                        {"lblSceneStatsCursor", "Show Mouse: NO"},
                        {"lblSceneStatsMusic", "Stop Music: NO"}}));
}

TEST(QuickStats, AppCaptions)
{
    auto doc = makeDocument();
    AppSettingsRec &app = doc->AppSettings;
    app.screenType = 2;
    app.windowCaption = "My Game";
    app.screenWidth = 640;
    app.screenHeight = 480;
    app.screenBpp = 16;
    app.fps = 60;
    app.soundMix = 44100;
    app.soundChannels = 8;
    app.logEnabled = 1;
    app.useEngineScreen = 1;
    app.splashEnabled = 1;
    QuickStats stats = UpdateAppStats(*doc);
    EXPECT_FALSE(stats.cover);
    EXPECT_EQ(stats.labels,
              (Captions{{"lblAppStatsScreenType", "Screen Type: WINDOWED"},
                        {"lblAppStatsCaption", "Window Caption: My Game"},
                        {"lblAppStatsWidth", "Screen Width: 640"},
                        {"lblAppStatsHeight", "Screen Height: 480"},
                        {"lblAppStatsDepth", "Screen Depth: 16"},
                        {"lblAppStatsFramerate", "Framerate: 60"},
                        {"lblAppStatsMixrate", "Mixrate: 44100"},
                        {"lblAppStatsChannels", "# Channels: 8"},
                        {"lblAppStatsLogging", "Error Logging: ENABLED"},
                        {"lblAppStatsTileEngine", "Tile Engine: ENABLED"},
                        {"lblAppStatsSplash", "Splash Screen: ENABLED"}}));

    app.screenType = 1;
    app.logEnabled = 0;
    app.useEngineScreen = -1;
    app.splashEnabled = 0;
    stats = UpdateAppStats(*doc);
    EXPECT_EQ(stats.captionOf("lblAppStatsScreenType"), "Screen Type: FULLSCREEN");
    EXPECT_EQ(stats.captionOf("lblAppStatsLogging"), "Error Logging: DISABLED");
    EXPECT_EQ(stats.captionOf("lblAppStatsTileEngine"), "Tile Engine: DISABLED");
    EXPECT_EQ(stats.captionOf("lblAppStatsSplash"), "Splash Screen: DISABLED");

    for (int16_t code : {0, 3}) {
        app.screenType = code;
        stats = UpdateAppStats(*doc);
        EXPECT_EQ(stats.labels.front(), (StatLabel{"lblAppStatsScreenType", std::nullopt}));
        EXPECT_EQ(stats.labels.size(), 11u);
    }
}

TEST(QuickStats, AppIgnoresTheNewFlagsOfTheTables)
{
    auto doc = makeDocument();
    for (Kind kind : ListOrder)
        slotOf(*doc, kind, 0).isNew = -1;
    EXPECT_FALSE(UpdateAppStats(*doc).cover);
}

TEST(QuickStats, AnimationCaptions)
{
    auto doc = makeDocument();
    AnimRec &a = doc->Sprites[3].anims[100];
    a.inUse = -1;
    a.frameCount = 4;
    a.frameDelay = 10;
    a.animDelay = 250;
    a.defaultFrame = 2;
    a.repeat = 1;
    a.play = 1;
    a.direction = 1;
    EXPECT_EQ(UpdateAnimStats(*doc, 100, 3).labels,
              (Captions{{"lblAnimStatsFrames", "# of Frames: 4"},
                        {"lblAnimStatsFrameDelay", "Frame Delay: 10"},
                        {"lblAnimStatsAnimDelay", "Anim Delay: 250"},
                        {"lblAnimStatsDefFrame", "Default Frame: 2"},
                        {"lblAnimStatsRepeat", "Repeating: YES"},
                        {"lblAnimStatsPlaying", "Playing: YES"},
                        {"lblAnimStatsDirection", "Anim Direction: FORWARD"}}));

    a.repeat = 0;
    a.play = -1;
    a.direction = -1;
    a.defaultFrame = 0;
    QuickStats stats = UpdateAnimStats(*doc, 100, 3);
    EXPECT_EQ(stats.captionOf("lblAnimStatsRepeat"), "Repeating: NO");
    EXPECT_EQ(stats.captionOf("lblAnimStatsPlaying"), "Playing: NO");
    EXPECT_EQ(stats.captionOf("lblAnimStatsDirection"), "Anim Direction: REVERSE");
    EXPECT_EQ(stats.captionOf("lblAnimStatsDefFrame"), "Default Frame: 0");
    a.direction = 0;
    EXPECT_EQ(UpdateAnimStats(*doc, 100, 3).captionOf("lblAnimStatsDirection"),
              "Anim Direction: REVERSE");
}

TEST(QuickStats, AnimationWithoutDefaultFrame)
{
    auto doc = makeDocument();
    AnimRec &a = doc->Sprites[0].anims[0];
    a.defaultFrame = static_cast<int16_t>(static_cast<uint16_t>(65535));
    EXPECT_EQ(a.defaultFrame, -1);
    EXPECT_EQ(UpdateAnimStats(*doc, 0, 0).captionOf("lblAnimStatsDefFrame"), "Def Frame: NONE");
    a.defaultFrame = -2;
    EXPECT_EQ(UpdateAnimStats(*doc, 0, 0).captionOf("lblAnimStatsDefFrame"), "Default Frame: -2");
}

TEST(QuickStats, AnimationCoverFollowsTheAnimationNotTheSprite)
{
    auto doc = makeDocument();
    SpriteRec &s = doc->Sprites[6];
    s.isNew = -1;
    s.anims[1].frameCount = 2;
    EXPECT_FALSE(UpdateAnimStats(*doc, 1, 6).cover);
    EXPECT_EQ(UpdateAnimStats(*doc, 1, 6).captionOf("lblAnimStatsFrames"), "# of Frames: 2");

    s.isNew = 0;
    s.anims[1].isNew = -1;
    const QuickStats stats = UpdateAnimStats(*doc, 1, 6);
    EXPECT_TRUE(stats.cover);
    EXPECT_TRUE(stats.labels.empty());
}

TEST(QuickStats, DispatcherPicksTheKindsPanel)
{
    auto doc = makeDocument();
    doc->Buttons[1].x = 1;
    doc->Cursors[1].imageId = "c";
    doc->Images[1].path = "i";
    doc->Texts[1].fontId = "t";
    doc->Fonts[1].path = "f";
    doc->MusicTracks[1].path = "m";
    doc->SoundEffects[1].path = "s";
    doc->Sprites[1].imageId = "p";
    doc->Scenes[1].layerCount = 1;
    const std::pair<Kind, StatLabel> firsts[] = {
        {Kind::Button, {"lblButtonStatsPosX", "Button X: 1"}},
        {Kind::Cursor, {"lblCursorStatsOrientation", std::nullopt}},
        {Kind::Image, {"lblImageStatsPathBottom", "i"}},
        {Kind::Text, {"lblTextStatsFont", "Font: t"}},
        {Kind::Font, {"lblFontStatsPath", "Font Path: f"}},
        {Kind::Music, {"lblMusicStatsPath", "Music Path: m"}},
        {Kind::SFX, {"lblSFXStatsPath", "SFX Path: s"}},
        {Kind::Sprite, {"lblSpriteStatsImage", "Sprite Image: p"}},
        {Kind::Scene, {"lblSceneStatsLayers", "# of Layers: 1"}},
    };
    for (const auto &[kind, first] : firsts) {
        const QuickStats stats = statsFor(*doc, kind, 1);
        ASSERT_FALSE(stats.labels.empty()) << kindInfo(kind).name;
        EXPECT_EQ(stats.labels.front(), first) << kindInfo(kind).name;
    }
}

TEST(QuickStats, CaptionOfAnUnknownLabelIsNothing)
{
    auto doc = makeDocument();
    EXPECT_FALSE(UpdateSceneStats(*doc, 0).captionOf("lblButtonStatsPosX").has_value());
}

TEST(QuickStats, SlotOutsideTheTableThrows)
{
    auto doc = makeDocument();
    EXPECT_THROW(UpdateCursorStats(*doc, 26), std::out_of_range);
    EXPECT_THROW(UpdateButtonStats(*doc, -1), std::out_of_range);
    EXPECT_THROW(statsFor(*doc, Kind::Font, 26), std::out_of_range);
    EXPECT_THROW(UpdateAnimStats(*doc, 101, 0), std::out_of_range);
    EXPECT_THROW(UpdateAnimStats(*doc, 0, 201), std::out_of_range);
    EXPECT_NO_THROW(statsFor(*doc, Kind::Image, 200));
}

} // namespace
} // namespace vorlane
