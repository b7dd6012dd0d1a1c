#pragma once

#include "rules/TextLook.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <string>

namespace vorlane {

// The family of the font in `file`, added to the program's fonts the first time it is asked
// for; empty when the file cannot be read as a font.
QString fontFamilyOf(const std::string &file);

// The font a text draws in: its font file's family when it loads (the default font
// otherwise), one pixel of the screen per point (12 when the size is 0 or less), its styles.
QFont engineFont(const TextLook &look);

QColor foreColour(const TextLook &look);
QColor backColour(const TextLook &look);

} // namespace vorlane
