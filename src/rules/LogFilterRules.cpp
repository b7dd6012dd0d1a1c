#include "rules/LogFilterRules.h"

#include "rules/SlotAllocation.h"

#include <algorithm>

namespace vorlane {

namespace {

constexpr int LastCustomSlot = CustomFilterSlots - 1;

bool customSlotInTable(int slot)
{
    return slot >= 0 && slot <= LastCustomSlot;
}

} // namespace

int16_t checkedCount(std::span<const int16_t> values)
{
    return static_cast<int16_t>(
        std::count_if(values.begin(), values.end(), [](int16_t value) { return value != 0; }));
}

ObjectList customFilterList(const AppSettingsRec &app)
{
    ObjectList list;
    if (app.customFilterCount < 1)
        return list;
    for (int slot = 0; slot <= LastCustomSlot; ++slot) {
        const CustomFilterRec &filter = app.CustomFilters[static_cast<size_t>(slot)];
        if (filter.inUse == -1)
            list.lines.push_back({filter.text, static_cast<int16_t>(slot)});
    }
    return list;
}

Message customFilterOverloadMessage()
{
    return Message{"No space left for filters! (Max 50)",
                   "Object Overload",
                   MessageIcon::Critical,
                   MessageButtons::OK};
}

bool canCreateFilter(std::string_view name)
{
    return !name.empty();
}

FilterCreation createCustomFilter(Document &doc, ObjectList &list, const std::string &text)
{
    if (static_cast<int>(list.lines.size()) >= CustomFilterListLimit)
        return FilterCreation{customFilterOverloadMessage()};

    auto &filters = doc.AppSettings.CustomFilters;
    // When the first free slot is the last one, it is marked in use as well, keeping its text;
    // a counter past the table has nowhere to write the filter.
    const std::optional<int16_t> slot = allocateSlot(
        LastCustomSlot,
        [&filters](int candidate) { return filters[static_cast<size_t>(candidate)].inUse == 0; },
        doc.customFilterOverflow,
        [&filters](int taken) { filters[static_cast<size_t>(taken)].inUse = -1; });
    if (!slot)
        return FilterCreation{customFilterOverloadMessage()};
    filters[static_cast<size_t>(*slot)].text = text;

    list.lines.push_back({text, *slot});
    return FilterCreation{std::nullopt, *slot};
}

bool removeCustomFilter(AppSettingsRec &app, ObjectList &list)
{
    const int position = list.selected;
    if (position < 0 || position >= static_cast<int>(list.lines.size()))
        return false;
    const int16_t slot = list.lines[static_cast<size_t>(position)].slot;
    if (customSlotInTable(slot))
        app.CustomFilters[static_cast<size_t>(slot)].inUse = 0;
    list.lines.erase(list.lines.begin() + position);
    list.selected = selectionAfterRemoval(position, static_cast<int>(list.lines.size()));
    return true;
}

} // namespace vorlane
