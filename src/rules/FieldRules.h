#pragma once

#include "model/modGlobal.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vorlane {

// The identifier an emptied identifier box takes, and that new objects start with.
inline constexpr std::string_view EnterId = "Enter_ID";
// The text stored for an unset reference, path or optional text.
inline constexpr std::string_view NullText = "null";

// What a change of a text box or of a drop-down's text makes of a text field: the value the
// field takes now and, when the box must show something else, the box's new text. Setting
// that text runs the change handling again, which stores it in turn.
struct TextOutcome
{
    std::string value;
    std::optional<std::string> boxText;

    bool operator==(const TextOutcome &) const = default;
};

// The same for a number field.
struct NumberOutcome
{
    int32_t value = 0;
    std::optional<std::string> boxText;

    bool operator==(const NumberOutcome &) const = default;
};

// The values a number field can hold.
struct NumberRange
{
    int32_t min;
    int32_t max;
};
inline constexpr NumberRange Int16Range{INT16_MIN, INT16_MAX};
inline constexpr NumberRange Int32Range{INT32_MIN, INT32_MAX};

// How a number box treats its text beyond reading the number.
struct NumberField
{
    std::string emptyText = "0"; // what an emptied box shows (and so stores)
    std::optional<int32_t> cap;  // 255 for the 0..255 fields: a larger number shows the cap
    NumberRange range = Int16Range;
};

// A number field whose emptied box shows `emptyText` (the text editor's point size: "12").
inline NumberField numberWithEmptyText(std::string emptyText)
{
    NumberField field;
    field.emptyText = std::move(emptyText);
    return field;
}

// The 0..255 fields (colour components, alpha, volume, priority, pan).
inline NumberField byteField()
{
    return NumberField{"0", 255, Int16Range};
}

// Text boxes that are never empty: the field takes the text; an emptied box shows
// `emptyText`, which is then stored in turn.
TextOutcome defaultedTextRule(std::string_view text, std::string_view emptyText);

// Identifier boxes: the text is the id; an emptied box shows "Enter_ID".
TextOutcome identifierRule(std::string_view text);

// Path boxes and the text of drop-downs: an empty box stores "null"; a typed "null" empties
// the box, so the box never shows "null".
TextOutcome referenceRule(std::string_view text);

// Optional texts: an empty box stores "null"; a typed "null" stays as it is.
TextOutcome contentRule(std::string_view text);

// The leading decimal number of `text`: blanks before it are skipped; then an optional sign,
// digits and an optional fraction; anything after that ends it. No number reads as 0.
// Rounded to the nearest integer, halves to even; clamped to `range`. `clamped` tells
// whether the number lay outside the range.
int32_t
leadingNumber(std::string_view text, NumberRange range = Int16Range, bool *clamped = nullptr);

// Number boxes: the field takes the leading number. An emptied box shows the field's empty
// text; a number beyond the field's range shows the range's end; a number above the cap
// shows the cap. Negative numbers and letters after the number are left as typed.
NumberOutcome numberRule(std::string_view text, const NumberField &field = {});

// Check boxes store 1 checked, 0 cleared.
int16_t checkRule(bool checked);

// Option groups store the code of the chosen option: its index in `codes` unless the group
// has codes of its own.
int16_t optionRule(int chosenIndex, const std::vector<int16_t> &codes = {});

// Extra condition a drop-down puts on the objects it offers.
using ListFilter = std::function<bool(const Document &doc, int slot)>;

// Images whose `bound` flag is 1: the only ones that can serve as templates, icons, sprite,
// cursor and selection images.
bool imageIsBound(const Document &doc, int slot);

// The identifiers a drop-down offers for `kind`: the main window's list of that kind in list
// order, without objects still new (never opened in their editor) and those `filter` refuses.
std::vector<std::string> offeredIds(const Document &doc, Kind kind, const ListFilter &filter = {});

// On the first opening of a reserved record (`isNew` -1): its editor's defaults, the id
// "Enter_ID", and the slot made live. Returns whether the record was new.
template<class Record, class Defaults>
bool applyNewRecordDefaults(Record &record, Defaults &&defaults)
{
    if (record.isNew != -1)
        return false;
    defaults(record);
    record.id = EnterId;
    record.isNew = 0;
    record.inUse = -1;
    return true;
}

} // namespace vorlane
