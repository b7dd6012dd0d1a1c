#include "rules/ObjectManagement.h"

#include "model/Kinds.h"
#include "rules/QuickStats.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

std::unique_ptr<Document> newProject()
{
    auto doc = makeDocument();
    setUpNewProject(*doc, "My Project");
    return doc;
}

std::vector<std::string> texts(const ObjectList &list)
{
    std::vector<std::string> result;
    for (const ListLine &line : list.lines)
        result.push_back(line.text);
    return result;
}

std::vector<int> slots(const ObjectList &list)
{
    std::vector<int> result;
    for (const ListLine &line : list.lines)
        result.push_back(line.slot);
    return result;
}

TEST(ObjectManagement, AddsNumberNewObjectsAcrossKinds)
{
    auto doc = newProject();
    for (int i = 0; i < 3; ++i) {
        const AddResult added = addObject(*doc, Kind::Button);
        EXPECT_FALSE(added.refusal.has_value());
        EXPECT_EQ(added.slot, i);
        EXPECT_EQ(added.line, i);
        EXPECT_EQ(doc->list(Kind::Button).selected, i);
    }
    const ObjectList &buttons = doc->list(Kind::Button);
    EXPECT_EQ(texts(buttons),
              (std::vector<std::string>{"New_Object0", "New_Object1", "New_Object2"}));
    EXPECT_EQ(slots(buttons), (std::vector<int>{0, 1, 2}));
    for (size_t slot = 0; slot < 3; ++slot) {
        EXPECT_EQ(doc->Buttons[slot].isNew, -1);
        EXPECT_EQ(doc->Buttons[slot].inUse, 0);
    }
    EXPECT_EQ(doc->Buttons[3].isNew, 0);

    const AddResult image = addObject(*doc, Kind::Image);
    EXPECT_EQ(image.slot, 0);
    EXPECT_EQ(texts(doc->list(Kind::Image)), (std::vector<std::string>{"New_Object3"}));
    EXPECT_EQ(slots(doc->list(Kind::Image)), (std::vector<int>{0}));
    EXPECT_EQ(doc->list(Kind::Image).selected, 0);
    EXPECT_EQ(doc->newObjectCounter, 4);
    EXPECT_EQ(doc->objectCount(Kind::Button), 0);
    EXPECT_EQ(doc->objectCount(Kind::Image), 0);
}

TEST(ObjectManagement, AddedObjectIsCoveredUntilEdited)
{
    auto doc = newProject();
    const AddResult added = addObject(*doc, Kind::Sprite);
    EXPECT_TRUE(statsFor(*doc, Kind::Sprite, added.slot).cover);
}

TEST(ObjectManagement, AddTakesTheFirstFreeSlot)
{
    auto doc = newProject();
    doc->Texts[0].inUse = -1; // live
    doc->Texts[1].isNew = -1; // reserved
    doc->Texts[3].inUse = -1;
    const AddResult added = addObject(*doc, Kind::Text);
    EXPECT_EQ(added.slot, 2);
    EXPECT_EQ(doc->Texts[2].isNew, -1);
    EXPECT_EQ(doc->list(Kind::Text).lines.back().slot, 2);
}

TEST(ObjectManagement, FullListIsRefusedWithTheKindsMessage)
{
    auto doc = newProject();
    for (int i = 0; i < 100; ++i)
        ASSERT_FALSE(addObject(*doc, Kind::Button).refusal.has_value()) << i;
    ASSERT_EQ(doc->list(Kind::Button).lines.size(), 100u);
    const int16_t counter = doc->newObjectCounter;
    const AddResult refused = addObject(*doc, Kind::Button);
    ASSERT_TRUE(refused.refusal.has_value());
    EXPECT_EQ(refused.refusal->text, "No space left for buttons! (Max 100)");
    EXPECT_EQ(refused.refusal->title, "Object Overload");
    EXPECT_EQ(refused.refusal->icon, MessageIcon::Critical);
    EXPECT_EQ(refused.refusal->buttons, MessageButtons::OK);
    EXPECT_EQ(doc->list(Kind::Button).lines.size(), 100u);
    EXPECT_EQ(doc->list(Kind::Button).selected, 99);
    EXPECT_EQ(doc->newObjectCounter, counter);
    EXPECT_EQ(doc->Buttons[100].isNew, 0);
}

TEST(ObjectManagement, CursorMessageHasItsMarkAfterTheParenthesis)
{
    auto doc = newProject();
    for (int i = 0; i < 25; ++i)
        ASSERT_FALSE(addObject(*doc, Kind::Cursor).refusal.has_value()) << i;
    const AddResult refused = addObject(*doc, Kind::Cursor);
    ASSERT_TRUE(refused.refusal.has_value());
    EXPECT_EQ(refused.refusal->text, "No space left for cursors (Max 25)!");
    EXPECT_EQ(refused.refusal->title, "Object Overload");
}

TEST(ObjectManagement, OverloadMessagesOfEveryKind)
{
    const std::pair<Kind, const char *> messages[] = {
        {Kind::Button, "No space left for buttons! (Max 100)"},
        {Kind::Cursor, "No space left for cursors (Max 25)!"},
        {Kind::Image, "No space left for images! (Max 200)"},
        {Kind::Text, "No space left for texts! (Max 200)"},
        {Kind::Font, "No space left for fonts! (Max 25)"},
        {Kind::Music, "No space left for music! (Max 100)"},
        {Kind::SFX, "No space left for sfx! (Max 200)"},
        {Kind::Sprite, "No space left for sprites! (Max 200)"},
        {Kind::Scene, "No space left for scenes! (Max 100)"},
    };
    for (const auto &[kind, text] : messages) {
        auto doc = newProject();
        doc->list(kind).lines.resize(static_cast<size_t>(kindInfo(kind).lastSlot));
        const AddResult refused = addObject(*doc, kind);
        ASSERT_TRUE(refused.refusal.has_value()) << text;
        EXPECT_EQ(refused.refusal->text, text);
        EXPECT_EQ(objectOverloadMessage(kind).text, text);
        EXPECT_EQ(refused.refusal->title, "Object Overload");
    }
}

TEST(ObjectManagement, LastSlotFoundFallsBackToTheObjectCount)
{
    auto doc = newProject();
    for (size_t slot = 0; slot < 25; ++slot)
        doc->Fonts[slot].inUse = -1; // live fonts whose lines are not in the list
    doc->objectCount(Kind::Font) = 7;
    const AddResult added = addObject(*doc, Kind::Font);
    EXPECT_FALSE(added.refusal.has_value());
    EXPECT_EQ(added.slot, 7);
    EXPECT_EQ(doc->Fonts[7].isNew, -1);
    EXPECT_EQ(doc->Fonts[7].inUse, -1);  // the fallback does not look at the slot's state
    EXPECT_EQ(doc->Fonts[25].isNew, -1); // the slot the scan stopped at stays reserved
    EXPECT_EQ(doc->objectCount(Kind::Font), 8);
    EXPECT_EQ(slots(doc->list(Kind::Font)), (std::vector<int>{7}));
}

TEST(ObjectManagement, NoFreeSlotFallsBackToTheObjectCount)
{
    auto doc = newProject();
    for (auto &font : doc->Fonts)
        font.isNew = -1;
    doc->objectCount(Kind::Font) = 25;
    const AddResult added = addObject(*doc, Kind::Font);
    EXPECT_EQ(added.slot, 25);
    EXPECT_EQ(doc->objectCount(Kind::Font), 26);
    EXPECT_EQ(texts(doc->list(Kind::Font)), (std::vector<std::string>{"New_Object0"}));
}

TEST(ObjectManagement, ObjectCountPastTheTableIsRefused)
{
    auto doc = newProject();
    for (auto &font : doc->Fonts)
        font.isNew = -1;
    doc->Fonts[25].isNew = 0; // the scan stops at the last index
    doc->objectCount(Kind::Font) = 26;
    const AddResult refused = addObject(*doc, Kind::Font);
    ASSERT_TRUE(refused.refusal.has_value());
    EXPECT_EQ(refused.refusal->text, "No space left for fonts! (Max 25)");
    EXPECT_EQ(refused.refusal->title, "Object Overload");
    EXPECT_EQ(doc->Fonts[25].isNew, 0);
    EXPECT_EQ(doc->objectCount(Kind::Font), 26);
    EXPECT_TRUE(doc->list(Kind::Font).lines.empty());
    EXPECT_EQ(doc->newObjectCounter, 0);

    doc->objectCount(Kind::Font) = -1;
    EXPECT_TRUE(addObject(*doc, Kind::Font).refusal.has_value());
    EXPECT_EQ(doc->Fonts[25].isNew, 0);
}

TEST(ObjectManagement, RemovingTheOnlyObjectEmptiesTheList)
{
    auto doc = newProject();
    addObject(*doc, Kind::Scene);
    doc->Scenes[0].inUse = -1;
    doc->Scenes[0].isNew = 0;
    const RemoveResult removed = removeObject(*doc, Kind::Scene);
    EXPECT_TRUE(removed.removed);
    EXPECT_EQ(removed.slot, 0);
    EXPECT_TRUE(removed.listEmpty);
    EXPECT_TRUE(doc->list(Kind::Scene).lines.empty());
    EXPECT_EQ(doc->list(Kind::Scene).selected, -1);
    EXPECT_EQ(doc->Scenes[0].inUse, 0);
    EXPECT_EQ(doc->Scenes[0].isNew, 0);
    EXPECT_EQ(doc->newObjectCounter, 1);
}

TEST(ObjectManagement, RemovingAReservedObjectFreesItsSlot)
{
    auto doc = newProject();
    addObject(*doc, Kind::Music);
    ASSERT_EQ(doc->MusicTracks[0].isNew, -1);
    removeObject(*doc, Kind::Music);
    EXPECT_EQ(doc->MusicTracks[0].isNew, 0);
    EXPECT_EQ(addObject(*doc, Kind::Music).slot, 0);
}

TEST(ObjectManagement, RemovingSlotZeroFirstOfThreeSelectsTheNewFirstLine)
{
    auto doc = newProject();
    for (int i = 0; i < 3; ++i)
        addObject(*doc, Kind::Button);
    ObjectList &list = doc->list(Kind::Button);
    list.selected = 0;
    const RemoveResult removed = removeObject(*doc, Kind::Button);
    EXPECT_TRUE(removed.removed);
    EXPECT_EQ(removed.slot, 0);
    EXPECT_FALSE(removed.listEmpty);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"New_Object1", "New_Object2"}));
    EXPECT_EQ(list.selected, 0);
    EXPECT_EQ(doc->Buttons[0].isNew, 0);
    EXPECT_EQ(doc->Buttons[1].isNew, -1);
}

TEST(ObjectManagement, RemovingTheLastLineSelectsTheOneAbove)
{
    auto doc = newProject();
    for (int i = 0; i < 3; ++i)
        addObject(*doc, Kind::Button);
    ObjectList &list = doc->list(Kind::Button);
    ASSERT_EQ(list.selected, 2);
    removeObject(*doc, Kind::Button);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"New_Object0", "New_Object1"}));
    EXPECT_EQ(list.selected, 1);
}

TEST(ObjectManagement, RemoveTakesTheLineAtTheSlotsPosition)
{
    auto doc = newProject();
    for (int i = 0; i < 4; ++i)
        addObject(*doc, Kind::Image);
    ObjectList &list = doc->list(Kind::Image);
    list.selected = 0;
    removeObject(*doc, Kind::Image); // lines now hold slots 1, 2, 3
    ASSERT_EQ(slots(list), (std::vector<int>{1, 2, 3}));

    // The first line holds slot 1: slot 1 is freed, but line 1 (slot 2) disappears.
    list.selected = 0;
    const RemoveResult removed = removeObject(*doc, Kind::Image);
    EXPECT_EQ(removed.slot, 1);
    EXPECT_EQ(doc->Images[1].isNew, 0);
    EXPECT_EQ(doc->Images[2].isNew, -1);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"New_Object1", "New_Object3"}));
    EXPECT_EQ(slots(list), (std::vector<int>{1, 3}));
    EXPECT_EQ(list.selected, 1);
}

TEST(ObjectManagement, RemoveWithNoLineAtTheSlotsPositionTakesTheSelectedLine)
{
    auto doc = newProject();
    for (int i = 0; i < 3; ++i)
        addObject(*doc, Kind::Text);
    ObjectList &list = doc->list(Kind::Text);
    list.selected = 1;
    removeObject(*doc, Kind::Text); // lines now hold slots 0 and 2
    ASSERT_EQ(slots(list), (std::vector<int>{0, 2}));

    list.selected = 1; // slot 2, but there is no line 2
    const RemoveResult removed = removeObject(*doc, Kind::Text);
    EXPECT_TRUE(removed.removed);
    EXPECT_EQ(removed.slot, 2);
    EXPECT_FALSE(removed.listEmpty);
    EXPECT_EQ(doc->Texts[2].isNew, 0);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"New_Object0"}));
    EXPECT_EQ(list.selected, 0);
}

TEST(ObjectManagement, RemoveFallbackKeepsTheSelectionInPlace)
{
    auto doc = newProject();
    ObjectList &list = doc->list(Kind::Sprite);
    list.lines = {{"a", 0}, {"b", 9}, {"c", 1}};
    list.selected = 1;
    removeObject(*doc, Kind::Sprite);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(list.selected, 1);
}

TEST(ObjectManagement, RemoveWithNoSelectionChangesNothing)
{
    auto doc = newProject();
    addObject(*doc, Kind::Cursor);
    ObjectList &list = doc->list(Kind::Cursor);
    list.selected = -1;
    const RemoveResult removed = removeObject(*doc, Kind::Cursor);
    EXPECT_FALSE(removed.removed);
    EXPECT_FALSE(removed.listEmpty);
    EXPECT_EQ(list.lines.size(), 1u);
    EXPECT_EQ(doc->Cursors[0].isNew, -1);

    list.selected = 5; // past the end
    EXPECT_FALSE(removeObject(*doc, Kind::Cursor).removed);
    EXPECT_EQ(list.lines.size(), 1u);

    const RemoveResult onEmpty = removeObject(*doc, Kind::Font);
    EXPECT_FALSE(onEmpty.removed);
    EXPECT_TRUE(onEmpty.listEmpty);
}

TEST(ObjectManagement, RemovingAnImageLeavesReferencesToIt)
{
    auto doc = newProject();
    addObject(*doc, Kind::Image);
    doc->Images[0].inUse = -1;
    doc->Images[0].isNew = 0;
    doc->Images[0].id = "imgHero";
    doc->list(Kind::Image).lines[0].text = "imgHero";
    doc->Sprites[0].inUse = -1;
    doc->Sprites[0].imageId = "imgHero";
    doc->Buttons[0].cursorId = "curHand";

    removeObject(*doc, Kind::Image);
    EXPECT_EQ(doc->Sprites[0].imageId, "imgHero");
    EXPECT_EQ(doc->Images[0].id, "imgHero"); // only the flags are cleared
    EXPECT_EQ(doc->Images[0].inUse, 0);
    EXPECT_EQ(doc->objectCount(Kind::Image), 0);
}

TEST(ObjectManagement, EditMakesTheSelectedObjectCurrent)
{
    auto doc = newProject();
    for (int i = 0; i < 3; ++i)
        addObject(*doc, Kind::SFX);
    doc->list(Kind::SFX).selected = 0;
    removeObject(*doc, Kind::SFX); // lines hold slots 1 and 2
    doc->list(Kind::SFX).selected = 1;
    doc->currentObjectIndex = 0;
    EXPECT_EQ(editObject(*doc, Kind::SFX), std::optional<int16_t>(2));
    EXPECT_EQ(doc->currentObjectIndex, 2);
}

TEST(ObjectManagement, EditOnAnEmptyListOrWithoutSelectionOpensNothing)
{
    auto doc = newProject();
    doc->currentObjectIndex = 4;
    EXPECT_FALSE(editObject(*doc, Kind::Button).has_value());
    EXPECT_EQ(doc->currentObjectIndex, 4);

    addObject(*doc, Kind::Button);
    doc->list(Kind::Button).selected = -1;
    EXPECT_FALSE(editObject(*doc, Kind::Button).has_value());
    EXPECT_EQ(doc->currentObjectIndex, 4);
}

} // namespace
} // namespace vorlane
