#include "rules/FrameSequence.h"

#include "rules/FieldRules.h"
#include "rules/ObjectManagement.h"

#include <cstddef>
#include <utility>

namespace vorlane {

namespace {

bool hasSelectedLine(const ObjectList &rows)
{
    return rows.selected >= 0 && rows.selected < static_cast<int>(rows.lines.size());
}

// Writes `cell` into frame `slot` when the slot lies inside the table.
void setCell(AnimRec &anim, int slot, int16_t cell)
{
    if (slot >= 0 && slot < SubSlotCount)
        anim.frames[static_cast<size_t>(slot)].cell = cell;
}

int16_t cellOf(const std::string &text)
{
    return static_cast<int16_t>(leadingNumber(text));
}

// Row `from` and row `to` exchange texts and slots; the slots then take the numbers of their
// new rows' neighbours, in the order the editor has always written them.
bool exchange(AnimRec &anim, ObjectList &rows, int to)
{
    if (!hasSelectedLine(rows) || to < 0 || to >= static_cast<int>(rows.lines.size()))
        return false;
    ListLine &from = rows.lines[static_cast<size_t>(rows.selected)];
    ListLine &other = rows.lines[static_cast<size_t>(to)];
    const ListLine kept = from;
    from = other;
    setCell(anim, kept.slot, cellOf(other.text));
    other = kept;
    setCell(anim, from.slot, cellOf(kept.text));
    rows.selected = to;
    return true;
}

} // namespace

void setAnimDefaults(AnimRec &anim)
{
    anim.frameDelay = 0;
    anim.animDelay = 0;
    anim.repeat = 0;
    anim.play = 1;
    anim.direction = 1;
    anim.defaultFrame = -1;
    anim.frameCount = 0;
}

NumberOutcome defaultFrameRule(std::string_view text)
{
    if (text.empty())
        return NumberOutcome{-1, std::nullopt};
    if (text == "-1")
        return NumberOutcome{-1, std::string()};
    return numberRule(text);
}

ObjectList frameRows(const AnimRec &anim)
{
    ObjectList rows;
    for (int slot = 0; slot < SubSlotCount; ++slot) {
        const FrameRec &frame = anim.frames[static_cast<size_t>(slot)];
        if (frame.inUse == -1)
            rows.lines.push_back({std::to_string(frame.cell), static_cast<int16_t>(slot)});
    }
    rows.selected = rows.lines.empty() ? -1 : 0;
    return rows;
}

Message frameOverloadMessage()
{
    return Message{"No space left for Frames! (Max 100)",
                   "Object Overload",
                   MessageIcon::Critical,
                   MessageButtons::OK};
}

std::optional<Message>
addFrame(AnimRec &anim, ObjectList &rows, const std::string &typed, int16_t &frameOverflow)
{
    if (static_cast<int>(rows.lines.size()) >= MaxFrames)
        return frameOverloadMessage();
    const int16_t cell = cellOf(typed);
    const std::optional<int16_t> slot = allocateSlot(
        SubSlotCount - 1,
        [&anim](int s) { return anim.frames[static_cast<size_t>(s)].inUse == 0; },
        frameOverflow,
        [&anim, cell](int s) {
            FrameRec &frame = anim.frames[static_cast<size_t>(s)];
            frame.inUse = -1;
            frame.cell = cell;
        });
    // The overflow counter can run past slot 100: refuse as for a full list.
    if (!slot)
        return frameOverloadMessage();

    rows.lines.push_back({typed, *slot});
    rows.selected = static_cast<int>(rows.lines.size()) - 1;
    return std::nullopt;
}

bool deleteFrame(AnimRec &anim, ObjectList &rows)
{
    if (!hasSelectedLine(rows))
        return false;
    const int row = rows.selected;
    const int16_t slot = rows.lines[static_cast<size_t>(row)].slot;
    if (slot >= 0 && slot < SubSlotCount)
        anim.frames[static_cast<size_t>(slot)].inUse = 0;
    rows.lines.erase(rows.lines.begin() + row);
    rows.selected = selectionAfterRemoval(row, static_cast<int>(rows.lines.size()));
    return true;
}

bool moveFrameDown(AnimRec &anim, ObjectList &rows)
{
    return exchange(anim, rows, rows.selected + 1);
}

bool moveFrameUp(AnimRec &anim, ObjectList &rows)
{
    return exchange(anim, rows, rows.selected - 1);
}

} // namespace vorlane
