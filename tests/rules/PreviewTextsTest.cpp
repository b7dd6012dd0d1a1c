#include "rules/PreviewTexts.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(PreviewTexts, NameTheStoredPathAndTheFileLookedFor)
{
    EXPECT_EQ(missingFileText("art\\hero.png", "/games/art/hero.png"),
              "File not found: \"art\\hero.png\" (looked for /games/art/hero.png)");
    EXPECT_EQ(unreadableFileText("notes.txt", "/games/notes.txt"),
              "Not a picture Vorlane can read: \"notes.txt\" (looked for /games/notes.txt)");
    EXPECT_EQ(noFileText(), "No file: the path is empty");
}

TEST(PreviewTexts, CellsAndObjects)
{
    EXPECT_EQ(noSuchCellText(9, 8), "Cell 9 is not on the sheet (cells 1 to 8)");
    EXPECT_EQ(noSuchCellText(0, 8), "Cell 0 is not on the sheet (cells 1 to 8)");
    EXPECT_EQ(noSuchCellText(1, 0), "Cell 1 is not on the sheet (no whole cell)");
    EXPECT_EQ(noObjectText("image", "tiles"), "No image named \"tiles\"");
    EXPECT_EQ(noObjectText("image", "null"), "No image chosen");
    EXPECT_EQ(noObjectText("image", ""), "No image chosen");
}

TEST(PreviewTexts, SheetAndDelay)
{
    EXPECT_EQ(sheetSummaryText(128, 64, 4, 2), "128 x 64 pixels, 8 cells (4 x 2), numbered from 1");
    EXPECT_EQ(delayText(120), "Frame delay: 120 ms");
}

TEST(PreviewTexts, FontAndMarks)
{
    EXPECT_EQ(fontLoadedText("DejaVu Sans", "fonts\\menu.ttf"),
              "Font: DejaVu Sans (\"fonts\\menu.ttf\")");
    EXPECT_EQ(defaultFontText("null", false, "", ""),
              "No font chosen; the default font is drawn instead");
    EXPECT_EQ(defaultFontText("fntGone", false, "", ""),
              "No font named \"fntGone\"; the default font is drawn instead");
    EXPECT_EQ(defaultFontText("fntMenu", true, "null", ""),
              "No file: the path is empty; the default font is drawn instead");
    EXPECT_EQ(defaultFontText("fntMenu", true, "menu.ttf", "/games/menu.ttf"),
              "The font file cannot be loaded: \"menu.ttf\" (looked for /games/menu.ttf); the "
              "default font is drawn instead");
    EXPECT_EQ(terminatorText(),
              "\"*\" ends a text in the engine's files: the engine stops reading there");
    EXPECT_EQ(notCp1252Text("\xE2\x86\x92"),
              "The engine cannot read \"\xE2\x86\x92\": written as \"?\"");
}

} // namespace
} // namespace vorlane
