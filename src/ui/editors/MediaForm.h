#pragma once

#include "model/modGlobal.h"

namespace vorlane {

// What sets the font, music and sound-effect editors apart: the kind they edit and the word
// their controls' names are built on (txtFontID, txtMusicPath, txtSFXDefaultVolume).
struct MediaForm
{
    Kind kind;
    const char *name;
};

inline constexpr MediaForm FontForm{Kind::Font, "Font"};
inline constexpr MediaForm MusicForm{Kind::Music, "Music"};
inline constexpr MediaForm SFXForm{Kind::SFX, "SFX"};

} // namespace vorlane
