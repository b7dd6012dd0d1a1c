#include "model/Kinds.h"

#include <array>
#include <stdexcept>

namespace vorlane {

namespace {

const std::array<KindInfo, KindCount> Infos{{
    {Kind::Button,
     "button",
     "Button Data",
     100,
     "No space left for buttons! (Max 100)",
     "Saving Button Data...",
     "Loading Button Data...",
     "Generating Button Data...",
     "button.dat"},
    {Kind::Cursor,
     "cursor",
     "Cursor Data",
     25,
     "No space left for cursors (Max 25)!",
     "Saving Cursor Data...",
     "Loading Cursor Data...",
     "Generating Cursor Data...",
     "cursor.dat"},
    {Kind::Image,
     "image",
     "Image Data",
     200,
     "No space left for images! (Max 200)",
     "Saving Image Data...",
     "Loading Image Data...",
     "Generating Image Data...",
     "image.dat"},
    {Kind::Text,
     "text",
     "Text Data",
     200,
     "No space left for texts! (Max 200)",
     "Saving Text Data...",
     "Loading Text Data...",
     "Generating Text Data...",
     "text.dat"},
    {Kind::Font,
     "font",
     "Font Data",
     25,
     "No space left for fonts! (Max 25)",
     "Saving Font Data...",
     "Loading Font Data...",
     "Generating Font Data...",
     "font.dat"},
    {Kind::Music,
     "music",
     "Music Data",
     100,
     "No space left for music! (Max 100)",
     "Saving Music Data...",
     "Loading Music Data...",
     "Generating Music Data...",
     "music.dat"},
    {Kind::SFX,
     "sfx",
     "SFX Data",
     200,
     "No space left for sfx! (Max 200)",
     "Saving SFX Data...",
     "Loading SFX Data...",
     "Generating SFX Data...",
     "sfx.dat"},
    {Kind::Sprite,
     "sprite",
     "Sprite Data",
     200,
     "No space left for sprites! (Max 200)",
     "Saving Sprite Data...",
     "Loading Sprite Data...",
     "Generating Sprite Data...",
     "sprite.dat"},
    {Kind::Scene,
     "scene",
     "Scene Data",
     100,
     "No space left for scenes! (Max 100)",
     "Saving Scene Data...",
     "Loading Scene Data...",
     "Generating Scene Data...",
     "scene.dat"},
}};

} // namespace

const KindInfo &kindInfo(Kind kind)
{
    return Infos[kindIndex(kind)];
}

bool slotInTable(Kind kind, int slot)
{
    return slot >= 0 && slot <= kindInfo(kind).lastSlot;
}

SlotView slotOf(Document &doc, Kind kind, int slot)
{
    if (!slotInTable(kind, slot))
        throw std::out_of_range("slot outside its table");
    return withTable(doc, kind, [slot](auto &table) {
        auto &rec = table[static_cast<size_t>(slot)];
        return SlotView{rec.inUse, rec.isNew, rec.id};
    });
}

} // namespace vorlane
