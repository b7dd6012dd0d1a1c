#include "rules/PictureSpec.h"

#include "model/Kinds.h"
#include "rules/FieldRules.h"
#include "rules/ObjectFilePath.h"

namespace vorlane {

PictureSpec pictureOf(const Document &doc, const ImageRec &image)
{
    return PictureSpec{image.path,
                       resolveObjectPath(doc, image.path),
                       image.cellWidth,
                       image.cellHeight,
                       image.red,
                       image.green,
                       image.blue,
                       image.alpha};
}

std::optional<int> findListedObject(const Document &doc, Kind kind, std::string_view id)
{
    if (id.empty() || id == NullText)
        return std::nullopt;
    for (const ListLine &line : doc.list(kind).lines) {
        if (!slotInTable(kind, line.slot))
            continue;
        const bool found = withTable(doc, kind, [&](const auto &table) {
            const auto &record = table[static_cast<size_t>(line.slot)];
            return record.isNew == 0 && record.id == id;
        });
        if (found)
            return line.slot;
    }
    return std::nullopt;
}

} // namespace vorlane
