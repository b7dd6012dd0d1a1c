#include "rules/SceneRules.h"

#include "model/Kinds.h"
#include "rules/EditorHandBack.h"
#include "rules/ObjectManagement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vorlane {
namespace {

std::unique_ptr<Document> newProject()
{
    auto doc = makeDocument();
    setUpNewProject(*doc, "My Project");
    return doc;
}

std::vector<std::string> texts(const LayerList &layers)
{
    std::vector<std::string> result;
    for (const ListLine &line : layers.lines)
        result.push_back(line.text);
    return result;
}

std::vector<int> slots(const LayerList &layers)
{
    std::vector<int> result;
    for (const ListLine &line : layers.lines)
        result.push_back(line.slot);
    return result;
}

// Adds an object of `kind` and gives it, and its list line, the state they have once the
// object was opened in its editor.
void addOpened(Document &doc, Kind kind, const std::string &id)
{
    const AddResult added = addObject(doc, kind);
    const SlotView view = slotOf(doc, kind, added.slot);
    view.inUse = -1;
    view.isNew = 0;
    view.id = id;
    handBackToList(doc, kind, id);
}

// A scene with layers in `usedSlots`, each named "L" + its slot, as the editor opens it.
SceneRec sceneWithLayers(const std::vector<int> &usedSlots)
{
    SceneRec scene;
    scene.inUse = -1;
    for (int slot : usedSlots) {
        LayerRec &layer = scene.layers[static_cast<size_t>(slot)];
        layer.inUse = -1;
        layer.objectKind = 2;
        layer.objectId = "L" + std::to_string(slot);
    }
    scene.layerCount = static_cast<int16_t>(usedSlots.size());
    return scene;
}

TEST(SceneRules, LayerKindsInTheOrderOfTheKindBox)
{
    ASSERT_EQ(LayerKinds.size(), 5u);
    EXPECT_STREQ(LayerKinds[0].caption, "Texts");
    EXPECT_STREQ(LayerKinds[1].caption, "Sprites");
    EXPECT_STREQ(LayerKinds[2].caption, "Images");
    EXPECT_STREQ(LayerKinds[3].caption, "Buttons");
    EXPECT_STREQ(LayerKinds[4].caption, "Music");
    EXPECT_EQ(layerObjectKind(1), Kind::Text);
    EXPECT_EQ(layerObjectKind(2), Kind::Sprite);
    EXPECT_EQ(layerObjectKind(3), Kind::Image);
    EXPECT_EQ(layerObjectKind(4), Kind::Button);
    EXPECT_EQ(layerObjectKind(5), Kind::Music);
    EXPECT_EQ(layerObjectKind(0), std::nullopt);
    EXPECT_EQ(layerObjectKind(6), std::nullopt);
    EXPECT_EQ(layerObjectKind(-1), std::nullopt);
}

TEST(SceneRules, LayerTypeCaptionIsTheKindBoxEntry)
{
    EXPECT_EQ(layerTypeCaption(1), "Texts");
    EXPECT_EQ(layerTypeCaption(2), "Sprites");
    EXPECT_EQ(layerTypeCaption(3), "Images");
    EXPECT_EQ(layerTypeCaption(4), "Buttons");
    EXPECT_EQ(layerTypeCaption(5), "Music");
    EXPECT_EQ(layerTypeCaption(0), "");
    EXPECT_EQ(layerTypeCaption(7), "");
}

TEST(SceneRules, ChoiceOffersThatKindsObjectsInListOrderWithoutNewOnes)
{
    auto doc = newProject();
    addOpened(*doc, Kind::Text, "txtTitle");
    addObject(*doc, Kind::Text); // never opened
    addOpened(*doc, Kind::Text, "txtScore");
    addOpened(*doc, Kind::Sprite, "sprHero");
    addOpened(*doc, Kind::Image, "imgSky");
    addOpened(*doc, Kind::Button, "btnStart");
    addOpened(*doc, Kind::Music, "musTheme");
    addOpened(*doc, Kind::Cursor, "curHand");
    // List order, not slot order: move the score text in front of the title.
    std::swap(doc->list(Kind::Text).lines[0], doc->list(Kind::Text).lines[2]);

    EXPECT_EQ(layerObjectChoices(*doc, 0), (std::vector<std::string>{"txtScore", "txtTitle"}));
    EXPECT_EQ(layerObjectChoices(*doc, 1), std::vector<std::string>{"sprHero"});
    EXPECT_EQ(layerObjectChoices(*doc, 2), std::vector<std::string>{"imgSky"});
    EXPECT_EQ(layerObjectChoices(*doc, 3), std::vector<std::string>{"btnStart"});
    EXPECT_EQ(layerObjectChoices(*doc, 4), std::vector<std::string>{"musTheme"});
    EXPECT_TRUE(layerObjectChoices(*doc, -1).empty());
    EXPECT_TRUE(layerObjectChoices(*doc, 5).empty());
}

TEST(SceneRules, NewSceneDefaultsKeepLeftOverLayers)
{
    SceneRec scene = sceneWithLayers({0, 3, 100});
    scene.useCursor = 0;
    scene.useMusic = 0;
    setSceneDefaults(scene);
    EXPECT_EQ(scene.useCursor, 1);
    EXPECT_EQ(scene.useMusic, 1);
    EXPECT_EQ(scene.layerCount, 0);
    EXPECT_EQ(scene.layers[0].inUse, -1);
    EXPECT_EQ(scene.layers[3].inUse, -1);
    EXPECT_EQ(scene.layers[100].inUse, -1);
    EXPECT_EQ(scene.layers[1].inUse, 0);
    EXPECT_EQ(scene.layers[3].objectId, "L3");
    // With a layer count of 0 the editor lists none of them.
    EXPECT_TRUE(sceneLayerList(scene).lines.empty());

    // The leftovers keep their slots: a new layer takes the first slot after them.
    LayerList layers = sceneLayerList(scene);
    int16_t overflow = 0;
    const LayerAddResult added = addLayer(scene, overflow, layers, 1, "txtTitle");
    EXPECT_EQ(added.slot, 1);
    EXPECT_EQ(slots(layers), std::vector<int>{1});
    EXPECT_EQ(overflow, 0);
}

TEST(SceneRules, OpeningListsUsedLayersInSlotOrder)
{
    const SceneRec scene = sceneWithLayers({7, 2, 100, 0});
    const LayerList layers = sceneLayerList(scene);
    EXPECT_EQ(texts(layers), (std::vector<std::string>{"L0", "L2", "L7", "L100"}));
    EXPECT_EQ(slots(layers), (std::vector<int>{0, 2, 7, 100}));
    EXPECT_EQ(layers.selected, -1);
}

TEST(SceneRules, OpeningWithNoLayerCountListsNothing)
{
    SceneRec scene = sceneWithLayers({0, 1});
    scene.layerCount = 0;
    EXPECT_TRUE(sceneLayerList(scene).lines.empty());
    scene.layerCount = -3;
    EXPECT_TRUE(sceneLayerList(scene).lines.empty());
    scene.layerCount = 1; // at least 1: every used slot, whatever the count says
    EXPECT_EQ(slots(sceneLayerList(scene)), (std::vector<int>{0, 1}));
}

TEST(SceneRules, AddTakesTheFirstFreeLayerSlotAndSelectsTheLine)
{
    SceneRec scene = sceneWithLayers({0, 1, 3});
    LayerList layers = sceneLayerList(scene);
    int16_t overflow = 0;
    const LayerAddResult added = addLayer(scene, overflow, layers, 4, "btnStart");
    EXPECT_FALSE(added.refusal.has_value());
    EXPECT_EQ(added.slot, 2);
    EXPECT_EQ(scene.layers[2].inUse, -1);
    EXPECT_EQ(scene.layers[2].objectKind, 4);
    EXPECT_EQ(scene.layers[2].objectId, "btnStart");
    EXPECT_EQ(texts(layers), (std::vector<std::string>{"L0", "L1", "L3", "btnStart"}));
    EXPECT_EQ(slots(layers), (std::vector<int>{0, 1, 3, 2}));
    EXPECT_EQ(layers.selected, 3);
    EXPECT_EQ(scene.layerCount, 3); // set when the editor closes
    EXPECT_EQ(overflow, 0);
}

TEST(SceneRules, HundredFirstLayerIsRefused)
{
    std::vector<int> used;
    for (int slot = 0; slot < 100; ++slot)
        used.push_back(slot);
    SceneRec scene = sceneWithLayers(used);
    LayerList layers = sceneLayerList(scene);
    ASSERT_EQ(layers.lines.size(), 100u);
    layers.selected = 5;
    int16_t overflow = 0;
    const LayerAddResult added = addLayer(scene, overflow, layers, 1, "txtTitle");
    ASSERT_TRUE(added.refusal.has_value());
    EXPECT_EQ(added.refusal->text, "No space left for Layers! (Max 100)");
    EXPECT_EQ(added.refusal->title, "Object Overload");
    EXPECT_EQ(added.refusal->icon, MessageIcon::Critical);
    EXPECT_EQ(added.refusal->buttons, MessageButtons::OK);
    EXPECT_EQ(layers.lines.size(), 100u);
    EXPECT_EQ(layers.selected, 5);
    EXPECT_EQ(scene.layers[100].inUse, 0);
    EXPECT_EQ(overflow, 0);
}

TEST(SceneRules, LastLayerSlotFoundFallsBackToTheOverflowCounter)
{
    std::vector<int> used;
    for (int slot = 0; slot < 100; ++slot)
        used.push_back(slot);
    SceneRec scene = sceneWithLayers(used);
    LayerList layers; // fewer lines than used slots: the list does not stop the add
    int16_t overflow = 4;
    const LayerAddResult added = addLayer(scene, overflow, layers, 3, "imgSky");
    EXPECT_FALSE(added.refusal.has_value());
    EXPECT_EQ(added.slot, 4);
    EXPECT_EQ(overflow, 5);
    // Both the slot the scan stopped at and the counter's slot hold the layer.
    EXPECT_EQ(scene.layers[100].inUse, -1);
    EXPECT_EQ(scene.layers[100].objectId, "imgSky");
    EXPECT_EQ(scene.layers[100].objectKind, 3);
    EXPECT_EQ(scene.layers[4].inUse, -1);
    EXPECT_EQ(scene.layers[4].objectId, "imgSky");
    EXPECT_EQ(scene.layers[4].objectKind, 3);
    EXPECT_EQ(slots(layers), std::vector<int>{4});
    EXPECT_EQ(layers.selected, 0);
}

TEST(SceneRules, NoFreeLayerSlotTakesTheCountersSlot)
{
    std::vector<int> used;
    for (int slot = 0; slot <= 100; ++slot)
        used.push_back(slot);
    SceneRec scene = sceneWithLayers(used);
    LayerList layers;
    int16_t overflow = 0;
    const LayerAddResult added = addLayer(scene, overflow, layers, 5, "musTheme");
    EXPECT_EQ(added.slot, 0);
    EXPECT_EQ(scene.layers[0].objectId, "musTheme");
    EXPECT_EQ(scene.layers[0].objectKind, 5);
    EXPECT_EQ(scene.layers[1].objectId, "L1");
    EXPECT_EQ(overflow, 1);
}

TEST(SceneRules, OverflowCounterPastTheTableIsRefused)
{
    std::vector<int> used;
    for (int slot = 0; slot <= 100; ++slot)
        used.push_back(slot);
    SceneRec scene = sceneWithLayers(used);
    LayerList layers;
    int16_t overflow = 101;
    const LayerAddResult added = addLayer(scene, overflow, layers, 1, "txtTitle");
    ASSERT_TRUE(added.refusal.has_value());
    EXPECT_EQ(added.refusal->text, "No space left for Layers! (Max 100)");
    EXPECT_EQ(added.refusal->title, "Object Overload");
    EXPECT_TRUE(layers.lines.empty());
    EXPECT_EQ(overflow, 101);
    EXPECT_EQ(scene.layers[100].objectId, "L100");
}

TEST(SceneRules, DeletingTheLastOfThreeSelectsTheNewLast)
{
    SceneRec scene = sceneWithLayers({0, 1, 2});
    LayerList layers = sceneLayerList(scene);
    layers.selected = 2;
    ASSERT_TRUE(deleteLayer(scene, layers));
    EXPECT_EQ(texts(layers), (std::vector<std::string>{"L0", "L1"}));
    EXPECT_EQ(layers.selected, 1);
    EXPECT_EQ(scene.layers[2].inUse, 0);
    EXPECT_EQ(scene.layers[2].objectKind, 2); // kind and id stay
    EXPECT_EQ(scene.layers[2].objectId, "L2");
    EXPECT_EQ(buttonsAfterDelete(layers), LayerButtons{});
}

TEST(SceneRules, DeletingAMiddleLineSelectsTheLineAtItsPlace)
{
    SceneRec scene = sceneWithLayers({0, 4, 9});
    LayerList layers = sceneLayerList(scene);
    layers.selected = 1;
    ASSERT_TRUE(deleteLayer(scene, layers));
    EXPECT_EQ(slots(layers), (std::vector<int>{0, 9}));
    EXPECT_EQ(layers.selected, 1);
    EXPECT_EQ(scene.layers[4].inUse, 0);
    EXPECT_EQ(scene.layers[9].inUse, -1);
}

TEST(SceneRules, DeletingFreesTheSlotOfTheLineNotOfItsPosition)
{
    SceneRec scene = sceneWithLayers({0, 1});
    LayerList layers = sceneLayerList(scene);
    layers.selected = 0;
    ASSERT_TRUE(moveLayerDown(layers));
    ASSERT_EQ(slots(layers), (std::vector<int>{1, 0}));
    layers.selected = 0;
    ASSERT_TRUE(deleteLayer(scene, layers));
    EXPECT_EQ(scene.layers[1].inUse, 0);
    EXPECT_EQ(scene.layers[0].inUse, -1);
    EXPECT_EQ(slots(layers), std::vector<int>{0});
}

TEST(SceneRules, DeletingTheOnlyLayerTurnsAllFourButtonsOff)
{
    SceneRec scene = sceneWithLayers({5});
    LayerList layers = sceneLayerList(scene);
    layers.selected = 0;
    ASSERT_TRUE(deleteLayer(scene, layers));
    EXPECT_TRUE(layers.lines.empty());
    EXPECT_EQ(layers.selected, -1);
    EXPECT_EQ(buttonsAfterDelete(layers), (LayerButtons{false, false, false, false}));
}

TEST(SceneRules, DeleteWithNoSelectedLineChangesNothing)
{
    SceneRec scene = sceneWithLayers({0, 1});
    LayerList layers = sceneLayerList(scene);
    EXPECT_FALSE(deleteLayer(scene, layers));
    EXPECT_EQ(slots(layers), (std::vector<int>{0, 1}));
    EXPECT_EQ(scene.layers[0].inUse, -1);
    EXPECT_EQ(scene.layers[1].inUse, -1);

    LayerList empty;
    empty.selected = 0;
    EXPECT_FALSE(deleteLayer(scene, empty));
}

TEST(SceneRules, UpExchangesTheLinesOnlyAndReselects)
{
    SceneRec scene = sceneWithLayers({0, 1, 2});
    LayerList layers = sceneLayerList(scene);
    layers.selected = 1;
    ASSERT_TRUE(moveLayerUp(layers));
    EXPECT_EQ(texts(layers), (std::vector<std::string>{"L1", "L0", "L2"}));
    EXPECT_EQ(slots(layers), (std::vector<int>{1, 0, 2}));
    EXPECT_EQ(layers.selected, 0);
    // The records stay where they were.
    EXPECT_EQ(scene.layers[0].objectId, "L0");
    EXPECT_EQ(scene.layers[1].objectId, "L1");
    EXPECT_EQ(scene.layers[0].inUse, -1);
    EXPECT_EQ(scene.layers[1].inUse, -1);
}

TEST(SceneRules, DownExchangesWithTheLineBelow)
{
    LayerList layers = sceneLayerList(sceneWithLayers({0, 1, 2}));
    layers.selected = 0;
    ASSERT_TRUE(moveLayerDown(layers));
    ASSERT_TRUE(moveLayerDown(layers));
    EXPECT_EQ(slots(layers), (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(layers.selected, 2);
}

TEST(SceneRules, MovesPastTheEndsOrWithoutSelectionChangeNothing)
{
    LayerList layers = sceneLayerList(sceneWithLayers({0, 1}));
    EXPECT_FALSE(moveLayerUp(layers));
    EXPECT_FALSE(moveLayerDown(layers));
    layers.selected = 0;
    EXPECT_FALSE(moveLayerUp(layers));
    layers.selected = 1;
    EXPECT_FALSE(moveLayerDown(layers));
    EXPECT_EQ(slots(layers), (std::vector<int>{0, 1}));
    EXPECT_EQ(layers.selected, 1);
}

TEST(SceneRules, ButtonsOnOpening)
{
    EXPECT_EQ(buttonsAfterLoad(sceneLayerList(sceneWithLayers({}))), LayerButtons{});
    LayerButtons one;
    one.remove = true;
    EXPECT_EQ(buttonsAfterLoad(sceneLayerList(sceneWithLayers({3}))), one);
    LayerButtons two;
    two.remove = true;
    two.up = true;
    two.down = true;
    EXPECT_EQ(buttonsAfterLoad(sceneLayerList(sceneWithLayers({3, 4}))), two);
}

TEST(SceneRules, ButtonsAfterAdd)
{
    SceneRec scene;
    LayerList layers;
    int16_t overflow = 0;
    addLayer(scene, overflow, layers, 1, "a");
    LayerButtons first;
    first.remove = true;
    EXPECT_EQ(buttonsAfterAdd(layers), first);
    addLayer(scene, overflow, layers, 1, "b");
    LayerButtons second;
    second.remove = true;
    second.down = true;
    second.up = true;
    EXPECT_EQ(buttonsAfterAdd(layers), second);
}

TEST(SceneRules, ButtonsAfterSelectionFollowTheSelectedLine)
{
    LayerList layers = sceneLayerList(sceneWithLayers({0, 1, 2}));
    LayerButtons none;
    none.up = false;
    none.down = false;
    EXPECT_EQ(buttonsAfterSelection(layers), none);
    layers.selected = 0;
    LayerButtons first;
    first.up = false;
    first.down = true;
    EXPECT_EQ(buttonsAfterSelection(layers), first);
    layers.selected = 1;
    LayerButtons middle;
    middle.up = true;
    middle.down = true;
    EXPECT_EQ(buttonsAfterSelection(layers), middle);
    layers.selected = 2;
    LayerButtons last;
    last.up = true;
    last.down = false;
    EXPECT_EQ(buttonsAfterSelection(layers), last);

    LayerList single = sceneLayerList(sceneWithLayers({6}));
    single.selected = 0;
    EXPECT_EQ(buttonsAfterSelection(single), none);
}

} // namespace
} // namespace vorlane
