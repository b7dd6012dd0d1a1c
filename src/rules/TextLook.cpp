#include "rules/TextLook.h"

#include "rules/ObjectFilePath.h"
#include "rules/PictureSpec.h"

namespace vorlane {

TextLook textLookOf(const Document &doc, const TextRec &text)
{
    TextLook look;
    look.content = text.content == "null" ? std::string() : text.content;
    look.fontId = text.fontId;
    look.pointSize = text.pointSize;
    look.foreRed = text.foreRed;
    look.foreGreen = text.foreGreen;
    look.foreBlue = text.foreBlue;
    look.backRed = text.backRed;
    look.backGreen = text.backGreen;
    look.backBlue = text.backBlue;
    look.bold = text.styleBold == 1;
    look.italic = text.styleItalic == 1;
    look.underline = text.styleUnderline == 1;
    look.clipWidth = text.clipWidth;
    look.clipHeight = text.clipHeight;
    look.centered = text.centered == 1;
    if (const std::optional<int> font = findListedObject(doc, Kind::Font, text.fontId)) {
        look.fontListed = true;
        look.fontStoredPath = doc.Fonts[static_cast<size_t>(*font)].path;
        look.fontFile = resolveObjectPath(doc, look.fontStoredPath);
    }
    return look;
}

} // namespace vorlane
