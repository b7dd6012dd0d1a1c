#pragma once

#include "model/modGlobal.h"

#include <optional>
#include <string>

namespace vorlane {

// How the engine draws a text record: what the scene preview, the text editor's preview and
// a button's caption need of it.
struct TextLook
{
    std::string content;                 // empty for "null"
    std::string fontId;                  // as the record holds it
    bool fontListed = false;             // a listed font has that id
    std::string fontStoredPath;          // the path of the text's font, as its record holds it
    std::optional<std::string> fontFile; // the font's file; none when no font is found
    int pointSize = 0;
    int foreRed = 0;
    int foreGreen = 0;
    int foreBlue = 0;
    int backRed = 0;
    int backGreen = 0;
    int backBlue = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    int clipWidth = 0; // 0 or less: not clipped
    int clipHeight = 0;
    bool centered = false;
};

// The look of `text`: its font is the listed font named by its fontId, with its file found as
// every object's file is.
TextLook textLookOf(const Document &doc, const TextRec &text);

} // namespace vorlane
