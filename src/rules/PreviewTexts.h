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

} // namespace vorlane
