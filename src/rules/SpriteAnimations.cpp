#include "rules/SpriteAnimations.h"

#include "rules/FieldRules.h"
#include "rules/ObjectManagement.h"

#include <cstddef>

namespace vorlane {

namespace {

bool hasSelectedLine(const ObjectList &rows)
{
    return rows.selected >= 0 && rows.selected < static_cast<int>(rows.lines.size());
}

bool inSubTable(int slot)
{
    return slot >= 0 && slot < SubSlotCount;
}

} // namespace

void setSpriteDefaults(SpriteRec &sprite)
{
    sprite.imageId = NullText;
    sprite.currentAnimId = NullText;
    sprite.animCount = 0;
    sprite.positionX = 0;
    sprite.positionY = 0;
    sprite.visible = 1;
}

ObjectList animationRows(const SpriteRec &sprite)
{
    ObjectList rows;
    if (sprite.animCount < 1)
        return rows;
    for (int slot = 0; slot < SubSlotCount; ++slot) {
        const AnimRec &anim = sprite.anims[static_cast<size_t>(slot)];
        if (anim.inUse == -1)
            rows.lines.push_back({anim.id, static_cast<int16_t>(slot)});
    }
    rows.selected = rows.lines.empty() ? -1 : 0;
    return rows;
}

std::vector<std::string> currentAnimationChoices(const SpriteRec &sprite, int rows)
{
    std::vector<std::string> choices;
    for (int slot = 0; slot < rows && slot < SubSlotCount; ++slot) {
        const AnimRec &anim = sprite.anims[static_cast<size_t>(slot)];
        if (anim.isNew == 0)
            choices.push_back(anim.id);
    }
    return choices;
}

Message animationOverloadMessage()
{
    return Message{"No space left for animations! (Max 100)",
                   "Object Overload",
                   MessageIcon::Critical,
                   MessageButtons::OK};
}

std::optional<Message> newAnimation(Document &doc, SpriteRec &sprite, ObjectList &rows)
{
    if (static_cast<int>(rows.lines.size()) >= MaxAnimations)
        return animationOverloadMessage();
    const std::optional<int16_t> slot = allocateSlot(
        SubSlotCount - 1,
        [&sprite](int s) {
            const AnimRec &anim = sprite.anims[static_cast<size_t>(s)];
            return anim.inUse == 0 && anim.isNew == 0;
        },
        doc.animOverflow,
        [&sprite](int s) { sprite.anims[static_cast<size_t>(s)].isNew = -1; });
    // The overflow counter can run past slot 100: refuse as for a full list.
    if (!slot)
        return animationOverloadMessage();

    rows.lines.push_back({takeNewObjectLabel(doc), *slot});
    rows.selected = static_cast<int>(rows.lines.size()) - 1;
    return std::nullopt;
}

bool removeAnimation(SpriteRec &sprite, ObjectList &rows)
{
    if (!hasSelectedLine(rows))
        return false;
    const int row = rows.selected;
    const int16_t slot = rows.lines[static_cast<size_t>(row)].slot;
    if (inSubTable(slot)) {
        AnimRec &anim = sprite.anims[static_cast<size_t>(slot)];
        anim.inUse = 0;
        anim.isNew = 0;
    }
    rows.lines.erase(rows.lines.begin() + row);
    rows.selected = selectionAfterRemoval(row, static_cast<int>(rows.lines.size()));
    return true;
}

} // namespace vorlane
