#include "rules/TextLook.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

TEST(TextLook, TakesTheRecordsLookAndItsFontsFile)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectFilePath = "/games/quest/quest.dvb";
    FontRec &font = doc->Fonts[2];
    font.inUse = -1;
    font.id = "fntMenu";
    font.path = "fonts\\menu.ttf";
    doc->list(Kind::Font).lines.push_back({"fntMenu", 2});
    TextRec text;
    text.content = "Play";
    text.fontId = "fntMenu";
    text.pointSize = 20;
    text.foreRed = 1;
    text.foreGreen = 2;
    text.foreBlue = 3;
    text.backRed = 4;
    text.backGreen = 5;
    text.backBlue = 6;
    text.styleItalic = 1;
    text.styleUnderline = 1;
    text.clipWidth = 30;
    text.clipHeight = 10;
    text.centered = 1;
    const TextLook look = textLookOf(*doc, text);
    EXPECT_EQ(look.content, "Play");
    EXPECT_EQ(look.fontId, "fntMenu");
    EXPECT_TRUE(look.fontListed);
    EXPECT_EQ(look.fontStoredPath, "fonts\\menu.ttf");
    EXPECT_EQ(look.fontFile, "/games/quest/fonts/menu.ttf");
    EXPECT_EQ(look.pointSize, 20);
    EXPECT_EQ(look.foreRed + look.foreGreen + look.foreBlue, 6);
    EXPECT_EQ(look.backRed, 4);
    EXPECT_EQ(look.backGreen, 5);
    EXPECT_EQ(look.backBlue, 6);
    EXPECT_FALSE(look.bold);
    EXPECT_TRUE(look.italic);
    EXPECT_TRUE(look.underline);
    EXPECT_EQ(look.clipWidth, 30);
    EXPECT_EQ(look.clipHeight, 10);
    EXPECT_TRUE(look.centered);
}

TEST(TextLook, NullContentIsEmptyAndAnUnlistedFontHasNoFile)
{
    auto doc = makeDocument();
    TextRec text;
    text.content = "null";
    text.fontId = "fntGone";
    const TextLook look = textLookOf(*doc, text);
    EXPECT_EQ(look.content, "");
    EXPECT_FALSE(look.fontListed);
    EXPECT_EQ(look.fontStoredPath, "");
    EXPECT_FALSE(look.fontFile.has_value());
}

} // namespace
} // namespace vorlane
