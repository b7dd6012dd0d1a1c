#include "rules/CursorFieldRules.h"

namespace vorlane {

std::optional<int16_t> cursorOrientationCode(std::string_view caption)
{
    for (const CursorOrientation &orientation : CursorOrientations)
        if (orientation.caption == caption)
            return orientation.code;
    return std::nullopt;
}

void setCursorDefaults(CursorRec &cursor)
{
    cursor.imageId.clear();
    cursor.orientation = 1;
}

} // namespace vorlane
