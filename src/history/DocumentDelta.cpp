#include "history/DocumentDelta.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>

namespace vorlane {

namespace {

// The heap memory a text holds beyond the string object itself.
std::size_t heapBytes(const std::string &text)
{
    static const std::size_t inPlace = std::string().capacity();
    return text.capacity() > inPlace ? text.capacity() + 1 : 0;
}

template<class Rec, class... Texts>
std::size_t textBytes(const Rec &rec, Texts... texts)
{
    return (heapBytes(rec.*texts) + ...);
}

std::size_t heapBytes(const ButtonRec &r)
{
    using R = ButtonRec;
    return textBytes(r,
                     &R::id,
                     &R::cursorId,
                     &R::templateId,
                     &R::iconId,
                     &R::captionTextId,
                     &R::soundUp,
                     &R::soundDown,
                     &R::soundOver,
                     &R::soundDisabled);
}

std::size_t heapBytes(const CursorRec &r)
{
    return textBytes(r, &CursorRec::id, &CursorRec::imageId);
}

std::size_t heapBytes(const ImageRec &r)
{
    return textBytes(r, &ImageRec::id, &ImageRec::path);
}

std::size_t heapBytes(const TextRec &r)
{
    using R = TextRec;
    return textBytes(r, &R::id, &R::content, &R::fontId, &R::selectionImageId);
}

std::size_t heapBytes(const FontRec &r)
{
    return textBytes(r, &FontRec::id, &FontRec::path);
}

std::size_t heapBytes(const MusicRec &r)
{
    return textBytes(r, &MusicRec::id, &MusicRec::path);
}

std::size_t heapBytes(const AnimRec &r)
{
    return heapBytes(r.id);
}

std::size_t heapBytes(const SceneRec &r)
{
    std::size_t bytes = heapBytes(r.id);
    for (const LayerRec &layer : r.layers)
        bytes += heapBytes(layer.objectId);
    return bytes;
}

std::size_t heapBytes(const AppSettingsRec &r)
{
    using R = AppSettingsRec;
    std::size_t bytes = textBytes(
        r, &R::windowCaption, &R::windowIcon, &R::splashImagePath, &R::logPath, &R::rootFolder);
    for (const CustomFilterRec &filter : r.CustomFilters)
        bytes += heapBytes(filter.text);
    return bytes;
}

// A sprite's own fields, without its animations, which change one by one.
struct SpriteHead
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    std::string imageId;
    std::string currentAnimId;
    int16_t animCount = 0;
    int16_t positionX = 0;
    int16_t positionY = 0;
    int16_t visible = 0;
    int32_t reserved = 0;

    explicit SpriteHead(const SpriteRec &s)
        : inUse(s.inUse)
        , isNew(s.isNew)
        , id(s.id)
        , imageId(s.imageId)
        , currentAnimId(s.currentAnimId)
        , animCount(s.animCount)
        , positionX(s.positionX)
        , positionY(s.positionY)
        , visible(s.visible)
        , reserved(s.reserved)
    {}

    void putInto(SpriteRec &s) const
    {
        s.inUse = inUse;
        s.isNew = isNew;
        s.id = id;
        s.imageId = imageId;
        s.currentAnimId = currentAnimId;
        s.animCount = animCount;
        s.positionX = positionX;
        s.positionY = positionY;
        s.visible = visible;
        s.reserved = reserved;
    }

    bool operator==(const SpriteHead &) const = default;
};

std::size_t heapBytes(const SpriteHead &r)
{
    return textBytes(r, &SpriteHead::id, &SpriteHead::imageId, &SpriteHead::currentAnimId);
}

// Every counter of the document.
struct Counters
{
    std::array<int16_t, KindCount> objectCounts{};
    std::array<int16_t, 7> values{};

    explicit Counters(const Document &d)
        : objectCounts(d.ObjectCounts)
        , values{d.customFilterOverflow,
                 d.animOverflow,
                 d.frameOverflow,
                 d.layerOverflow,
                 d.newObjectCounter,
                 d.currentObjectIndex,
                 d.currentAnimIndex}
    {}

    void putInto(Document &d) const
    {
        d.ObjectCounts = objectCounts;
        d.customFilterOverflow = values[0];
        d.animOverflow = values[1];
        d.frameOverflow = values[2];
        d.layerOverflow = values[3];
        d.newObjectCounter = values[4];
        d.currentObjectIndex = values[5];
        d.currentAnimIndex = values[6];
    }

    bool operator==(const Counters &) const = default;
};

std::size_t heapBytes(const Counters &)
{
    return 0;
}

// ProjectInfo and the file the project was opened from.
struct ProjectPlace
{
    ProjectInfoRec info;
    std::string openedFrom;

    explicit ProjectPlace(const Document &d)
        : info(d.ProjectInfo)
        , openedFrom(d.openedFrom)
    {}

    void putInto(Document &d) const
    {
        d.ProjectInfo = info;
        d.openedFrom = openedFrom;
    }

    bool operator==(const ProjectPlace &) const = default;
};

std::size_t heapBytes(const ProjectPlace &r)
{
    return heapBytes(r.info.projectName) + heapBytes(r.info.projectFilePath) +
           heapBytes(r.info.generatePath) + heapBytes(r.openedFrom);
}

// The lines of a list that a step replaced: the run between the lines it kept at the front
// and at the back, and the selection.
struct ListChange
{
    std::size_t front = 0; // lines kept at the front
    std::size_t back = 0;  // lines kept at the back
    std::vector<ListLine> lines;
    int selected = -1;

    bool operator==(const ListChange &) const = default;
};

std::size_t heapBytes(const ListChange &change)
{
    std::size_t bytes = change.lines.capacity() * sizeof(ListLine);
    for (const ListLine &line : change.lines)
        bytes += heapBytes(line.text);
    return bytes;
}

// Puts `change` into `list`, whose lines outside the changed run are those the change kept.
void putListChange(ObjectList &list, const ListChange &change)
{
    // Bounded by the list as it is, should something outside a step have changed it.
    const std::size_t size = list.lines.size();
    const std::size_t front = std::min(change.front, size);
    const std::size_t back = std::min(change.back, size - front);
    list.lines.erase(list.lines.begin() + static_cast<std::ptrdiff_t>(front),
                     list.lines.end() - static_cast<std::ptrdiff_t>(back));
    list.lines.insert(list.lines.begin() + static_cast<std::ptrdiff_t>(front),
                      change.lines.begin(),
                      change.lines.end());
    list.selected = change.selected;
}

// One part: its two values and how one of them is put into a document.
template<class Value, class Put>
class ValuePart final : public DocumentDelta::Part
{
public:
    ValuePart(Value before, Value after, Put put)
        : m_before(std::move(before))
        , m_after(std::move(after))
        , m_put(std::move(put))
    {}

    void put(Document &doc, bool after) const override { m_put(doc, after ? m_after : m_before); }
    std::size_t bytes() const override
    {
        return sizeof(*this) + heapBytes(m_before) + heapBytes(m_after);
    }

private:
    Value m_before;
    Value m_after;
    Put m_put;
};

using Parts = std::vector<std::unique_ptr<DocumentDelta::Part>>;

template<class Value, class Put>
void addPart(Parts &parts, Value before, Value after, Put put)
{
    parts.push_back(std::make_unique<ValuePart<Value, Put>>(
        std::move(before), std::move(after), std::move(put)));
}

// Each changed slot of a table whose records are stored whole.
template<class Rec, std::size_t N>
void diffTable(Parts &parts,
               const Document &before,
               const Document &after,
               std::array<Rec, N> Document::*table)
{
    const auto &was = before.*table;
    const auto &is = after.*table;
    for (std::size_t slot = 0; slot < N; ++slot) {
        if (was[slot] == is[slot])
            continue;
        addPart(parts, was[slot], is[slot], [table, slot](Document &doc, const Rec &value) {
            (doc.*table)[slot] = value;
        });
    }
}

// Animations hold most of the document: their frames are compared as the bytes they are. The
// fields are those of AnimRec, in its order.
static_assert(std::has_unique_object_representations_v<FrameRec>);
bool sameAnim(const AnimRec &a, const AnimRec &b)
{
    return a.inUse == b.inUse && a.isNew == b.isNew && a.frameCount == b.frameCount &&
           a.frameDelay == b.frameDelay && a.animDelay == b.animDelay && a.repeat == b.repeat &&
           a.play == b.play && a.direction == b.direction && a.defaultFrame == b.defaultFrame &&
           a.id == b.id && std::memcmp(a.frames.data(), b.frames.data(), sizeof(a.frames)) == 0;
}

// A sprite holds 101 animations of 101 frames: a changed sprite keeps its own fields and
// only the animations that changed, so that editing one sprite stays small.
void diffSprites(Parts &parts, const Document &before, const Document &after)
{
    for (std::size_t slot = 0; slot < before.Sprites.size(); ++slot) {
        const SpriteRec &was = before.Sprites[slot];
        const SpriteRec &is = after.Sprites[slot];
        SpriteHead wasHead(was);
        SpriteHead isHead(is);
        if (!(wasHead == isHead)) {
            addPart(parts,
                    std::move(wasHead),
                    std::move(isHead),
                    [slot](Document &doc, const SpriteHead &value) {
                        value.putInto(doc.Sprites[slot]);
                    });
        }
        for (std::size_t anim = 0; anim < was.anims.size(); ++anim) {
            if (sameAnim(was.anims[anim], is.anims[anim]))
                continue;
            addPart(parts,
                    was.anims[anim],
                    is.anims[anim],
                    [slot, anim](Document &doc, const AnimRec &value) {
                        doc.Sprites[slot].anims[anim] = value;
                    });
        }
    }
}

// A whole value of the document that is stored whole when it changed.
template<class Value, class Put>
void diffValue(Parts &parts, Value was, Value is, Put put)
{
    if (!(was == is))
        addPart(parts, std::move(was), std::move(is), std::move(put));
}

} // namespace

DocumentDelta::~DocumentDelta() = default;

DocumentDelta DocumentDelta::between(const Document &before, const Document &after)
{
    DocumentDelta delta;
    Parts &parts = delta.m_parts;
    diffTable(parts, before, after, &Document::Buttons);
    diffTable(parts, before, after, &Document::Cursors);
    diffTable(parts, before, after, &Document::Images);
    diffTable(parts, before, after, &Document::Texts);
    diffTable(parts, before, after, &Document::Fonts);
    diffTable(parts, before, after, &Document::MusicTracks);
    diffTable(parts, before, after, &Document::SoundEffects);
    diffSprites(parts, before, after);
    diffTable(parts, before, after, &Document::Scenes);
    if (!(before.AppSettings == after.AppSettings)) {
        addPart(parts,
                before.AppSettings,
                after.AppSettings,
                [](Document &doc, const AppSettingsRec &value) { doc.AppSettings = value; });
    }
    diffValue(parts, ProjectPlace(before), ProjectPlace(after), [](Document &doc, const auto &v) {
        v.putInto(doc);
    });
    diffValue(parts, Counters(before), Counters(after), [](Document &doc, const auto &v) {
        v.putInto(doc);
    });
    // A list keeps only the run of lines that changed: adding or removing one object costs
    // one line, not the list.
    for (std::size_t list = 0; list < before.lists.size(); ++list) {
        const auto &was = before.lists[list];
        const auto &is = after.lists[list];
        if (was == is)
            continue;
        const std::size_t shorter = std::min(was.lines.size(), is.lines.size());
        std::size_t front = 0;
        while (front < shorter && was.lines[front] == is.lines[front])
            ++front;
        std::size_t back = 0;
        while (back < shorter - front &&
               was.lines[was.lines.size() - 1 - back] == is.lines[is.lines.size() - 1 - back])
            ++back;
        auto run = [front, back](const ObjectList &l) {
            return ListChange{
                front,
                back,
                std::vector<ListLine>(l.lines.begin() + static_cast<std::ptrdiff_t>(front),
                                      l.lines.end() - static_cast<std::ptrdiff_t>(back)),
                l.selected};
        };
        addPart(parts, run(was), run(is), [list](Document &doc, const ListChange &value) {
            putListChange(doc.lists[list], value);
        });
    }
    delta.m_bytes = sizeof(DocumentDelta) + parts.capacity() * sizeof(parts.front());
    for (const auto &part : parts)
        delta.m_bytes += part->bytes();
    return delta;
}

void DocumentDelta::putBefore(Document &doc) const
{
    for (const auto &part : m_parts)
        part->put(doc, false);
}

void DocumentDelta::putAfter(Document &doc) const
{
    for (const auto &part : m_parts)
        part->put(doc, true);
}

} // namespace vorlane
