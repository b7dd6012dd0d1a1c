#include "rules/ButtonFieldRules.h"

#include "rules/FieldRules.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(ButtonFieldRules, NewButtonDefaults)
{
    ButtonRec button;
    button.isNew = -1;
    button.id = "New_Object0";
    button.templateId = "left over";
    button.frameOver = 9;
    ASSERT_TRUE(applyNewRecordDefaults(button, setButtonDefaults));
    EXPECT_EQ(button.id, "Enter_ID");
    for (const std::string *reference : {&button.templateId,
                                         &button.iconId,
                                         &button.captionTextId,
                                         &button.cursorId,
                                         &button.soundUp,
                                         &button.soundOver,
                                         &button.soundDown,
                                         &button.soundDisabled})
        EXPECT_EQ(*reference, "null");
    EXPECT_EQ(button.x, 0);
    EXPECT_EQ(button.y, 0);
    EXPECT_EQ(button.isHotSpot, 0);
    EXPECT_EQ(button.templateRows, 0);
    EXPECT_EQ(button.templateColumns, 0);
    EXPECT_EQ(button.hotSpotWidth, 0);
    EXPECT_EQ(button.hotSpotHeight, 0);
    EXPECT_EQ(button.frameUp, 1);
    EXPECT_EQ(button.frameOver, 0);
    EXPECT_EQ(button.frameDown, 0);
    EXPECT_EQ(button.frameDisabled, 0);
    EXPECT_EQ(button.currentFrame, 1);
    EXPECT_EQ(button.visible, 1);
    EXPECT_EQ(button.iconVisible, 1);
    EXPECT_EQ(button.captionVisible, 1);
    EXPECT_EQ(button.isNew, 0);
    EXPECT_EQ(button.inUse, -1);
}

TEST(ButtonFieldRules, ChosenStateSearchesDisabledDownUpOver)
{
    ButtonRec button;
    setButtonDefaults(button);
    EXPECT_EQ(chosenState(button), ButtonState::Up);

    button.frameUp = 3;
    button.frameOver = 3;
    button.currentFrame = 3;
    EXPECT_EQ(chosenState(button), ButtonState::Up);
    button.frameDown = 3;
    EXPECT_EQ(chosenState(button), ButtonState::Down);
    button.frameDisabled = 3;
    EXPECT_EQ(chosenState(button), ButtonState::Disabled);

    button.frameOver = 5;
    button.frameUp = 1;
    button.frameDown = 1;
    button.frameDisabled = 1;
    button.currentFrame = 5;
    EXPECT_EQ(chosenState(button), ButtonState::Over);
    button.currentFrame = 8;
    EXPECT_EQ(chosenState(button), std::nullopt);
}

TEST(ButtonFieldRules, StateCells)
{
    ButtonRec button;
    stateCell(button, ButtonState::Up) = 1;
    stateCell(button, ButtonState::Over) = 2;
    stateCell(button, ButtonState::Down) = 3;
    stateCell(button, ButtonState::Disabled) = 4;
    EXPECT_EQ(button.frameUp, 1);
    EXPECT_EQ(button.frameOver, 2);
    EXPECT_EQ(button.frameDown, 3);
    EXPECT_EQ(button.frameDisabled, 4);
}

TEST(ButtonFieldRules, SwitchCaptionsFollowTheType)
{
    const SwitchCaptions graphic = switchCaptions(false);
    EXPECT_STREQ(graphic.frame, "Template Cells");
    EXPECT_STREQ(graphic.first, "Rows");
    EXPECT_STREQ(graphic.second, "Columns");
    const SwitchCaptions hotSpot = switchCaptions(true);
    EXPECT_STREQ(hotSpot.frame, "Hot Spot Size");
    EXPECT_STREQ(hotSpot.first, "Width");
    EXPECT_STREQ(hotSpot.second, "Height");
}

TEST(ButtonFieldRules, SwitchBoxesAreRoutedByTheirLabel)
{
    ButtonRec button;
    EXPECT_EQ(switchField(button, 1, "Rows"), &button.templateRows);
    EXPECT_EQ(switchField(button, 1, "Width"), &button.hotSpotWidth);
    EXPECT_EQ(switchField(button, 2, "Columns"), &button.templateColumns);
    EXPECT_EQ(switchField(button, 2, "Height"), &button.hotSpotHeight);
    // Each box knows only its own two captions.
    EXPECT_EQ(switchField(button, 1, "Columns"), nullptr);
    EXPECT_EQ(switchField(button, 2, "Rows"), nullptr);
    EXPECT_EQ(switchField(button, 1, "rows"), nullptr);
    EXPECT_EQ(switchField(button, 3, "Rows"), nullptr);
}

TEST(ButtonFieldRules, HotSpotIdPrefixAndStrip)
{
    EXPECT_EQ(hotSpotId("Enter_ID"), "_Enter_ID");
    EXPECT_EQ(graphicButtonId("_Enter_ID"), "Enter_ID");
    // The strip takes the first character whatever it is.
    EXPECT_EQ(graphicButtonId("Spot"), "pot");
    EXPECT_EQ(graphicButtonId("_"), "");
    EXPECT_EQ(graphicButtonId(""), "");
}

TEST(ButtonFieldRules, EmptiedTemplateBoxWritesNullIntoTheCaption)
{
    ButtonRec button;
    setButtonDefaults(button);
    button.captionTextId = "title";
    EXPECT_EQ(templateBoxChanged(button, "tiles"), std::nullopt);
    EXPECT_EQ(button.templateId, "tiles");
    EXPECT_EQ(button.captionTextId, "title");

    EXPECT_EQ(templateBoxChanged(button, ""), std::nullopt);
    EXPECT_EQ(button.templateId, "");
    EXPECT_EQ(button.captionTextId, "null");
}

TEST(ButtonFieldRules, TypedNullEmptiesTheTemplateBox)
{
    ButtonRec button;
    setButtonDefaults(button);
    button.captionTextId = "title";
    EXPECT_EQ(templateBoxChanged(button, "null"), std::optional<std::string>(""));
    EXPECT_EQ(button.templateId, "null");
    EXPECT_EQ(button.captionTextId, "title");
}

} // namespace
} // namespace vorlane
