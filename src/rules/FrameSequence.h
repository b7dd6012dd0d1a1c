#pragma once

#include "model/modGlobal.h"
#include "rules/FieldRules.h"
#include "rules/UserInterface.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// The most rows an animation's frame sequence takes.
inline constexpr int MaxFrames = 100;

// The defaults of a new animation's own fields (the id and slot flags are set with every
// record's).
void setAnimDefaults(AnimRec &anim);

// The default frame box: the number at the start of the text; an empty box means no default
// frame, -1, and a typed "-1" empties the box, so -1 always shows as an empty box.
NumberOutcome defaultFrameRule(std::string_view text);

// The frame sequence as the animation editor opens it: one line per used frame slot in slot
// order (its cell as text, the slot as item data), line 0 selected.
ObjectList frameRows(const AnimRec &anim);

// The "Object Overload" message refusing a 101st frame.
Message frameOverloadMessage();

// Add: the first free frame slot (or the frame overflow counter's) takes the number at the
// start of `typed`; a line showing `typed` as it stands is appended and selected. Returns the
// refusal when the list is full or the overflow slot lies past the table; nothing changed then.
std::optional<Message>
addFrame(AnimRec &anim, ObjectList &rows, const std::string &typed, int16_t &frameOverflow);

// Delete: frees the selected line's frame slot (its cell stays) and removes the line. Returns
// false, changing nothing, when no line is selected.
bool deleteFrame(AnimRec &anim, ObjectList &rows);

// Down and Up: the selected line changes places with the next (previous) one, each taking its
// slot along, and the two slots exchange their cells, so the cells read in slot order follow
// the new order of the lines; the moved line stays selected. Nothing happens on the last
// (first) line or with no line selected; returns whether the lines moved.
bool moveFrameDown(AnimRec &anim, ObjectList &rows);
bool moveFrameUp(AnimRec &anim, ObjectList &rows);

} // namespace vorlane
