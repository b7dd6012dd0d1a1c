#include "rules/TextFieldRules.h"

#include "rules/FieldRules.h"

namespace vorlane {

void setTextDefaults(TextRec &text)
{
    text.content.clear();
    text.fontId = NullText;
    text.selectionImageId = NullText;
    text.x = 0;
    text.y = 0;
    text.clipWidth = 0;
    text.clipHeight = 0;
    text.delay = 0;
    text.centered = 0;
    text.visible = 1;
    text.repeat = 0;
    text.textType = 0;
    text.foreRed = 0;
    text.foreGreen = 0;
    text.foreBlue = 0;
    text.backRed = 0;
    text.backGreen = 0;
    text.backBlue = 0;
    text.pointSize = 12;
    text.styleNormal = 1;
    text.styleBold = 0;
    text.styleItalic = 0;
    text.styleUnderline = 0;
}

int16_t &styleField(TextRec &text, TextStyle style)
{
    switch (style) {
    case TextStyle::Bold:
        return text.styleBold;
    case TextStyle::Italic:
        return text.styleItalic;
    case TextStyle::Underline:
        return text.styleUnderline;
    case TextStyle::Normal:
        break;
    }
    return text.styleNormal;
}

bool &TextStyleBoxes::operator[](TextStyle style)
{
    switch (style) {
    case TextStyle::Bold:
        return bold;
    case TextStyle::Italic:
        return italic;
    case TextStyle::Underline:
        return underline;
    case TextStyle::Normal:
        break;
    }
    return normal;
}

TextStyleBoxes styleBoxesOf(const TextRec &text)
{
    return {text.styleNormal == 1,
            text.styleBold == 1,
            text.styleItalic == 1,
            text.styleUnderline == 1};
}

namespace {

// Sets a box as code does: only a change of its value runs its rule.
void setStyleBox(TextRec &text, TextStyleBoxes &boxes, TextStyle style, bool value)
{
    if (boxes[style] == value)
        return;
    boxes[style] = value;
    textStyleClicked(text, boxes, style);
}

} // namespace

void textStyleClicked(TextRec &text, TextStyleBoxes &boxes, TextStyle clicked)
{
    if (clicked == TextStyle::Normal) {
        text.styleNormal = checkRule(boxes.normal);
        if (boxes.normal) {
            setStyleBox(text, boxes, TextStyle::Bold, false);
            setStyleBox(text, boxes, TextStyle::Italic, false);
            setStyleBox(text, boxes, TextStyle::Underline, false);
        }
    } else {
        setStyleBox(text, boxes, TextStyle::Normal, false);
        styleField(text, clicked) = checkRule(boxes[clicked]);
    }
    if (!boxes.bold && !boxes.italic && !boxes.underline) {
        setStyleBox(text, boxes, TextStyle::Normal, true);
        text.styleNormal = 1;
    }
}

} // namespace vorlane
