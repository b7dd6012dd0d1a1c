#pragma once

#include "model/modGlobal.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>

// The lines of a project file, field by field. The writer and the reader both walk these
// tuples, so a line's fields, their order and their accepted ranges are stated once.
namespace vorlane::layout {

// A text field: written between double quotes, nothing escaped.
template<class Rec>
struct TextField
{
    const char *name;
    std::string Rec::*member;
};

// An integer field and the range the reader accepts for it.
template<class Rec, class Int>
struct IntField
{
    const char *name;
    Int Rec::*member;
    int64_t min;
    int64_t max;
};

template<class Rec>
constexpr TextField<Rec> text(const char *name, std::string Rec::*member)
{
    return {name, member};
}

template<class Rec>
constexpr IntField<Rec, int16_t> i16(const char *name, int16_t Rec::*member)
{
    return {name, member, std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max()};
}

template<class Rec>
constexpr IntField<Rec, int32_t> i32(const char *name, int32_t Rec::*member)
{
    return {name, member, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()};
}

// A count that decides how many lines follow; it may not exceed the slots it fills. Its own
// type, so that a form that holds the lines themselves (the JSON form) can leave it out.
template<class Rec>
struct CountField : IntField<Rec, int16_t>
{
};

template<class Rec>
constexpr CountField<Rec> count(const char *name, int16_t Rec::*member, int max)
{
    return {{name, member, 0, max}};
}

// The byte order mark that begins a project file written in UTF-8; a file without it is
// Windows-1252, as every file was before UTF-8 was needed.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

inline constexpr int MaxCustomFilters = CustomFilterSlots - 1; // the reader fills slots 1..50

// A button whose id begins with "_" is a hot spot and takes the short line, whatever its
// isHotSpot flag says.
inline bool isHotSpotId(const std::string &id)
{
    return !id.empty() && id.front() == '_';
}

inline constexpr auto ProjectNameLine =
    std::tuple{text("projectName", &ProjectInfoRec::projectName)};
inline constexpr auto ProjectPathLine =
    std::tuple{text("projectFilePath", &ProjectInfoRec::projectFilePath),
               text("generatePath", &ProjectInfoRec::generatePath)};

using App = AppSettingsRec;
inline constexpr auto AppLine1 = std::tuple{text("rootFolder", &App::rootFolder),
                                            text("windowCaption", &App::windowCaption),
                                            text("windowIcon", &App::windowIcon),
                                            i16("screenWidth", &App::screenWidth),
                                            i16("screenHeight", &App::screenHeight),
                                            i16("screenBpp", &App::screenBpp),
                                            i16("screenType", &App::screenType),
                                            i16("fps", &App::fps),
                                            i16("splashEnabled", &App::splashEnabled)};
inline constexpr auto AppSplashLine = std::tuple{i16("splashWidth", &App::splashWidth),
                                                 i16("splashHeight", &App::splashHeight),
                                                 i16("splashBpp", &App::splashBpp),
                                                 text("splashImagePath", &App::splashImagePath),
                                                 i16("splashTimer", &App::splashTimer),
                                                 i16("splashRed", &App::splashRed),
                                                 i16("splashGreen", &App::splashGreen),
                                                 i16("splashBlue", &App::splashBlue)};
inline constexpr auto AppLine3 = std::tuple{i32("soundMix", &App::soundMix),
                                            i16("soundChannels", &App::soundChannels),
                                            i16("logEnabled", &App::logEnabled),
                                            i16("useEngineScreen", &App::useEngineScreen),
                                            text("logPath", &App::logPath)};

// Every button line starts with these; a hot spot ("_" id) continues with the short tail,
// every other button with the long one.
inline constexpr auto ButtonHead = std::tuple{text("id", &ButtonRec::id),
                                              i16("x", &ButtonRec::x),
                                              i16("y", &ButtonRec::y),
                                              text("cursorId", &ButtonRec::cursorId),
                                              i16("currentFrame", &ButtonRec::currentFrame)};
inline constexpr auto HotSpotTail = std::tuple{i16("hotSpotWidth", &ButtonRec::hotSpotWidth),
                                               i16("hotSpotHeight", &ButtonRec::hotSpotHeight)};
inline constexpr auto ButtonTail = std::tuple{i16("frameDisabled", &ButtonRec::frameDisabled),
                                              i16("frameUp", &ButtonRec::frameUp),
                                              i16("frameOver", &ButtonRec::frameOver),
                                              i16("frameDown", &ButtonRec::frameDown),
                                              text("templateId", &ButtonRec::templateId),
                                              i16("templateRows", &ButtonRec::templateRows),
                                              i16("templateColumns", &ButtonRec::templateColumns),
                                              text("iconId", &ButtonRec::iconId),
                                              text("captionTextId", &ButtonRec::captionTextId),
                                              i16("visible", &ButtonRec::visible),
                                              i16("iconVisible", &ButtonRec::iconVisible),
                                              i16("captionVisible", &ButtonRec::captionVisible),
                                              text("soundUp", &ButtonRec::soundUp),
                                              text("soundDown", &ButtonRec::soundDown),
                                              text("soundOver", &ButtonRec::soundOver),
                                              text("soundDisabled", &ButtonRec::soundDisabled)};

inline constexpr auto ImageLine = std::tuple{text("id", &ImageRec::id),
                                             text("path", &ImageRec::path),
                                             i16("red", &ImageRec::red),
                                             i16("green", &ImageRec::green),
                                             i16("blue", &ImageRec::blue),
                                             i16("cellWidth", &ImageRec::cellWidth),
                                             i16("cellHeight", &ImageRec::cellHeight),
                                             i16("positionX", &ImageRec::positionX),
                                             i16("positionY", &ImageRec::positionY),
                                             i16("visible", &ImageRec::visible),
                                             i16("bound", &ImageRec::bound),
                                             i16("alpha", &ImageRec::alpha)};

inline constexpr auto CursorLine = std::tuple{text("id", &CursorRec::id),
                                              text("imageId", &CursorRec::imageId),
                                              i16("orientation", &CursorRec::orientation)};

// The content comes first: a text line is the one record that does not begin with its id.
inline constexpr auto TextLine = std::tuple{text("content", &TextRec::content),
                                            text("id", &TextRec::id),
                                            text("fontId", &TextRec::fontId),
                                            i16("x", &TextRec::x),
                                            i16("y", &TextRec::y),
                                            i16("centered", &TextRec::centered),
                                            i16("visible", &TextRec::visible),
                                            i16("repeat", &TextRec::repeat),
                                            i16("delay", &TextRec::delay),
                                            i16("clipWidth", &TextRec::clipWidth),
                                            i16("clipHeight", &TextRec::clipHeight),
                                            i16("textType", &TextRec::textType),
                                            text("selectionImageId", &TextRec::selectionImageId),
                                            i16("pointSize", &TextRec::pointSize),
                                            i16("styleNormal", &TextRec::styleNormal),
                                            i16("styleItalic", &TextRec::styleItalic),
                                            i16("styleBold", &TextRec::styleBold),
                                            i16("styleUnderline", &TextRec::styleUnderline),
                                            i16("foreRed", &TextRec::foreRed),
                                            i16("foreGreen", &TextRec::foreGreen),
                                            i16("foreBlue", &TextRec::foreBlue),
                                            i16("backRed", &TextRec::backRed),
                                            i16("backGreen", &TextRec::backGreen),
                                            i16("backBlue", &TextRec::backBlue)};

inline constexpr auto FontLine = std::tuple{text("id", &FontRec::id), text("path", &FontRec::path)};

// Sound effects share the music layout (SFXRec is a MusicRec).
inline constexpr auto MusicLine = std::tuple{text("id", &MusicRec::id),
                                             text("path", &MusicRec::path),
                                             i16("defaultVolume", &MusicRec::defaultVolume),
                                             i16("defaultPriority", &MusicRec::defaultPriority),
                                             i16("defaultPan", &MusicRec::defaultPan)};

inline constexpr auto SpriteLine =
    std::tuple{text("id", &SpriteRec::id),
               text("imageId", &SpriteRec::imageId),
               text("currentAnimId", &SpriteRec::currentAnimId),
               i16("positionX", &SpriteRec::positionX),
               i16("positionY", &SpriteRec::positionY),
               i16("visible", &SpriteRec::visible),
               count("animCount", &SpriteRec::animCount, SubSlotCount)};
inline constexpr auto AnimLine =
    std::tuple{text("id", &AnimRec::id), count("frameCount", &AnimRec::frameCount, SubSlotCount)};
inline constexpr auto FrameLine = std::tuple{i16("cell", &FrameRec::cell)};
inline constexpr auto AnimSettingsLine = std::tuple{i16("frameDelay", &AnimRec::frameDelay),
                                                    i16("animDelay", &AnimRec::animDelay),
                                                    i16("repeat", &AnimRec::repeat),
                                                    i16("play", &AnimRec::play),
                                                    i16("direction", &AnimRec::direction),
                                                    i16("defaultFrame", &AnimRec::defaultFrame)};

inline constexpr auto SceneLine =
    std::tuple{text("id", &SceneRec::id),
               i16("useCursor", &SceneRec::useCursor),
               i16("useMusic", &SceneRec::useMusic),
               count("layerCount", &SceneRec::layerCount, SubSlotCount)};
inline constexpr auto LayerLine =
    std::tuple{text("objectId", &LayerRec::objectId), i16("objectKind", &LayerRec::objectKind)};

inline constexpr auto LogCountsLine =
    std::tuple{i16("logFileFilterCount", &App::logFileFilterCount),
               i16("logTypeFilterCount", &App::logTypeFilterCount)};
inline constexpr auto CustomFilterCountLine =
    std::tuple{count("customFilterCount", &App::customFilterCount, MaxCustomFilters)};
inline constexpr auto CustomFilterLine = std::tuple{text("text", &CustomFilterRec::text)};

} // namespace vorlane::layout
