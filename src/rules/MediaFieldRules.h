#pragma once

#include "model/modGlobal.h"

#include <string>

namespace vorlane {

// The fields that the font, music and sound-effect editors show: every one of them names a
// file by its path; music tracks and sound effects add their default playback settings.
struct MediaFields
{
    std::string &id;
    std::string &path;
    MusicRec *playback; // volume, priority and pan; none for a font
};

// The fields of the record in `slot` of the table of `kind`. Throws std::invalid_argument for
// a kind other than the three, std::out_of_range for a slot outside its table.
MediaFields mediaFields(Document &doc, Kind kind, int slot);

// The defaults of a new font, music track or sound effect: no file, and volume, priority and
// pan 0 (the id and slot flags are set with every kind's).
void setMediaDefaults(const MediaFields &fields);

} // namespace vorlane
