#pragma once

#include "model/modGlobal.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace vorlane {

// The defaults of a new text's own fields: empty content (stored as "null" once its box is
// filled), no font or selection image, black on black, 12 points, the "Normal" style alone.
void setTextDefaults(TextRec &text);

// What an emptied point-size box shows, and so stores.
inline constexpr std::string_view EmptyPointSize = "12";

// The text types by option index: the index is the code stored in `textType`.
inline constexpr std::array<std::string_view, 3> TextTypeCaptions{"Normal", "Input", "Select"};

// The four styles of a text. "Normal" excludes the other three, which combine freely.
enum class TextStyle { Normal, Bold, Italic, Underline };
inline constexpr std::array<TextStyle, 4> TextStyles{
    TextStyle::Normal, TextStyle::Bold, TextStyle::Italic, TextStyle::Underline};

// The field of a text that holds `style`.
int16_t &styleField(TextRec &text, TextStyle style);

// The four style check boxes as shown.
struct TextStyleBoxes
{
    bool normal = false;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool &operator[](TextStyle style);
    bool operator==(const TextStyleBoxes &) const = default;
};

// The check boxes showing a text's style fields (a field counts as set when it equals 1).
TextStyleBoxes styleBoxesOf(const TextRec &text);

// The style rule, run when the box of `clicked` has just changed to its value in `boxes`.
// Clicking Bold, Italic or Underline clears "Normal" (running its rule), stores the clicked
// style, and checks "Normal" again once all three are clear. Clicking "Normal" stores it and,
// when it is checked, clears the three others (each clearing runs that style's rule); "Normal"
// is checked again whenever the three are clear. Every box whose value this changes runs its
// rule in turn, as a check box's click handler does; the results land in `text` and `boxes`.
void textStyleClicked(TextRec &text, TextStyleBoxes &boxes, TextStyle clicked);

} // namespace vorlane
