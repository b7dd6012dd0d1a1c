#include "rules/CursorFieldRules.h"

namespace vorlane {

void setCursorDefaults(CursorRec &cursor)
{
    cursor.imageId.clear();
    cursor.orientation = 1;
}

} // namespace vorlane
