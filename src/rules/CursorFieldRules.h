#pragma once

#include "model/modGlobal.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace vorlane {

// One choice of the cursor's hot point and the code the engine reads for it.
struct CursorOrientation
{
    std::string_view caption;
    int16_t code;
};

// The five orientations by code; the codes are the engine's and are not the order the
// options stand in on screen. There is no code 0.
inline constexpr std::array<CursorOrientation, 5> CursorOrientations{
    {{"Center", 1}, {"Lower-left", 2}, {"Lower-right", 3}, {"Upper-right", 4}, {"Upper-left", 5}}};

// The defaults of a new cursor's own fields: an empty image reference (shown and stored as
// "null" once the image list is filled) and the "Center" orientation.
void setCursorDefaults(CursorRec &cursor);

// The pixel of a picture of `width` x `height` that orientation `code` makes the hot point:
// its centre (1), or the corner pixel of the lower-left (2), lower-right (3), upper-right (4)
// or upper-left (5) corner. Any other code is taken as the centre.
struct HotPoint
{
    int x = 0;
    int y = 0;

    bool operator==(const HotPoint &) const = default;
};
HotPoint cursorHotPoint(int code, int width, int height);

} // namespace vorlane
