#include "rules/References.h"

#include "model/Kinds.h"
#include "rules/SceneRules.h"

#include <array>
#include <type_traits>
#include <utility>

namespace vorlane {

namespace {

constexpr std::array<const char *, KindCount> Captions{
    "Button", "Cursor", "Image", "Text", "Font", "Music track", "Sound effect", "Sprite", "Scene"};

// A text field of a record that names an object of `target`, with its words.
template<class Rec>
struct RefField
{
    const char *field;
    std::string Rec::*member;
    Kind target;
};

constexpr std::array<RefField<ButtonRec>, 8> ButtonRefs{{
    {"cursor", &ButtonRec::cursorId, Kind::Cursor},
    {"template", &ButtonRec::templateId, Kind::Image},
    {"icon", &ButtonRec::iconId, Kind::Image},
    {"caption", &ButtonRec::captionTextId, Kind::Text},
    {"sound up", &ButtonRec::soundUp, Kind::SFX},
    {"sound down", &ButtonRec::soundDown, Kind::SFX},
    {"sound over", &ButtonRec::soundOver, Kind::SFX},
    {"sound disabled", &ButtonRec::soundDisabled, Kind::SFX},
}};
constexpr std::array<RefField<CursorRec>, 1> CursorRefs{
    {{"image", &CursorRec::imageId, Kind::Image}}};
constexpr std::array<RefField<TextRec>, 2> TextRefs{{
    {"font", &TextRec::fontId, Kind::Font},
    {"selection image", &TextRec::selectionImageId, Kind::Image},
}};
constexpr std::array<RefField<SpriteRec>, 1> SpriteRefs{
    {{"image", &SpriteRec::imageId, Kind::Image}}};

template<class Rec, size_t N, class Value, class Visit>
void visitFields(ObjectRef owner,
                 Rec &rec,
                 const std::array<RefField<std::remove_const_t<Rec>>, N> &fields,
                 const Visit &visit)
{
    for (const auto &field : fields) {
        const std::string words = field.field;
        visit(owner, words, field.target, static_cast<Value &>(rec.*field.member));
    }
}

template<class Doc, class Value, class Visit>
void visitAll(Doc &doc, const Visit &visit)
{
    for (Kind kind : ListOrder) {
        withTable(doc, kind, [&](auto &table) {
            for (const ListLine &line : doc.list(kind).lines) {
                if (!slotInTable(kind, line.slot))
                    continue;
                auto &rec = table[static_cast<size_t>(line.slot)];
                if (rec.isNew != 0)
                    continue;
                const ObjectRef owner{kind, line.slot};
                using Rec = std::remove_reference_t<decltype(rec)>;
                using Plain = std::remove_const_t<Rec>;
                if constexpr (std::is_same_v<Plain, ButtonRec>) {
                    visitFields<Rec, 8, Value>(owner, rec, ButtonRefs, visit);
                } else if constexpr (std::is_same_v<Plain, CursorRec>) {
                    visitFields<Rec, 1, Value>(owner, rec, CursorRefs, visit);
                } else if constexpr (std::is_same_v<Plain, TextRec>) {
                    visitFields<Rec, 2, Value>(owner, rec, TextRefs, visit);
                } else if constexpr (std::is_same_v<Plain, SpriteRec>) {
                    visitFields<Rec, 1, Value>(owner, rec, SpriteRefs, visit);
                } else if constexpr (std::is_same_v<Plain, SceneRec>) {
                    int number = 0;
                    for (auto &layer : rec.layers) {
                        if (layer.inUse != -1)
                            continue;
                        ++number;
                        const std::optional<Kind> target = layerObjectKind(layer.objectKind);
                        if (target)
                            visit(owner,
                                  "layer " + std::to_string(number),
                                  *target,
                                  static_cast<Value &>(layer.objectId));
                    }
                }
            }
        });
    }
}

} // namespace

std::string kindCaption(Kind kind)
{
    return Captions[static_cast<size_t>(kindIndex(kind))];
}

std::optional<Kind> kindFromWord(std::string_view word)
{
    for (Kind kind : ListOrder) {
        std::string caption = kindCaption(kind);
        caption[0] = static_cast<char>(caption[0] - 'A' + 'a');
        if (word == caption || word == kindInfo(kind).name)
            return kind;
    }
    return std::nullopt;
}

std::string objectIdentifier(const Document &doc, ObjectRef object)
{
    return withTable(doc, object.kind, [&](const auto &table) -> std::string {
        const auto &rec = table[static_cast<size_t>(object.slot)];
        if (rec.isNew == 0)
            return rec.id;
        for (const ListLine &line : doc.list(object.kind).lines) {
            if (line.slot == object.slot)
                return line.text;
        }
        return rec.id;
    });
}

void forEachReference(
    Document &doc,
    const std::function<void(ObjectRef, const std::string &, Kind, std::string &)> &visit)
{
    visitAll<Document, std::string>(doc, visit);
}

void forEachReference(
    const Document &doc,
    const std::function<void(ObjectRef, const std::string &, Kind, const std::string &)> &visit)
{
    visitAll<const Document, const std::string>(doc, visit);
}

std::vector<Reference> usedBy(const Document &doc, ObjectRef object)
{
    std::vector<Reference> found;
    if (!slotInTable(object.kind, object.slot))
        return found;
    const std::string id = objectIdentifier(doc, object);
    forEachReference(
        doc, [&](ObjectRef owner, const std::string &field, Kind target, const std::string &value) {
            if (target == object.kind && value == id)
                found.push_back({owner, field});
        });
    return found;
}

std::string referenceLine(const Document &doc, const Reference &reference)
{
    return kindCaption(reference.owner.kind) + " \"" + objectIdentifier(doc, reference.owner) +
           "\": " + reference.field;
}

std::vector<std::string> usedByLines(const Document &doc, ObjectRef object)
{
    std::vector<std::string> lines;
    for (const Reference &reference : usedBy(doc, object))
        lines.push_back(referenceLine(doc, reference));
    if (lines.empty())
        lines.emplace_back("Not used by any object");
    return lines;
}

std::vector<Reference> animationUsedBy(const Document &doc, int spriteSlot, int animSlot)
{
    std::vector<Reference> found;
    if (!slotInTable(Kind::Sprite, spriteSlot) || animSlot < 0 || animSlot >= SubSlotCount)
        return found;
    const SpriteRec &sprite = doc.Sprites[static_cast<size_t>(spriteSlot)];
    if (sprite.currentAnimId == sprite.anims[static_cast<size_t>(animSlot)].id)
        found.push_back({{Kind::Sprite, spriteSlot}, "current animation"});
    return found;
}

} // namespace vorlane
