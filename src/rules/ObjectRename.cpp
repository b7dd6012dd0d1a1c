#include "rules/ObjectRename.h"

#include "model/Kinds.h"
#include "rules/FieldRules.h"

namespace vorlane {

namespace {

// What the project file and the references cannot take, whatever the kind.
std::optional<std::string> textRefusal(std::string_view newId)
{
    if (newId.empty())
        return std::string("The identifier is empty.");
    if (newId == NullText)
        return std::string("\"null\" stands for no object and cannot be an identifier.");
    if (newId.find_first_of("\r\n") != std::string_view::npos)
        return std::string("The identifier holds a line break, which the project file cannot "
                           "hold.");
    // A text is written between double quotes with nothing escaped.
    if (newId.find('"') != std::string_view::npos)
        return std::string("The identifier holds a double quote, which the project file cannot "
                           "hold.");
    return std::nullopt;
}

std::string lowerFirst(std::string text)
{
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z')
        text[0] = static_cast<char>(text[0] - 'A' + 'a');
    return text;
}

} // namespace

std::optional<std::string>
renameRefusal(const Document &doc, ObjectRef object, std::string_view newId)
{
    if (auto refusal = textRefusal(newId))
        return refusal;
    for (const ListLine &line : doc.list(object.kind).lines) {
        if (line.slot == object.slot || !slotInTable(object.kind, line.slot))
            continue;
        if (objectIdentifier(doc, {object.kind, line.slot}) == newId)
            return "Another " + lowerFirst(kindCaption(object.kind)) + " is already called \"" +
                   std::string(newId) + "\".";
    }
    return std::nullopt;
}

RenameOutcome renameObject(Document &doc, ObjectRef object, const std::string &newId)
{
    if (!slotInTable(object.kind, object.slot))
        return {std::string("No such object."), 0};
    if (auto refusal = renameRefusal(doc, object, newId))
        return {std::move(refusal), 0};
    const std::string oldId = objectIdentifier(doc, object);
    int followed = 0;
    forEachReference(doc, [&](ObjectRef, const std::string &, Kind target, std::string &value) {
        if (target == object.kind && value == oldId) {
            value = newId;
            ++followed;
        }
    });
    slotOf(doc, object.kind, object.slot).id = newId;
    for (ListLine &line : doc.list(object.kind).lines) {
        if (line.slot == object.slot)
            line.text = newId;
    }
    return {std::nullopt, followed};
}

std::optional<std::string>
animationRenameRefusal(const Document &doc, int spriteSlot, int animSlot, std::string_view newId)
{
    if (auto refusal = textRefusal(newId))
        return refusal;
    const SpriteRec &sprite = doc.Sprites[static_cast<size_t>(spriteSlot)];
    for (int slot = 0; slot < SubSlotCount; ++slot) {
        const AnimRec &anim = sprite.anims[static_cast<size_t>(slot)];
        if (slot != animSlot && anim.inUse == -1 && anim.id == newId)
            return "Another animation of this sprite is already called \"" + std::string(newId) +
                   "\".";
    }
    return std::nullopt;
}

RenameOutcome renameAnimation(Document &doc, int spriteSlot, int animSlot, const std::string &newId)
{
    if (!slotInTable(Kind::Sprite, spriteSlot) || animSlot < 0 || animSlot >= SubSlotCount)
        return {std::string("No such animation."), 0};
    if (auto refusal = animationRenameRefusal(doc, spriteSlot, animSlot, newId))
        return {std::move(refusal), 0};
    SpriteRec &sprite = doc.Sprites[static_cast<size_t>(spriteSlot)];
    AnimRec &anim = sprite.anims[static_cast<size_t>(animSlot)];
    const int followed = static_cast<int>(animationUsedBy(doc, spriteSlot, animSlot).size());
    if (followed > 0)
        sprite.currentAnimId = newId;
    anim.id = newId;
    return {std::nullopt, followed};
}

std::string followingReferencesCaption(int count)
{
    if (count == 0)
        return "No reference will follow";
    if (count == 1)
        return "1 reference will follow";
    return std::to_string(count) + " references will follow";
}

} // namespace vorlane
