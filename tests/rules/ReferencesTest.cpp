#include "rules/ObjectFind.h"
#include "rules/ObjectRename.h"
#include "rules/References.h"

#include "model/Kinds.h"
#include "project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace vorlane {
namespace {

using testsupport::listObject;
using Lines = std::vector<std::string>;

// A small game whose records use every kind of reference field: images 0 "imgHero" and 1
// "imgSky", cursor "curArrow", text "txtTitle", font "fntMain", sfx "sfxClick", music
// "musTheme", buttons "btnPlay" and "btnQuit", sprite "sprHero" with animations "walk" and
// "run", scene "scnTitle".
class References : public ::testing::Test
{
protected:
    void SetUp() override
    {
        listObject(d, Kind::Image, 0, "imgHero");
        listObject(d, Kind::Image, 1, "imgSky");
        listObject(d, Kind::Cursor, 0, "curArrow");
        d.Cursors[0].imageId = "imgHero";
        listObject(d, Kind::Font, 0, "fntMain");
        listObject(d, Kind::Text, 0, "txtTitle");
        d.Texts[0].fontId = "fntMain";
        d.Texts[0].selectionImageId = "imgHero";
        listObject(d, Kind::SFX, 0, "sfxClick");
        listObject(d, Kind::Music, 0, "musTheme");
        listObject(d, Kind::Button, 0, "btnPlay");
        ButtonRec &play = d.Buttons[0];
        play.cursorId = "curArrow";
        play.templateId = "imgHero";
        play.iconId = "imgHero";
        play.captionTextId = "txtTitle";
        play.soundUp = "sfxClick";
        play.soundDown = "sfxClick";
        play.soundOver = "sfxClick";
        play.soundDisabled = "sfxClick";
        listObject(d, Kind::Button, 1, "btnQuit");
        ButtonRec &quit = d.Buttons[1];
        quit.cursorId = quit.templateId = quit.iconId = quit.captionTextId = "null";
        quit.soundUp = quit.soundDown = quit.soundOver = quit.soundDisabled = "null";
        quit.templateId = "imgSky";
        listObject(d, Kind::Sprite, 0, "sprHero");
        SpriteRec &sprite = d.Sprites[0];
        sprite.imageId = "imgHero";
        sprite.currentAnimId = "walk";
        sprite.animCount = 2;
        sprite.anims[0].inUse = -1;
        sprite.anims[0].id = "walk";
        sprite.anims[1].inUse = -1;
        sprite.anims[1].id = "run";
        listObject(d, Kind::Scene, 0, "scnTitle");
        SceneRec &scene = d.Scenes[0];
        scene.layerCount = 4;
        // Layers 1 to 4: an image, a sprite, a text and a music track; slot 2 is free.
        scene.layers[0] = {-1, 3, "imgHero"};
        scene.layers[1] = {-1, 2, "sprHero"};
        scene.layers[2] = {0, 3, "imgHero"};
        scene.layers[3] = {-1, 1, "txtTitle"};
        scene.layers[4] = {-1, 5, "musTheme"};
    }

    std::unique_ptr<Document> doc = makeDocument();
    Document &d = *doc;
};

TEST_F(References, UsedByListsEveryFieldInListOrder)
{
    EXPECT_EQ(usedByLines(d, {Kind::Image, 0}),
              (Lines{"Button \"btnPlay\": template",
                     "Button \"btnPlay\": icon",
                     "Cursor \"curArrow\": image",
                     "Text \"txtTitle\": selection image",
                     "Sprite \"sprHero\": image",
                     "Scene \"scnTitle\": layer 1"}));
    EXPECT_EQ(usedByLines(d, {Kind::Image, 1}), (Lines{"Button \"btnQuit\": template"}));
    EXPECT_EQ(usedByLines(d, {Kind::Cursor, 0}), (Lines{"Button \"btnPlay\": cursor"}));
    EXPECT_EQ(usedByLines(d, {Kind::Text, 0}),
              (Lines{"Button \"btnPlay\": caption", "Scene \"scnTitle\": layer 3"}));
    EXPECT_EQ(usedByLines(d, {Kind::Font, 0}), (Lines{"Text \"txtTitle\": font"}));
    EXPECT_EQ(usedByLines(d, {Kind::SFX, 0}),
              (Lines{"Button \"btnPlay\": sound up",
                     "Button \"btnPlay\": sound down",
                     "Button \"btnPlay\": sound over",
                     "Button \"btnPlay\": sound disabled"}));
    EXPECT_EQ(usedByLines(d, {Kind::Music, 0}), (Lines{"Scene \"scnTitle\": layer 4"}));
    EXPECT_EQ(usedByLines(d, {Kind::Sprite, 0}), (Lines{"Scene \"scnTitle\": layer 2"}));
}

TEST_F(References, UnusedObjectSaysSo)
{
    EXPECT_EQ(usedByLines(d, {Kind::Button, 0}), (Lines{"Not used by any object"}));
    EXPECT_EQ(usedByLines(d, {Kind::Scene, 0}), (Lines{"Not used by any object"}));
}

TEST_F(References, LayerCountsOnlyForItsOwnKind)
{
    // A text called like the image is not the image: the layer's kind decides.
    d.Scenes[0].layers[3].objectId = "imgHero";
    EXPECT_EQ(usedByLines(d, {Kind::Text, 0}), (Lines{"Button \"btnPlay\": caption"}));
    EXPECT_EQ(usedBy(d, {Kind::Image, 0}).size(), 6u);
}

TEST_F(References, NewObjectsRefersToNothingYet)
{
    // A never opened object's fields are left-overs of an earlier object of its slot.
    d.Buttons[0].isNew = -1;
    EXPECT_EQ(usedByLines(d, {Kind::Cursor, 0}), (Lines{"Not used by any object"}));
}

TEST_F(References, CurrentAnimationUsesItsAnimation)
{
    const auto lines = [&](int anim) {
        Lines out;
        for (const Reference &r : animationUsedBy(d, 0, anim))
            out.push_back(referenceLine(d, r));
        return out;
    };
    EXPECT_EQ(lines(0), (Lines{"Sprite \"sprHero\": current animation"}));
    EXPECT_EQ(lines(1), Lines{});
}

TEST_F(References, RenameImageFollowsEveryField)
{
    const RenameOutcome outcome = renameObject(d, {Kind::Image, 0}, "imgPlayer");
    EXPECT_EQ(outcome, (RenameOutcome{std::nullopt, 6}));
    EXPECT_EQ(d.Images[0].id, "imgPlayer");
    EXPECT_EQ(d.list(Kind::Image).lines[0].text, "imgPlayer");
    EXPECT_EQ(d.Buttons[0].templateId, "imgPlayer");
    EXPECT_EQ(d.Buttons[0].iconId, "imgPlayer");
    EXPECT_EQ(d.Cursors[0].imageId, "imgPlayer");
    EXPECT_EQ(d.Texts[0].selectionImageId, "imgPlayer");
    EXPECT_EQ(d.Sprites[0].imageId, "imgPlayer");
    EXPECT_EQ(d.Scenes[0].layers[0].objectId, "imgPlayer");
    // A free layer is no reference.
    EXPECT_EQ(d.Scenes[0].layers[2].objectId, "imgHero");
    EXPECT_EQ(d.Buttons[1].templateId, "imgSky");
    EXPECT_EQ(usedByLines(d, {Kind::Image, 0}).size(), 6u);
}

TEST_F(References, RenameFollowsCursorTextFontSoundSpriteAndMusic)
{
    EXPECT_EQ(renameObject(d, {Kind::Cursor, 0}, "curHand").references, 1);
    EXPECT_EQ(d.Buttons[0].cursorId, "curHand");
    EXPECT_EQ(renameObject(d, {Kind::Text, 0}, "txtHeading").references, 2);
    EXPECT_EQ(d.Buttons[0].captionTextId, "txtHeading");
    EXPECT_EQ(d.Scenes[0].layers[3].objectId, "txtHeading");
    EXPECT_EQ(renameObject(d, {Kind::Font, 0}, "fntBody").references, 1);
    EXPECT_EQ(d.Texts[0].fontId, "fntBody");
    EXPECT_EQ(renameObject(d, {Kind::SFX, 0}, "sfxTap").references, 4);
    EXPECT_EQ(d.Buttons[0].soundUp, "sfxTap");
    EXPECT_EQ(d.Buttons[0].soundDown, "sfxTap");
    EXPECT_EQ(d.Buttons[0].soundOver, "sfxTap");
    EXPECT_EQ(d.Buttons[0].soundDisabled, "sfxTap");
    EXPECT_EQ(renameObject(d, {Kind::Sprite, 0}, "sprPlayer").references, 1);
    EXPECT_EQ(d.Scenes[0].layers[1].objectId, "sprPlayer");
    EXPECT_EQ(renameObject(d, {Kind::Music, 0}, "musIntro").references, 1);
    EXPECT_EQ(d.Scenes[0].layers[4].objectId, "musIntro");
    EXPECT_EQ(renameObject(d, {Kind::Button, 1}, "btnExit").references, 0);
    EXPECT_EQ(d.list(Kind::Button).lines[1].text, "btnExit");
    EXPECT_EQ(renameObject(d, {Kind::Scene, 0}, "scnMenu").references, 0);
    EXPECT_EQ(d.Scenes[0].id, "scnMenu");
}

TEST_F(References, LayerFollowsOnlyWhenItsKindIsTheObjects)
{
    // A music track called like the image keeps its layer when the image is renamed.
    d.Scenes[0].layers[4].objectId = "imgHero";
    renameObject(d, {Kind::Image, 0}, "imgPlayer");
    EXPECT_EQ(d.Scenes[0].layers[4].objectId, "imgHero");
    EXPECT_EQ(d.Scenes[0].layers[0].objectId, "imgPlayer");
}

TEST_F(References, RenameRefusesWithReasons)
{
    const auto refusal = [&](const std::string &id) {
        return renameObject(d, {Kind::Image, 0}, id).refusal.value_or("(accepted)");
    };
    EXPECT_EQ(refusal(""), "The identifier is empty.");
    EXPECT_EQ(refusal("null"), "\"null\" stands for no object and cannot be an identifier.");
    EXPECT_EQ(refusal("imgSky"), "Another image is already called \"imgSky\".");
    EXPECT_EQ(refusal("img\"Hero"),
              "The identifier holds a double quote, which the project file cannot hold.");
    EXPECT_EQ(refusal("img,\"Hero"),
              "The identifier holds a double quote, which the project file cannot hold.");
    EXPECT_EQ(refusal("img\nHero"),
              "The identifier holds a line break, which the project file cannot hold.");
    EXPECT_EQ(refusal("img\r\nHero"),
              "The identifier holds a line break, which the project file cannot hold.");
    EXPECT_EQ(renameObject(d, {Kind::SFX, 0}, "sfxClick2").refusal, std::nullopt);
    listObject(d, Kind::SFX, 1, "sfxBeep");
    EXPECT_EQ(renameObject(d, {Kind::SFX, 0}, "sfxBeep").refusal,
              "Another sound effect is already called \"sfxBeep\".");
    // Refused: nothing changed.
    EXPECT_EQ(d.Images[0].id, "imgHero");
    EXPECT_EQ(d.Buttons[0].templateId, "imgHero");
    // Another kind may hold the name, and the object its own.
    EXPECT_EQ(renameObject(d, {Kind::Image, 0}, "btnPlay").refusal, std::nullopt);
    EXPECT_EQ(renameObject(d, {Kind::Image, 0}, "btnPlay"), (RenameOutcome{std::nullopt, 6}));
}

TEST_F(References, NewObjectIsCalledByItsListLine)
{
    d.Images[1].isNew = -1;
    d.list(Kind::Image).lines[1].text = "New_Object4";
    EXPECT_EQ(objectIdentifier(d, {Kind::Image, 1}), "New_Object4");
    EXPECT_EQ(renameObject(d, {Kind::Image, 0}, "New_Object4").refusal,
              "Another image is already called \"New_Object4\".");
    EXPECT_EQ(renameObject(d, {Kind::Image, 1}, "imgCloud").refusal, std::nullopt);
    EXPECT_EQ(d.list(Kind::Image).lines[1].text, "imgCloud");
    EXPECT_EQ(d.Images[1].id, "imgCloud");
}

TEST_F(References, AnimationRenameTakesTheCurrentAnimationAlong)
{
    EXPECT_EQ(renameAnimation(d, 0, 0, "stroll"), (RenameOutcome{std::nullopt, 1}));
    EXPECT_EQ(d.Sprites[0].anims[0].id, "stroll");
    EXPECT_EQ(d.Sprites[0].currentAnimId, "stroll");
    EXPECT_EQ(renameAnimation(d, 0, 1, "sprint"), (RenameOutcome{std::nullopt, 0}));
    EXPECT_EQ(d.Sprites[0].currentAnimId, "stroll");
    EXPECT_EQ(renameAnimation(d, 0, 1, "stroll").refusal,
              "Another animation of this sprite is already called \"stroll\".");
    EXPECT_EQ(renameAnimation(d, 0, 1, "").refusal, "The identifier is empty.");
}

TEST(FollowingReferences, CaptionCountsTheReferences)
{
    EXPECT_EQ(followingReferencesCaption(0), "No reference will follow");
    EXPECT_EQ(followingReferencesCaption(1), "1 reference will follow");
    EXPECT_EQ(followingReferencesCaption(3), "3 references will follow");
}

TEST(KindWords, NamesAsCheckPrintsThemOrShort)
{
    EXPECT_EQ(kindFromWord("button"), Kind::Button);
    EXPECT_EQ(kindFromWord("music track"), Kind::Music);
    EXPECT_EQ(kindFromWord("music"), Kind::Music);
    EXPECT_EQ(kindFromWord("sound effect"), Kind::SFX);
    EXPECT_EQ(kindFromWord("sfx"), Kind::SFX);
    EXPECT_EQ(kindFromWord("scene"), Kind::Scene);
    EXPECT_EQ(kindFromWord("Button"), std::nullopt);
    EXPECT_EQ(kindFromWord("animation"), std::nullopt);
}

TEST_F(References, FindMatchesPartsOfIdentifiersWithoutCase)
{
    const auto lines = [&](const std::string &part) {
        Lines out;
        for (const FoundObject &found : findObjects(d, part))
            out.push_back(found.line);
        return out;
    };
    EXPECT_EQ(lines("hero"), (Lines{"Image \"imgHero\"", "Sprite \"sprHero\""}));
    EXPECT_EQ(lines("PLAY"), (Lines{"Button \"btnPlay\""}));
    EXPECT_EQ(lines("TITLE"), (Lines{"Text \"txtTitle\"", "Scene \"scnTitle\""}));
    EXPECT_EQ(lines("m"),
              (Lines{"Image \"imgHero\"",
                     "Image \"imgSky\"",
                     "Font \"fntMain\"",
                     "Music track \"musTheme\""}));
    EXPECT_EQ(lines("zzz"), Lines{});
    EXPECT_EQ(lines(""), Lines{});
    const std::vector<FoundObject> found = findObjects(d, "sky");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].object, (ObjectRef{Kind::Image, 1}));
}

} // namespace
} // namespace vorlane
