#include "rules/ImageFieldRules.h"

#include "rules/FieldRules.h"

namespace vorlane {

void setImageDefaults(ImageRec &image)
{
    image.path = NullText;
    image.red = 0;
    image.green = 0;
    image.blue = 0;
    image.alpha = 255;
    image.cellWidth = 0;
    image.cellHeight = 0;
    image.positionX = 0;
    image.positionY = 0;
    image.bound = 0;
    image.visible = 1;
}

} // namespace vorlane
