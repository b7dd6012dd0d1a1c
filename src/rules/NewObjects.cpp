#include "rules/NewObjects.h"

#include "model/Kinds.h"

namespace vorlane {

void removeNewObjects(Document &doc)
{
    for (Kind kind : ListOrder) {
        ObjectList &list = doc.list(kind);
        size_t position = 0;
        while (position < list.lines.size()) {
            if (slotOf(doc, kind, list.lines[position].slot).isNew == -1) {
                list.lines.erase(list.lines.begin() + static_cast<std::ptrdiff_t>(position));
                if (list.selected > static_cast<int>(position))
                    --list.selected;
                else if (list.selected == static_cast<int>(position))
                    list.selected = -1;
            } else {
                ++position;
            }
        }
        if (list.selected >= static_cast<int>(list.lines.size()))
            list.selected = -1;
    }
}

} // namespace vorlane
