#pragma once

#include "model/modGlobal.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// The defaults of a new button's own fields (the id and slot flags are set with every kind's).
void setButtonDefaults(ButtonRec &button);

// The four states of a graphic button, each shown from one template cell.
enum class ButtonState { Up, Over, Down, Disabled };

// The cell field of `state`.
int16_t &stateCell(ButtonRec &button, ButtonState state);
int16_t stateCell(const ButtonRec &button, ButtonState state);

// The order in which the editor looks for the state whose cell is the current frame, so
// that when two states share a cell, the first of them in this order is shown as chosen.
inline constexpr std::array<ButtonState, 4> StateSearchOrder{
    ButtonState::Disabled, ButtonState::Down, ButtonState::Up, ButtonState::Over};

// The state shown as chosen: the first in StateSearchOrder whose cell equals `currentFrame`.
std::optional<ButtonState> chosenState(const ButtonRec &button);

// Captions of the switch frame and its two labels, which also decide where the two switch
// boxes store their numbers.
struct SwitchCaptions
{
    const char *frame;
    const char *first;
    const char *second;
};
SwitchCaptions switchCaptions(bool hotSpot);

// The field that switch box 1 or 2 writes while its label reads `label`; none when the label
// names neither of the box's fields.
int16_t *switchField(ButtonRec &button, int box, std::string_view label);

// A hot spot's id: the button's id behind an underscore.
std::string hotSpotId(std::string_view id);
// Back to a graphic button: the id without its first character, whatever that is.
std::string graphicButtonId(std::string_view id);

// The template drop-down's change: the text goes to `templateId`, but an emptied box writes
// "null" into `captionTextId` and leaves `templateId` empty, as the program has always done.
// A typed "null" empties the box, like every drop-down. Returns the box's new text, if any.
std::optional<std::string> templateBoxChanged(ButtonRec &button, std::string_view text);

// What the template box shows after a hot spot is turned back into a button whose template
// was emptied.
inline constexpr std::string_view EnterTilemapId = "Enter Tilemap ID";

} // namespace vorlane
