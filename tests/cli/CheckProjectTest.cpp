#include "project/ProjectCheck.h"

#include "generate/EngineFiles.h"
#include "model/Kinds.h"
#include "rules/LogFilterRules.h"
#include "project/ProjectReader.h"
#include "project/ProjectTestSupport.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace vorlane {
namespace {

using testsupport::listObject;
using Lines = std::vector<std::string>;

// Lists `id` in `slot` of `kind` with every other bare text "null" or a plain path.
void listPlainObject(Document &doc, Kind kind, int slot, const std::string &id)
{
    listObject(doc, kind, slot, id);
    withTable(doc, kind, [&](auto &table) {
        auto &rec = table[static_cast<size_t>(slot)];
        using Rec = std::decay_t<decltype(rec)>;
        if constexpr (std::is_same_v<Rec, ButtonRec>) {
            for (std::string *text : {&rec.cursorId,
                                      &rec.templateId,
                                      &rec.iconId,
                                      &rec.captionTextId,
                                      &rec.soundUp,
                                      &rec.soundDown,
                                      &rec.soundOver,
                                      &rec.soundDisabled})
                *text = "null";
        } else if constexpr (std::is_same_v<Rec, CursorRec>) {
            rec.imageId = "null";
        } else if constexpr (std::is_same_v<Rec, TextRec>) {
            rec.fontId = "null";
            rec.selectionImageId = "null";
        } else if constexpr (std::is_same_v<Rec, SpriteRec>) {
            rec.imageId = "null";
            rec.currentAnimId = "null";
        } else if constexpr (!std::is_same_v<Rec, SceneRec>) {
            rec.path = "data\\file";
        }
    });
}

// A project in which every reference names a listed object of the right kind, every id is
// unique and holds no blank, and no text holds "*".
class CheckProject : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Document &d = *doc;
        auto &app = d.AppSettings;
        app.windowCaption = "Korrin Quest, the game";
        app.windowIcon = "null";
        app.splashEnabled = 1;
        app.splashImagePath = "gfx\\splash.bmp";
        app.logPath = "null";
        app.customFilterCount = 1;
        app.CustomFilters[1] = {-1, "Player: "};

        listObject(d, Kind::Image, 0, "imgHero");
        d.Images[0].path = "gfx\\hero.bmp";
        listObject(d, Kind::Image, 1, "imgButtons");
        d.Images[1].path = "gfx\\buttons.bmp";
        listObject(d, Kind::Cursor, 0, "curHand");
        d.Cursors[0].imageId = "imgHero";
        listObject(d, Kind::Font, 0, "fntMain");
        d.Fonts[0].path = "fonts\\main.ttf";
        listObject(d, Kind::Text, 0, "txtStart");
        d.Texts[0].content = "Start the game";
        d.Texts[0].fontId = "fntMain";
        d.Texts[0].selectionImageId = "null";
        listObject(d, Kind::Music, 0, "musTheme");
        d.MusicTracks[0].path = "music\\theme.ogg";
        listObject(d, Kind::SFX, 0, "sfxClick");
        d.SoundEffects[0].path = "sfx\\click.wav";

        listObject(d, Kind::Button, 0, "cmdStart");
        ButtonRec &start = d.Buttons[0];
        start.cursorId = "curHand";
        start.templateId = "imgButtons";
        start.iconId = "null";
        start.captionTextId = "txtStart";
        start.soundUp = "sfxClick";
        start.soundDown = "sfxClick";
        start.soundOver = "null";
        start.soundDisabled = "null";
        listObject(d, Kind::Button, 1, "_exitZone");
        d.Buttons[1].cursorId = "null";

        listObject(d, Kind::Sprite, 0, "sprHero");
        SpriteRec &hero = d.Sprites[0];
        hero.imageId = "imgHero";
        hero.currentAnimId = "walk";
        hero.animCount = 2;
        hero.anims[0].inUse = -1;
        hero.anims[0].id = "stand";
        hero.anims[1].inUse = -1;
        hero.anims[1].id = "walk";

        listObject(d, Kind::Scene, 0, "scnTitle");
        SceneRec &title = d.Scenes[0];
        const std::vector<std::pair<std::string, int16_t>> layers{{"txtStart", 1},
                                                                  {"sprHero", 2},
                                                                  {"imgHero", 3},
                                                                  {"cmdStart", 4},
                                                                  {"musTheme", 5},
                                                                  {"null", 3}};
        for (size_t i = 0; i < layers.size(); ++i)
            title.layers[i] = {-1, layers[i].second, layers[i].first};
        title.layerCount = static_cast<int16_t>(layers.size());
    }

    Lines check() const { return checkProject(*doc, "game.dvb"); }

    std::unique_ptr<Document> doc = makeDocument();
};

TEST_F(CheckProject, FindsNothingInAConsistentProject)
{
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsEachButtonReferenceToAMissingObject)
{
    ButtonRec &start = doc->Buttons[0];
    start.cursorId = "curGone";
    start.templateId = "imgGone";
    start.iconId = "imgIcon";
    start.captionTextId = "txtGone";
    start.soundUp = "sfxUp";
    start.soundDown = "sfxDown";
    start.soundOver = "sfxOver";
    start.soundDisabled = "sfxOff";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: button \"cmdStart\": cursorId \"curGone\" names no cursor",
                     "game.dvb: button \"cmdStart\": templateId \"imgGone\" names no image",
                     "game.dvb: button \"cmdStart\": iconId \"imgIcon\" names no image",
                     "game.dvb: button \"cmdStart\": captionTextId \"txtGone\" names no text",
                     "game.dvb: button \"cmdStart\": soundUp \"sfxUp\" names no sound effect",
                     "game.dvb: button \"cmdStart\": soundDown \"sfxDown\" names no sound effect",
                     "game.dvb: button \"cmdStart\": soundOver \"sfxOver\" names no sound effect",
                     "game.dvb: button \"cmdStart\": soundDisabled \"sfxOff\" names no sound "
                     "effect"}));
}

TEST_F(CheckProject, ReferenceMustNameAnObjectOfTheRightKind)
{
    // "sfxClick" exists, but as a sound effect, not as a cursor.
    doc->Buttons[0].cursorId = "sfxClick";
    EXPECT_EQ(check(),
              Lines{"game.dvb: button \"cmdStart\": cursorId \"sfxClick\" names no cursor"});
}

TEST_F(CheckProject, ChecksAHotSpotsCursorOnly)
{
    // A hot spot's line carries no template, icon, caption or sounds.
    ButtonRec &zone = doc->Buttons[1];
    zone.templateId = "imgGone";
    zone.soundUp = "sfx gone";
    EXPECT_EQ(check(), Lines{});
    zone.cursorId = "curGone";
    EXPECT_EQ(check(),
              Lines{"game.dvb: button \"_exitZone\": cursorId \"curGone\" names no cursor"});
}

TEST_F(CheckProject, ReportsCursorTextAndSpriteReferencesToMissingObjects)
{
    doc->Cursors[0].imageId = "imgGone";
    doc->Texts[0].fontId = "fntGone";
    doc->Texts[0].selectionImageId = "imgSelect";
    doc->Sprites[0].imageId = "imgSprite";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: cursor \"curHand\": imageId \"imgGone\" names no image",
                     "game.dvb: text \"txtStart\": fontId \"fntGone\" names no font",
                     "game.dvb: text \"txtStart\": selectionImageId \"imgSelect\" names no image",
                     "game.dvb: sprite \"sprHero\": imageId \"imgSprite\" names no image"}));
}

TEST_F(CheckProject, CurrentAnimationMustBeOneOfTheSpritesOwn)
{
    listObject(*doc, Kind::Sprite, 1, "sprDog");
    SpriteRec &dog = doc->Sprites[1];
    dog.imageId = "imgHero";
    dog.currentAnimId = "walk"; // an animation of sprHero, not of sprDog
    EXPECT_EQ(check(),
              Lines{"game.dvb: sprite \"sprDog\": currentAnimId \"walk\" names no animation of "
                    "this sprite"});
    dog.currentAnimId = "null";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, UnusedOrUnwrittenAnimationsDoNotCount)
{
    SpriteRec &hero = doc->Sprites[0];
    hero.anims[1].inUse = 0;
    const std::string missing =
        "game.dvb: sprite \"sprHero\": currentAnimId \"walk\" names no animation of this sprite";
    EXPECT_EQ(check(),
              (Lines{missing,
                     "game.dvb: sprite \"sprHero\": animCount is 2 but 1 animation in use; the "
                     "saved file will not read back intact"}));
    // With animCount 0 no animation is written, whatever the slots say.
    hero.anims[1].inUse = -1;
    hero.animCount = 0;
    EXPECT_EQ(check(),
              (Lines{missing,
                     "game.dvb: sprite \"sprHero\": animCount is 0 but 2 animations in use, "
                     "which the saved file leaves out"}));
}

TEST_F(CheckProject, LayerObjectIsLookedUpByItsObjectKind)
{
    SceneRec &title = doc->Scenes[0];
    // Each layer names an object that exists, but under another kind than its objectKind.
    const std::vector<std::pair<std::string, int16_t>> layers{
        {"sprHero", 1}, {"imgHero", 2}, {"cmdStart", 3}, {"musTheme", 4}, {"txtStart", 5}};
    for (size_t i = 0; i < layers.size(); ++i)
        title.layers[i] = {-1, layers[i].second, layers[i].first};
    title.layers[5].inUse = 0;
    title.layerCount = 5;
    EXPECT_EQ(check(),
              (Lines{"game.dvb: scene \"scnTitle\": layer 1 objectId \"sprHero\" names no text",
                     "game.dvb: scene \"scnTitle\": layer 2 objectId \"imgHero\" names no sprite",
                     "game.dvb: scene \"scnTitle\": layer 3 objectId \"cmdStart\" names no image",
                     "game.dvb: scene \"scnTitle\": layer 4 objectId \"musTheme\" names no button",
                     "game.dvb: scene \"scnTitle\": layer 5 objectId \"txtStart\" names no music "
                     "track"}));
}

TEST_F(CheckProject, ReportsALayerObjectKindOutsideOneToFive)
{
    SceneRec &title = doc->Scenes[0];
    title.layers[0].objectKind = 0;
    title.layers[2].objectKind = 6;
    EXPECT_EQ(check(),
              (Lines{"game.dvb: scene \"scnTitle\": layer 1 objectKind 0 is none of 1 texts, 2 "
                     "sprites, 3 images, 4 buttons, 5 music",
                     "game.dvb: scene \"scnTitle\": layer 3 objectKind 6 is none of 1 texts, 2 "
                     "sprites, 3 images, 4 buttons, 5 music"}));
}

TEST_F(CheckProject, LayersAreNumberedAmongTheUsedSlotsAndUnwrittenOnesAreSkipped)
{
    SceneRec &title = doc->Scenes[0];
    title.layers[0].inUse = 0;
    title.layerCount = 5;
    title.layers[3].objectId = "cmdGone";
    EXPECT_EQ(check(),
              Lines{"game.dvb: scene \"scnTitle\": layer 3 objectId \"cmdGone\" names no button"});
    // With layerCount 0 the scene is written without layers: only that is said.
    title.layerCount = 0;
    EXPECT_EQ(check(),
              Lines{"game.dvb: scene \"scnTitle\": layerCount is 0 but 5 layers in use, which "
                    "the saved file leaves out"});
}

TEST_F(CheckProject, OnlyListedObjectsCanBeReferredTo)
{
    // A removed image keeps its id in its slot, but is no longer listed.
    doc->Images[5].id = "imgRemoved";
    doc->Images[5].inUse = 0;
    doc->Cursors[0].imageId = "imgRemoved";
    EXPECT_EQ(check(),
              Lines{"game.dvb: cursor \"curHand\": imageId \"imgRemoved\" names no image"});
}

TEST_F(CheckProject, NewObjectsAreNeitherCheckedNorTargets)
{
    // Added but never opened: Save and Generate drop it, so it cannot be referred to.
    listObject(*doc, Kind::Font, 1, "New_Object1");
    doc->Fonts[1].isNew = -1;
    doc->Fonts[1].inUse = 0;
    doc->Fonts[1].path = "has a blank";
    doc->Texts[0].fontId = "New_Object1";
    EXPECT_EQ(check(), Lines{"game.dvb: text \"txtStart\": fontId \"New_Object1\" names no font"});
}

TEST_F(CheckProject, ReportsEveryLaterObjectWithAnIdAlreadyUsedInItsKind)
{
    listObject(*doc, Kind::Image, 2, "imgHero");
    doc->Images[2].path = "gfx\\hero2.bmp";
    listObject(*doc, Kind::Image, 3, "imgHero");
    doc->Images[3].path = "gfx\\hero3.bmp";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: image \"imgHero\": id is also used by an earlier image",
                     "game.dvb: image \"imgHero\": id is also used by an earlier image"}));
}

TEST_F(CheckProject, TheSameIdInTwoKindsIsNoDuplicate)
{
    listObject(*doc, Kind::Font, 1, "imgHero");
    doc->Fonts[1].path = "fonts\\other.ttf";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsStarsInTextsTheEngineEndsAtAStar)
{
    auto &app = doc->AppSettings;
    app.windowCaption = "Quest*";
    app.windowIcon = "icons\\*.ico";
    app.splashImagePath = "*splash.bmp";
    app.logPath = "logs\\game*.log";
    app.CustomFilters[1].text = "Player*";
    doc->Texts[0].content = "Press * to start";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: application: windowCaption holds \"*\", which the engine reads as "
                     "the end of the text",
                     "game.dvb: application: windowIcon holds \"*\", which the engine reads as the "
                     "end of the text",
                     "game.dvb: application: splashImagePath holds \"*\", which the engine reads "
                     "as the end of the text",
                     "game.dvb: application: logPath holds \"*\", which the engine reads as the "
                     "end of the text",
                     "game.dvb: text \"txtStart\": content holds \"*\", which the engine reads as "
                     "the end of the text",
                     "game.dvb: custom filter 1: text holds \"*\", which the engine reads as the "
                     "end of the text"}));
}

TEST_F(CheckProject, SplashAndCustomFiltersCountOnlyWhenWritten)
{
    auto &app = doc->AppSettings;
    app.splashEnabled = 0;
    app.splashImagePath = "gfx\\my splash*.bmp";
    app.customFilterCount = 0;
    app.CustomFilters[1].text = "Player*";
    // The filter's "*" is not looked at; that it is left out of the file is said.
    EXPECT_EQ(check(),
              Lines{"game.dvb: log: customFilterCount is 0 but 1 custom filter in use, which the "
                    "saved file leaves out"});
    app.CustomFilters[1].inUse = 0;
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, StarsElsewhereAreFine)
{
    doc->Images[0].path = "gfx\\hero*.bmp";
    doc->Buttons[0].id = "cmd*Start";
    doc->list(Kind::Button).lines[0].text = "cmd*Start";
    doc->Scenes[0].layers[3].objectId = "cmd*Start";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsBlanksInIdsOfEveryKind)
{
    const std::vector<std::pair<Kind, std::string>> objects{{Kind::Button, "button"},
                                                            {Kind::Cursor, "cursor"},
                                                            {Kind::Image, "image"},
                                                            {Kind::Text, "text"},
                                                            {Kind::Font, "font"},
                                                            {Kind::Music, "music track"},
                                                            {Kind::SFX, "sound effect"},
                                                            {Kind::Sprite, "sprite"},
                                                            {Kind::Scene, "scene"}};
    for (const auto &[kind, name] : objects) {
        auto fresh = makeDocument();
        listPlainObject(*fresh, kind, 0, "my object");
        EXPECT_EQ(checkProject(*fresh, "game.dvb"),
                  Lines{"game.dvb: " + name +
                        " \"my object\": id holds a blank, which the engine reads as a "
                        "separator"})
            << name;
    }
}

TEST_F(CheckProject, ReportsBlanksInPaths)
{
    doc->Images[0].path = "my gfx\\hero.bmp";
    doc->Fonts[0].path = "fonts\\main font.ttf";
    doc->MusicTracks[0].path = "music\\the\ttheme.ogg"; // a tab separates as well
    doc->SoundEffects[0].path = "sfx\\click .wav";
    doc->AppSettings.splashImagePath = "gfx\\my splash.bmp";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: application: splashImagePath \"gfx\\my splash.bmp\" holds a "
                     "blank, which the engine reads as a separator",
                     "game.dvb: image \"imgHero\": path \"my gfx\\hero.bmp\" holds a blank, which "
                     "the engine reads as a separator",
                     "game.dvb: font \"fntMain\": path \"fonts\\main font.ttf\" holds a blank, "
                     "which the engine reads as a separator",
                     "game.dvb: music track \"musTheme\": path \"music\\the\ttheme.ogg\" holds a "
                     "blank, which the engine reads as a separator",
                     "game.dvb: sound effect \"sfxClick\": path \"sfx\\click .wav\" holds a "
                     "blank, which the engine reads as a separator"}));
}

TEST_F(CheckProject, ReportsBlanksInReferencesAndAnimationIds)
{
    // The image exists under that id, so only its id and the blanks are wrong.
    doc->Images[1].id = "img buttons";
    doc->list(Kind::Image).lines[1].text = "img buttons";
    doc->Buttons[0].templateId = "img buttons";
    doc->Sprites[0].anims[0].id = "stand still";
    doc->Scenes[0].layers[2].objectId = "img buttons";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: button \"cmdStart\": templateId \"img buttons\" holds a blank, "
                     "which the engine reads as a separator",
                     "game.dvb: image \"img buttons\": id holds a blank, which the engine reads "
                     "as a separator",
                     "game.dvb: sprite \"sprHero\": animation 1 id \"stand still\" holds a blank, "
                     "which the engine reads as a separator",
                     "game.dvb: scene \"scnTitle\": layer 3 objectId \"img buttons\" holds a "
                     "blank, which the engine reads as a separator"}));
}

TEST_F(CheckProject, BlanksInTextsTheEngineEndsAtAStarAreFine)
{
    doc->AppSettings.windowIcon = "my icons\\game.ico";
    doc->AppSettings.logPath = "my logs\\game.log";
    doc->AppSettings.CustomFilters[1].text = "Loaded scene ";
    doc->Texts[0].content = "  Start  the  game  ";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsEmptyIdsPathsAndReferences)
{
    doc->Fonts[0].id = "";
    doc->list(Kind::Font).lines[0].text = "";
    doc->Images[0].path = "";
    doc->Cursors[0].imageId = "";
    doc->Sprites[0].currentAnimId = "";
    doc->Texts[0].fontId = "fntMain"; // no longer listed under this id
    EXPECT_EQ(check(),
              (Lines{"game.dvb: image \"imgHero\": path is empty, which the engine cannot read",
                     "game.dvb: cursor \"curHand\": imageId is empty, which the engine cannot "
                     "read",
                     "game.dvb: text \"txtStart\": fontId \"fntMain\" names no font",
                     "game.dvb: font \"\": id is empty, which the engine cannot read",
                     "game.dvb: sprite \"sprHero\": currentAnimId is empty, which the engine "
                     "cannot read"}));
}

TEST_F(CheckProject, ReportsInFileOrderUnderTheGivenFileName)
{
    doc->Scenes[0].layers[0].objectId = "txtGone";
    doc->Buttons[0].cursorId = "curGone";
    doc->Images[0].path = "a b.bmp";
    doc->AppSettings.logPath = "*";
    EXPECT_EQ(checkProject(*doc, "/home/me/My Game.dvb"),
              (Lines{"/home/me/My Game.dvb: application: logPath holds \"*\", which the engine "
                     "reads as the end of the text",
                     "/home/me/My Game.dvb: button \"cmdStart\": cursorId \"curGone\" names no "
                     "cursor",
                     "/home/me/My Game.dvb: image \"imgHero\": path \"a b.bmp\" holds a blank, "
                     "which the engine reads as a separator",
                     "/home/me/My Game.dvb: scene \"scnTitle\": layer 1 objectId \"txtGone\" "
                     "names no text"}));
}

// What the project file cannot carry back: the lines a Save shows at once.
const std::string QuoteComma = ", which the project file cannot carry; the saved file will not "
                               "read back intact";

TEST_F(CheckProject, ReportsATextHoldingAQuoteFollowedByAComma)
{
    doc->Texts[0].content = "Say \"hi\", then go";
    EXPECT_EQ(check(),
              Lines{"game.dvb: text \"txtStart\": content holds a double quote followed by a "
                    "comma" +
                    QuoteComma});
}

TEST_F(CheckProject, ReportsAnIdTypedWithAQuoteAndAComma)
{
    doc->Images[1].id = "x\",y";
    doc->list(Kind::Image).lines[1].text = "x\",y";
    doc->Buttons[0].templateId = "x\",y";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: button \"cmdStart\": templateId holds a double quote followed by "
                     "a comma" +
                         QuoteComma,
                     "game.dvb: image \"x\",y\": id holds a double quote followed by a comma" +
                         QuoteComma}));
}

TEST_F(CheckProject, ReportsLineBreaksInTexts)
{
    doc->Texts[0].content = "two\r\nlines";
    doc->AppSettings.windowCaption = "caption\n";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: application: windowCaption holds a line break, which the project "
                     "file cannot carry; the saved file will not read back intact",
                     "game.dvb: text \"txtStart\": content holds a line break, which the project "
                     "file cannot carry; the saved file will not read back intact"}));
}

TEST_F(CheckProject, ReportsAProjectFilePathTheFileCannotRecord)
{
    doc->ProjectInfo.projectFilePath = "/games/x\",y.dvb";
    EXPECT_EQ(check(),
              Lines{"game.dvb: project: projectFilePath holds a double quote followed by a comma" +
                    QuoteComma});
}

TEST_F(CheckProject, AQuoteNotFollowedByACommaIsCarried)
{
    doc->Texts[0].content = "Say \"hi\"";
    doc->AppSettings.windowCaption = "\"quoted\"";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsTheNeverEditedNewAnimationCountedByAnimCount)
{
    // Closing the sprite editor with a new animation never opened: animCount counts a slot
    // that is reserved, not in use.
    SpriteRec &hero = doc->Sprites[0];
    hero.animCount = 3;
    hero.anims[2].isNew = -1;
    hero.anims[2].inUse = 0;
    EXPECT_EQ(check(),
              Lines{"game.dvb: sprite \"sprHero\": animCount is 3 but 2 animations in use; the "
                    "saved file will not read back intact"});
    EXPECT_EQ(projectFileProblems(*doc, "game.dvb"), check());
}

TEST_F(CheckProject, ReportsUsedAnimationsThatACountOfZeroLeavesOut)
{
    doc->Sprites[0].animCount = 0;
    doc->Sprites[0].currentAnimId = "null";
    EXPECT_EQ(check(),
              Lines{"game.dvb: sprite \"sprHero\": animCount is 0 but 2 animations in use, which "
                    "the saved file leaves out"});
}

TEST_F(CheckProject, ReportsFrameLayerAndCustomFilterCounts)
{
    AnimRec &walk = doc->Sprites[0].anims[1];
    walk.frameCount = 2;
    walk.frames[0].inUse = -1;
    doc->Scenes[0].layerCount = 7;
    doc->AppSettings.customFilterCount = 2;
    EXPECT_EQ(check(),
              (Lines{"game.dvb: sprite \"sprHero\": animation 2 frameCount is 2 but 1 frame in "
                     "use; the saved file will not read back intact",
                     "game.dvb: scene \"scnTitle\": layerCount is 7 but 6 layers in use; the saved "
                     "file will not read back intact",
                     "game.dvb: log: customFilterCount is 2 but 1 custom filter in use; the saved "
                     "file will not read back intact"}));
}

TEST_F(CheckProject, ReportsARootFolderEndingInASeparator)
{
    for (const std::string root : {"C:\\Games\\Quest\\", "/games/quest/"}) {
        doc->AppSettings.rootFolder = root;
        EXPECT_EQ(check(),
                  Lines{"game.dvb: application: rootFolder \"" + root +
                        "\" ends in a separator, so the data folder in app.cfg loses its first "
                        "character"});
        // The project file carries it: nothing for a Save to show.
        EXPECT_EQ(projectFileProblems(*doc, "game.dvb"), Lines{});
    }
    doc->AppSettings.rootFolder = "C:\\Games\\Quest";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsTwoListLinesNamingOneSlot)
{
    doc->list(Kind::Font).lines.push_back({"fntMain", 0});
    EXPECT_EQ(check(),
              (Lines{"game.dvb: font list: lines 1 and 2 both name slot 0; the saved file will "
                     "not read back intact",
                     "game.dvb: font \"fntMain\": id is also used by an earlier font"}));
    EXPECT_EQ(projectFileProblems(*doc, "game.dvb"),
              Lines{"game.dvb: font list: lines 1 and 2 both name slot 0; the saved file will "
                    "not read back intact"});
}

TEST_F(CheckProject, ASaveShowsOnlyWhatHitsTheProjectFile)
{
    doc->Buttons[0].cursorId = "curGone";
    doc->Texts[0].content = "a\",b";
    EXPECT_EQ(check().size(), 2u);
    EXPECT_EQ(projectFileProblems(*doc, "game.dvb"),
              Lines{"game.dvb: text \"txtStart\": content holds a double quote followed by a "
                    "comma" +
                    QuoteComma});
}

// What the check calls unreadable is: the written file reads back otherwise.
TEST_F(CheckProject, WhatIsReportedDoesNotReadBack)
{
    doc->Texts[0].content = "x\",y";
    const std::string bytes = projectFileBytes(*doc);
    auto reread = makeDocument();
    const ProjectReadResult read = readProject(bytes, *reread);
    EXPECT_TRUE(read.status != ProjectReadResult::Status::Read ||
                reread->Texts[0].content != "x\",y");

    doc->Texts[0].content = "x\"y";
    auto intact = makeDocument();
    ASSERT_EQ(readProject(projectFileBytes(*doc), *intact).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(intact->Texts[0].content, "x\"y");
}

TEST(ProjectFileCarries, LineBreaksAndQuoteCommasOnly)
{
    EXPECT_TRUE(projectFileCarries(""));
    EXPECT_TRUE(projectFileCarries("a \"b\" c"));
    EXPECT_TRUE(projectFileCarries("ends in a quote\""));
    EXPECT_TRUE(projectFileCarries("comma, then \"quote\""));
    EXPECT_FALSE(projectFileCarries("x\",y"));
    EXPECT_FALSE(projectFileCarries("x\","));
    EXPECT_FALSE(projectFileCarries("a\rb"));
    EXPECT_FALSE(projectFileCarries("a\nb"));
}

TEST_F(CheckProject, ReportsEveryEngineTextWithCharactersTheEngineCannotRead)
{
    Document &d = *doc;
    d.AppSettings.windowCaption = "Quest 日本";
    d.AppSettings.splashImagePath = "gfx\\заставка😀.bmp";
    d.Buttons[0].id = "cmdСтарт";
    d.Scenes[0].layers[3].objectId = "cmdСтарт";
    d.Images[0].path = "gfx\\герой.bmp";
    d.Texts[0].content = "ПрП р";
    d.Sprites[0].anims[0].id = "stand😀";
    d.AppSettings.CustomFilters[1].text = "Игрок: ";
    EXPECT_EQ(check(),
              (Lines{"game.dvb: application: windowCaption has characters the engine cannot "
                     "read: 日, 本",
                     "game.dvb: application: splashImagePath has characters the engine cannot "
                     "read: з, а, с, т, в, к, 😀",
                     "game.dvb: button \"cmdСтарт\": id has characters the engine cannot read: "
                     "С, т, а, р",
                     "game.dvb: image \"imgHero\": path has characters the engine cannot read: "
                     "г, е, р, о, й",
                     "game.dvb: text \"txtStart\": content has characters the engine cannot "
                     "read: П, р",
                     "game.dvb: sprite \"sprHero\": animation 1 id has characters the engine "
                     "cannot read: 😀",
                     "game.dvb: scene \"scnTitle\": layer 4 objectId has characters the engine "
                     "cannot read: С, т, а, р",
                     "game.dvb: custom filter 1: text has characters the engine cannot read: И, "
                     "г, р, о, к"}));
    // The project file keeps them all: nothing for a Save to show.
    EXPECT_EQ(projectFileProblems(d, "game.dvb"), Lines{});
    // The engine file holds "?" in their place, as it always has.
    EXPECT_EQ(textDat(d).substr(0, 16), " 1\r\n??? ?* txtSt");
}

TEST_F(CheckProject, TheProjectsOwnNameAndPathsAreNoEngineTexts)
{
    Document &d = *doc;
    d.ProjectInfo.projectName = "Проект";
    d.ProjectInfo.projectFilePath = "/игры/Проект/game.dvb";
    d.ProjectInfo.generatePath = "/игры/Проект/data/";
    d.AppSettings.rootFolder = "/игры/Проект";
    EXPECT_EQ(check(), Lines{});
}

TEST_F(CheckProject, ReportsTheEnginesCharactersOnlyInWhatTheEngineFilesHold)
{
    // A hot spot is written with its id and cursor only; the splash line only when it is on.
    doc->Buttons[1].soundUp = "звук";
    doc->AppSettings.splashEnabled = 0;
    doc->AppSettings.splashImagePath = "заставка";
    EXPECT_EQ(check(), Lines{});
}

// The custom filter window lets its list grow to 99 lines over the 51 slots; the reader takes
// at most 50.
std::unique_ptr<Document> withCustomFilters(int created)
{
    auto doc = makeDocument();
    ObjectList list;
    for (int i = 0; i < created; ++i)
        EXPECT_FALSE(createCustomFilter(*doc, list, "Filter " + std::to_string(i)).refusal);
    doc->AppSettings.customFilterCount = static_cast<int16_t>(list.lines.size());
    return doc;
}

ProjectReadResult readBack(const Document &doc)
{
    const std::string bytes = projectFileBytes(doc);
    auto reread = makeDocument();
    return readProject(std::string_view(bytes.data(), bytes.size()), *reread);
}

TEST(CheckCustomFilterLimit, FiftyCustomFiltersReadBack)
{
    auto doc = withCustomFilters(50);
    EXPECT_EQ(checkProject(*doc, "game.dvb"), Lines{});
    EXPECT_EQ(readBack(*doc).status, ProjectReadResult::Status::Read);
}

TEST(CheckCustomFilterLimit, FiftyOneCustomFiltersAreFoundBeforeTheReaderRefusesThem)
{
    auto doc = withCustomFilters(51);
    const Lines expected{"game.dvb: log: customFilterCount is 51, more than the 50 custom "
                         "filters a project file holds: remove 1 custom filter in Edit Custom "
                         "Filters; the saved file will not read back intact"};
    EXPECT_EQ(checkProject(*doc, "game.dvb"), expected);
    EXPECT_EQ(projectFileProblems(*doc, "game.dvb"), expected);
    const ProjectReadResult result = readBack(*doc);
    EXPECT_EQ(result.status, ProjectReadResult::Status::Damaged);
    EXPECT_EQ(result.message, "customFilterCount must lie between 0 and 50");
}

TEST(CheckCustomFilterLimit, NinetyNineCustomFiltersNameHowManyToRemove)
{
    auto doc = withCustomFilters(99);
    EXPECT_EQ(projectFileProblems(*doc, "game.dvb"),
              (Lines{"game.dvb: log: customFilterCount is 99, more than the 50 custom filters a "
                     "project file holds: remove 49 custom filters in Edit Custom Filters; the "
                     "saved file will not read back intact",
                     "game.dvb: log: customFilterCount is 99 but 51 custom filters in use; the "
                     "saved file will not read back intact"}));
    EXPECT_EQ(readBack(*doc).message, "customFilterCount must lie between 0 and 50");
}

} // namespace
} // namespace vorlane
