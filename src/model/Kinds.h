#pragma once

#include "model/modGlobal.h"

#include <string>
#include <utility>

namespace vorlane {

// What differs between the nine kinds apart from their record layouts.
struct KindInfo
{
    Kind kind;
    const char *name;          // singular, lower case: "button", "sfx"
    const char *tabCaption;    // "Button Data"
    int lastSlot;              // last index of the table, also the maximum of list lines
    const char *fullMessage;   // shown when the list is full
    const char *saveLabel;     // progress label while saving
    const char *loadLabel;     // progress label while loading
    const char *generateLabel; // progress label while generating
    const char *dataFile;      // engine data file
};

const KindInfo &kindInfo(Kind kind);

// Calls `f` with the table of `kind`.
template<class Doc, class F>
decltype(auto) withTable(Doc &doc, Kind kind, F &&f)
{
    switch (kind) {
    case Kind::Button:
        return std::forward<F>(f)(doc.Buttons);
    case Kind::Cursor:
        return std::forward<F>(f)(doc.Cursors);
    case Kind::Image:
        return std::forward<F>(f)(doc.Images);
    case Kind::Text:
        return std::forward<F>(f)(doc.Texts);
    case Kind::Font:
        return std::forward<F>(f)(doc.Fonts);
    case Kind::Music:
        return std::forward<F>(f)(doc.MusicTracks);
    case Kind::SFX:
        return std::forward<F>(f)(doc.SoundEffects);
    case Kind::Sprite:
        return std::forward<F>(f)(doc.Sprites);
    case Kind::Scene:
        break;
    }
    return std::forward<F>(f)(doc.Scenes);
}

// The slot flags and identifier every object record begins with.
struct SlotView
{
    int16_t &inUse;
    int16_t &isNew;
    std::string &id;
};

// The flags and id of `slot` in the table of `kind`; `slot` must lie inside the table.
SlotView slotOf(Document &doc, Kind kind, int slot);

// True when `slot` is an index of the table of `kind`.
bool slotInTable(Kind kind, int slot);

} // namespace vorlane
