#pragma once

#include "model/modGlobal.h"
#include "rules/UserInterface.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vorlane {

// The most rows the sprite editor's animation list takes.
inline constexpr int MaxAnimations = 100;

// The defaults of a new sprite's own fields (the id and slot flags are set with every kind's).
void setSpriteDefaults(SpriteRec &sprite);

// The animation list as the sprite editor opens it: nothing while `animCount` is below 1,
// else one line per used slot in slot order (its id, the slot as item data), line 0 selected.
ObjectList animationRows(const SpriteRec &sprite);

// The Current Animation drop-down's entries for a list of `rows` lines: the ids of slots 0 to
// rows - 1 that are not new, by slot number rather than by the lines' slots, as it always was.
std::vector<std::string> currentAnimationChoices(const SpriteRec &sprite, int rows);

// The "Object Overload" message refusing a 101st animation.
Message animationOverloadMessage();

// New Animation: reserves a slot of `sprite` (the first free one, or the animation overflow
// counter's), lists it as "New_Object" + the new-object counter and selects it. Returns the
// refusal when the list is full or the overflow slot lies past the table; nothing changed then.
std::optional<Message> newAnimation(Document &doc, SpriteRec &sprite, ObjectList &rows);

// Remove Animation: frees the selected line's slot (flags only) and removes the line. Returns
// false, changing nothing, when no line is selected.
bool removeAnimation(SpriteRec &sprite, ObjectList &rows);

} // namespace vorlane
