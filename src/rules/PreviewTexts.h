#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// The lines the previews show instead of a picture. A preview never shows a message box.

// The path is "null" or empty.
std::string noFileText();
// `file` (the file looked for) does not exist.
std::string missingFileText(std::string_view storedPath, std::string_view file);
// `file` exists but holds no picture that can be read.
std::string unreadableFileText(std::string_view storedPath, std::string_view file);
// The picture has no cell `cell`; `count` is its number of whole cells.
std::string noSuchCellText(int cell, int count);
// No listed object of `kindName` (such as "image") has the id `id`.
std::string noObjectText(std::string_view kindName, std::string_view id);
// What the sheet view says under a readable picture.
std::string sheetSummaryText(int width, int height, int columns, int rows);
// The unit in which animation delays are counted, as the animation preview shows it.
std::string delayText(int frameDelay);

// What the text preview says of the font it draws in: the family loaded from the font's file,
// or why the default font is drawn instead (`fontId` names no listed font, or its file
// `file`, stored as `storedPath`, could not be loaded; `file` empty when the path is "null").
std::string fontLoadedText(std::string_view family, std::string_view storedPath);
std::string defaultFontText(std::string_view fontId,
                            bool fontListed,
                            std::string_view storedPath,
                            std::string_view file);
// The text holds "*", which closes a text in the engine's files.
std::string terminatorText();
// The text holds characters the engine's files cannot hold (`characters`, in UTF-8).
std::string notCp1252Text(std::string_view characters);

} // namespace vorlane
