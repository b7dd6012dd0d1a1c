#include "rules/CursorFieldRules.h"

namespace vorlane {

void setCursorDefaults(CursorRec &cursor)
{
    cursor.imageId.clear();
    cursor.orientation = 1;
}

HotPoint cursorHotPoint(int code, int width, int height)
{
    const int right = width > 0 ? width - 1 : 0;
    const int bottom = height > 0 ? height - 1 : 0;
    switch (code) {
    case 2:
        return HotPoint{0, bottom};
    case 3:
        return HotPoint{right, bottom};
    case 4:
        return HotPoint{right, 0};
    case 5:
        return HotPoint{0, 0};
    default:
        return HotPoint{width / 2, height / 2};
    }
}

} // namespace vorlane
