#pragma once

#include "model/modGlobal.h"
#include "rules/UserInterface.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vorlane {

// The number of entries the custom filter list may hold before Create Filter refuses. It is
// twice the limit the refusal names and more than the table's 51 slots; the numbers stand.
inline constexpr int CustomFilterListLimit = 100;

// The number of check values that are not 0: the type and file filter counts, recounted
// when their window closes.
int16_t checkedCount(std::span<const int16_t> values);

// The custom filter window's list when it opens: every filter in use, in slot order, each
// line holding its text and its slot; nothing when `customFilterCount` is below 1.
ObjectList customFilterList(const AppSettingsRec &app);

// "No space left for filters! (Max 50)", titled "Object Overload".
Message customFilterOverloadMessage();

// Create Filter is offered only for a name that is not empty.
bool canCreateFilter(std::string_view name);

// What Create Filter did. When `refusal` holds a message nothing was changed; otherwise the
// filter was stored in `slot` and appended to the list.
struct FilterCreation
{
    std::optional<Message> refusal;
    int16_t slot = 0;
};

// Stores `text` as a new custom filter in the first free slot (or the slot the custom filter
// overflow counter names) and appends it to `list`.
FilterCreation createCustomFilter(Document &doc, ObjectList &list, const std::string &text);

// Frees the slot of the list's selected filter and removes its line; the selection moves to
// the line now at its place, or to the last line. False when no line was selected.
bool removeCustomFilter(AppSettingsRec &app, ObjectList &list);

} // namespace vorlane
