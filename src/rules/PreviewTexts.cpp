#include "rules/PreviewTexts.h"

namespace vorlane {

namespace {

std::string quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

} // namespace

std::string noFileText()
{
    return "No file: the path is empty";
}

std::string missingFileText(std::string_view storedPath, std::string_view file)
{
    return "File not found: " + quoted(storedPath) + " (looked for " + std::string(file) + ")";
}

std::string unreadableFileText(std::string_view storedPath, std::string_view file)
{
    return "Not a picture Vorlane can read: " + quoted(storedPath) + " (looked for " +
           std::string(file) + ")";
}

std::string noSuchCellText(int cell, int count)
{
    const std::string cells =
        count > 0 ? "cells 1 to " + std::to_string(count) : std::string("no whole cell");
    return "Cell " + std::to_string(cell) + " is not on the sheet (" + cells + ")";
}

std::string noObjectText(std::string_view kindName, std::string_view id)
{
    if (id.empty() || id == "null")
        return "No " + std::string(kindName) + " chosen";
    return "No " + std::string(kindName) + " named " + quoted(id);
}

std::string sheetSummaryText(int width, int height, int columns, int rows)
{
    return std::to_string(width) + " x " + std::to_string(height) + " pixels, " +
           std::to_string(columns * rows) + " cells (" + std::to_string(columns) + " x " +
           std::to_string(rows) + "), numbered from 1";
}

std::string delayText(int frameDelay)
{
    return "Frame delay: " + std::to_string(frameDelay) + " ms";
}

std::string fontLoadedText(std::string_view family, std::string_view storedPath)
{
    return "Font: " + std::string(family) + " (" + quoted(storedPath) + ")";
}

std::string defaultFontText(std::string_view fontId,
                            bool fontListed,
                            std::string_view storedPath,
                            std::string_view file)
{
    const std::string why = !fontListed ? noObjectText("font", fontId)
                            : file.empty()
                                ? noFileText()
                                : "The font file cannot be loaded: " + quoted(storedPath) +
                                      " (looked for " + std::string(file) + ")";
    return why + "; the default font is drawn instead";
}

std::string terminatorText()
{
    return "\"*\" ends a text in the engine's files: the engine stops reading there";
}

std::string notCp1252Text(std::string_view characters)
{
    return "The engine cannot read " + quoted(characters) + ": written as \"?\"";
}

} // namespace vorlane
