#pragma once

#include "rules/UserInterface.h"
#include "model/modGlobal.h"
#include "rules/SlotAllocation.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vorlane {

// What Add did. When `refusal` holds a message nothing was changed; otherwise a line was
// appended to the kind's list and selected, and its slot reserved.
struct AddResult
{
    std::optional<Message> refusal;
    int16_t slot = 0; // the reserved slot, the new line's item data
    int line = -1;    // position of the new, selected line
};

// What Remove did.
struct RemoveResult
{
    bool removed = false;   // false when no line was selected: nothing changed
    int16_t slot = 0;       // the freed slot
    bool listEmpty = false; // the list has no line left: no Remove, Edit on, "[NO DATA]" cover
};

// The text of a new item's line, "New_Object" followed by the new-object counter, which is
// then raised by one.
std::string takeNewObjectLabel(Document &doc);

// The "Object Overload" message refusing one more object of `kind`.
Message objectOverloadMessage(Kind kind);

// Reserves a slot of `kind` and lists it as "New_Object" + the new-object counter.
AddResult addObject(Document &doc, Kind kind);

// Frees the slot of the selected line of `kind` and removes the line at that slot's position.
RemoveResult removeObject(Document &doc, Kind kind);

// Makes the selected object of `kind` the current object; returns its slot when the editor
// is to be opened, nothing when there is no selected line.
std::optional<int16_t> editObject(Document &doc, Kind kind);

} // namespace vorlane
