#pragma once

#include "model/modGlobal.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// What the previews need to draw a picture file: where it is, how it is cut into cells and
// which colour the engine leaves out.
struct PictureSpec
{
    std::string storedPath;          // the path as the record holds it
    std::optional<std::string> file; // the file looked for; none for "null"
    int cellWidth = 0;
    int cellHeight = 0;
    int red = 0; // colour key
    int green = 0;
    int blue = 0;
    int alpha = 255; // 0 transparent .. 255 opaque; values outside are taken to the nearest end

    bool operator==(const PictureSpec &) const = default;
};

// The picture of an image record of the open project.
PictureSpec pictureOf(const Document &doc, const ImageRec &image);

// The first object of `kind` listed in the main window whose id is `id`, skipping objects
// never opened in their editor; none when there is no such object or `id` is "null".
std::optional<int> findListedObject(const Document &doc, Kind kind, std::string_view id);

} // namespace vorlane
