#include "TextPainting.h"

#include <QFontDatabase>
#include <QHash>
#include <QStringList>

#include <algorithm>

namespace vorlane {

QString fontFamilyOf(const std::string &file)
{
    static QHash<QString, QString> families;
    const QString path = QString::fromStdString(file);
    auto found = families.constFind(path);
    if (found != families.constEnd())
        return *found;
    const int id = QFontDatabase::addApplicationFont(path);
    const QStringList names = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
    const QString family = names.isEmpty() ? QString() : names.front();
    families.insert(path, family);
    return family;
}

QFont engineFont(const TextLook &look)
{
    QFont font;
    if (look.fontFile) {
        const QString family = fontFamilyOf(*look.fontFile);
        if (!family.isEmpty())
            font.setFamily(family);
    }
    // One point of the engine's text is one pixel of its screen.
    font.setPixelSize(look.pointSize > 0 ? look.pointSize : 12);
    font.setBold(look.bold);
    font.setItalic(look.italic);
    font.setUnderline(look.underline);
    return font;
}

QColor foreColour(const TextLook &look)
{
    return QColor(std::clamp(look.foreRed, 0, 255),
                  std::clamp(look.foreGreen, 0, 255),
                  std::clamp(look.foreBlue, 0, 255));
}

QColor backColour(const TextLook &look)
{
    return QColor(std::clamp(look.backRed, 0, 255),
                  std::clamp(look.backGreen, 0, 255),
                  std::clamp(look.backBlue, 0, 255));
}

} // namespace vorlane
