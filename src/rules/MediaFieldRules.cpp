#include "rules/MediaFieldRules.h"

#include "rules/FieldRules.h"

#include <cstddef>
#include <stdexcept>

namespace vorlane {

namespace {

template<class Table>
auto &recordAt(Table &table, int slot)
{
    if (slot < 0)
        throw std::out_of_range("slot outside its table");
    return table.at(static_cast<size_t>(slot));
}

} // namespace

MediaFields mediaFields(Document &doc, Kind kind, int slot)
{
    switch (kind) {
    case Kind::Font: {
        FontRec &font = recordAt(doc.Fonts, slot);
        return {font.id, font.path, nullptr};
    }
    case Kind::Music: {
        MusicRec &track = recordAt(doc.MusicTracks, slot);
        return {track.id, track.path, &track};
    }
    case Kind::SFX: {
        SFXRec &effect = recordAt(doc.SoundEffects, slot);
        return {effect.id, effect.path, &effect};
    }
    default:
        break;
    }
    throw std::invalid_argument("not a font, music or sound-effect kind");
}

void setMediaDefaults(const MediaFields &fields)
{
    fields.path = NullText;
    if (fields.playback) {
        fields.playback->defaultVolume = 0;
        fields.playback->defaultPriority = 0;
        fields.playback->defaultPan = 0;
    }
}

} // namespace vorlane
