#include "rules/EditorHandBack.h"

#include <cstddef>
#include <iterator>

namespace vorlane {

bool replaceSelectedLine(ObjectList &list, const std::string &id)
{
    if (list.selected < 0 || static_cast<size_t>(list.selected) >= list.lines.size())
        return false;
    const int row = list.selected;
    const int16_t slot = list.lines[static_cast<size_t>(row)].slot;
    list.lines.erase(std::next(list.lines.begin(), row));
    list.lines.insert(std::next(list.lines.begin(), row), ListLine{id, slot});
    list.selected = row;
    return true;
}

bool handBackToList(Document &doc, Kind kind, const std::string &id)
{
    return replaceSelectedLine(doc.list(kind), id);
}

} // namespace vorlane
