#include "rules/TextFieldRules.h"

#include "rules/FieldRules.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TextRec newText()
{
    TextRec text;
    text.isNew = -1;
    applyNewRecordDefaults(text, setTextDefaults);
    return text;
}

// The user clicks the box of `style`: it flips, then the style rule runs.
void click(TextRec &text, TextStyleBoxes &boxes, TextStyle style)
{
    boxes[style] = !boxes[style];
    textStyleClicked(text, boxes, style);
}

TEST(TextFieldRules, NewTextDefaults)
{
    TextRec text;
    text.isNew = -1;
    text.content = "left over";
    text.pointSize = 30;
    text.styleBold = 1;
    ASSERT_TRUE(applyNewRecordDefaults(text, setTextDefaults));
    EXPECT_EQ(text.id, "Enter_ID");
    EXPECT_EQ(text.content, "");
    EXPECT_EQ(text.fontId, "null");
    EXPECT_EQ(text.selectionImageId, "null");
    for (int16_t field : {text.x,
                          text.y,
                          text.clipWidth,
                          text.clipHeight,
                          text.delay,
                          text.centered,
                          text.repeat,
                          text.textType,
                          text.foreRed,
                          text.foreGreen,
                          text.foreBlue,
                          text.backRed,
                          text.backGreen,
                          text.backBlue,
                          text.styleBold,
                          text.styleItalic,
                          text.styleUnderline})
        EXPECT_EQ(field, 0);
    EXPECT_EQ(text.visible, 1);
    EXPECT_EQ(text.pointSize, 12);
    EXPECT_EQ(text.styleNormal, 1);
}

TEST(TextFieldRules, TypeCodesAreTheOptionIndexes)
{
    EXPECT_EQ(TextTypeCaptions[0], "Normal");
    EXPECT_EQ(TextTypeCaptions[1], "Input");
    EXPECT_EQ(TextTypeCaptions[2], "Select");
    EXPECT_EQ(optionRule(2), 2);
}

TEST(TextFieldRules, EmptiedPointBoxShowsTwelveAndZeroIsAccepted)
{
    const NumberField point = numberWithEmptyText(std::string(EmptyPointSize));
    EXPECT_EQ(numberRule("", point), (NumberOutcome{0, "12"}));
    EXPECT_EQ(numberRule("12", point), (NumberOutcome{12, std::nullopt}));
    EXPECT_EQ(numberRule("0", point), (NumberOutcome{0, std::nullopt}));
    EXPECT_EQ(numberRule("300", point), (NumberOutcome{300, std::nullopt}));
}

TEST(TextFieldRules, ColourOf300Becomes255)
{
    EXPECT_EQ(numberRule("300", byteField()), (NumberOutcome{300, "255"}));
}

TEST(TextFieldRules, BoldClearsNormalAndClearingBoldChecksItAgain)
{
    TextRec text = newText();
    TextStyleBoxes boxes = styleBoxesOf(text);
    click(text, boxes, TextStyle::Bold);
    EXPECT_EQ(boxes, (TextStyleBoxes{false, true, false, false}));
    EXPECT_EQ(text.styleNormal, 0);
    EXPECT_EQ(text.styleBold, 1);
    click(text, boxes, TextStyle::Bold);
    EXPECT_EQ(boxes, (TextStyleBoxes{true, false, false, false}));
    EXPECT_EQ(text.styleNormal, 1);
    EXPECT_EQ(text.styleBold, 0);
}

TEST(TextFieldRules, NormalClearsBoldAndUnderline)
{
    TextRec text = newText();
    TextStyleBoxes boxes = styleBoxesOf(text);
    click(text, boxes, TextStyle::Bold);
    click(text, boxes, TextStyle::Underline);
    EXPECT_EQ(boxes, (TextStyleBoxes{false, true, false, true}));
    EXPECT_EQ(text.styleUnderline, 1);
    click(text, boxes, TextStyle::Normal);
    EXPECT_EQ(boxes, (TextStyleBoxes{true, false, false, false}));
    EXPECT_EQ(text.styleNormal, 1);
    EXPECT_EQ(text.styleBold, 0);
    EXPECT_EQ(text.styleItalic, 0);
    EXPECT_EQ(text.styleUnderline, 0);
}

TEST(TextFieldRules, NormalCannotBeClearedAlone)
{
    TextRec text = newText();
    TextStyleBoxes boxes = styleBoxesOf(text);
    click(text, boxes, TextStyle::Normal);
    EXPECT_EQ(boxes, (TextStyleBoxes{true, false, false, false}));
    EXPECT_EQ(text.styleNormal, 1);
}

TEST(TextFieldRules, BoldItalicAndUnderlineCombine)
{
    TextRec text = newText();
    TextStyleBoxes boxes = styleBoxesOf(text);
    click(text, boxes, TextStyle::Italic);
    click(text, boxes, TextStyle::Underline);
    click(text, boxes, TextStyle::Bold);
    EXPECT_EQ(boxes, (TextStyleBoxes{false, true, true, true}));
    click(text, boxes, TextStyle::Italic);
    EXPECT_EQ(boxes, (TextStyleBoxes{false, true, false, true}));
    EXPECT_EQ(text.styleItalic, 0);
    EXPECT_EQ(text.styleNormal, 0);
}

TEST(TextFieldRules, StyleFieldsFollowTheirBoxes)
{
    TextRec text;
    styleField(text, TextStyle::Italic) = 1;
    styleField(text, TextStyle::Normal) = 1;
    EXPECT_EQ(text.styleItalic, 1);
    EXPECT_EQ(text.styleNormal, 1);
    EXPECT_EQ(styleBoxesOf(text), (TextStyleBoxes{true, false, true, false}));
}

} // namespace
} // namespace vorlane
