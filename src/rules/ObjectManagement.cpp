#include "rules/ObjectManagement.h"

#include "model/Kinds.h"
#include "rules/SlotAllocation.h"

#include <string>

namespace vorlane {

namespace {

bool hasSelectedLine(const ObjectList &list)
{
    return list.selected >= 0 && list.selected < static_cast<int>(list.lines.size());
}

} // namespace

Message objectOverloadMessage(Kind kind)
{
    return Message{
        kindInfo(kind).fullMessage, "Object Overload", MessageIcon::Critical, MessageButtons::OK};
}

AddResult addObject(Document &doc, Kind kind)
{
    const int lastSlot = kindInfo(kind).lastSlot;
    ObjectList &list = doc.list(kind);
    if (static_cast<int>(list.lines.size()) >= lastSlot)
        return AddResult{objectOverloadMessage(kind)};

    const SlotChoice choice = chooseSlot(lastSlot, doc.objectCount(kind), [&](int slot) {
        const SlotView view = slotOf(doc, kind, slot);
        return view.inUse == 0 && view.isNew == 0;
    });
    // A count past the table's end (a long run of such fallbacks) has no slot to give: refuse
    // as for a full list rather than write outside the table.
    if (choice.fromOverflow && !slotInTable(kind, choice.slot))
        return AddResult{objectOverloadMessage(kind)};

    // The first free slot stays reserved even when the object count names the slot to use.
    if (choice.firstFree != -1)
        slotOf(doc, kind, choice.firstFree).isNew = -1;
    const auto slot = static_cast<int16_t>(choice.slot);
    if (choice.fromOverflow) {
        slotOf(doc, kind, slot).isNew = -1;
        ++doc.objectCount(kind);
    }

    list.lines.push_back({"New_Object" + std::to_string(doc.newObjectCounter), slot});
    list.selected = static_cast<int>(list.lines.size()) - 1;
    ++doc.newObjectCounter;
    return AddResult{std::nullopt, slot, list.selected};
}

RemoveResult removeObject(Document &doc, Kind kind)
{
    ObjectList &list = doc.list(kind);
    RemoveResult result;
    if (!hasSelectedLine(list)) {
        result.listEmpty = list.lines.empty();
        return result;
    }

    const int16_t slot = list.lines[static_cast<size_t>(list.selected)].slot;
    if (slotInTable(kind, slot)) {
        const SlotView view = slotOf(doc, kind, slot);
        view.inUse = 0;
        view.isNew = 0;
    }

    // The line at the position equal to the slot goes, not necessarily the selected one; when
    // the list is too short for that position, the selected line goes instead.
    const int count = static_cast<int>(list.lines.size());
    const int position = slot >= 0 && slot < count ? slot : list.selected;
    list.lines.erase(list.lines.begin() + position);

    const int remaining = count - 1;
    list.selected = selectionAfterRemoval(position, remaining);

    result.removed = true;
    result.slot = slot;
    result.listEmpty = remaining == 0;
    return result;
}

std::optional<int16_t> editObject(Document &doc, Kind kind)
{
    const ObjectList &list = doc.list(kind);
    if (list.lines.empty() || !hasSelectedLine(list))
        return std::nullopt;
    doc.currentObjectIndex = list.lines[static_cast<size_t>(list.selected)].slot;
    return doc.currentObjectIndex;
}

} // namespace vorlane
