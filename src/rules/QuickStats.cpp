#include "rules/QuickStats.h"

#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace vorlane {

namespace {

// The project's marker for an unset reference, path or optional text.
constexpr std::string_view Unset = "null";

std::string number(std::string_view prefix, long long value)
{
    return std::string(prefix) + std::to_string(value);
}

// Flags hold a check box's value, so only 1 counts as set: -1 reads as "no" on purpose.
std::string flag(std::string_view prefix,
                 int16_t value,
                 std::string_view whenSet = "YES",
                 std::string_view otherwise = "NO")
{
    return std::string(prefix) + std::string(value == 1 ? whenSet : otherwise);
}

std::string enabled(std::string_view prefix, int16_t value)
{
    return flag(prefix, value, "ENABLED", "DISABLED");
}

// Only the literal "null" counts as unset; an empty text is a value like any other.
std::string hasText(std::string_view prefix, const std::string &text)
{
    return std::string(prefix) + (text != Unset ? "YES" : "NO");
}

std::string textOr(std::string_view prefix, const std::string &text, std::string_view whenUnset)
{
    return text == Unset ? std::string(whenUnset) : std::string(prefix) + text;
}

// The caption of the first case whose code equals `value`; nothing (the label is left as it
// is) when no case matches.
std::optional<std::string> firstMatch(std::string_view prefix,
                                      int value,
                                      std::initializer_list<std::pair<int, std::string_view>> cases)
{
    for (const auto &[code, name] : cases) {
        if (value == code)
            return std::string(prefix) + std::string(name);
    }
    return std::nullopt;
}

// Collects the labels of one panel in the order the panel sets them.
class Panel
{
public:
    Panel &set(const char *label, std::optional<std::string> caption)
    {
        m_stats.labels.push_back({label, std::move(caption)});
        return *this;
    }
    QuickStats done() { return std::move(m_stats); }

private:
    QuickStats m_stats;
};

// An item still new (added, never opened in its editor) shows the cover and changes nothing.
template<class Rec, class Fill>
QuickStats unlessNew(const Rec &rec, Fill &&fill)
{
    if (rec.isNew == -1)
        return QuickStats{true, {}};
    Panel panel;
    fill(panel, rec);
    return panel.done();
}

template<class Table>
const auto &at(const Table &table, int slot)
{
    if (slot < 0)
        throw std::out_of_range("slot outside its table");
    return table.at(static_cast<size_t>(slot));
}

// Music tracks and sound effects share their record layout and differ only in these names.
struct SoundPanel
{
    const char *path;
    const char *volume;
    const char *pan;
    const char *priority;
    std::string_view pathPrefix;
};

constexpr SoundPanel MusicPanel{"lblMusicStatsPath",
                                "lblMusicStatsVolume",
                                "lblMusicStatsPan",
                                "lblMusicStatsPriority",
                                "Music Path: "};
constexpr SoundPanel SFXPanel{
    "lblSFXStatsPath", "lblSFXStatsVolume", "lblSFXStatsPan", "lblSFXStatsPriority", "SFX Path: "};

QuickStats soundStats(const MusicRec &rec, const SoundPanel &names)
{
    return unlessNew(rec, [&names](Panel &panel, const MusicRec &r) {
        panel.set(names.path, textOr(names.pathPrefix, r.path, names.pathPrefix))
            .set(names.volume, number("Default Volume: ", r.defaultVolume))
            .set(names.pan, number("Default Pan: ", r.defaultPan))
            .set(names.priority, number("Default Priority: ", r.defaultPriority));
    });
}

} // namespace

std::optional<std::string> QuickStats::captionOf(const std::string &label) const
{
    for (const StatLabel &entry : labels) {
        if (entry.label == label)
            return entry.caption;
    }
    return std::nullopt;
}

QuickStats UpdateButtonStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Buttons, slot), [](Panel &panel, const ButtonRec &b) {
        const bool hasSounds = b.soundUp != Unset || b.soundDown != Unset || b.soundOver != Unset ||
                               b.soundDisabled != Unset;
        panel.set("lblButtonStatsPosX", number("Button X: ", b.x))
            .set("lblButtonStatsPosY", number("Button Y: ", b.y))
            // A frame shared by two states reads as the first of them in this order.
            .set("lblButtonStatsState",
                 firstMatch("Button State: ",
                            b.currentFrame,
                            {{b.frameDisabled, "DISABLED"},
                             {b.frameDown, "DOWN"},
                             {b.frameUp, "UP"},
                             {b.frameOver, "OVER"}}))
            .set("lblButtonStatsVisible", flag("Button Visible: ", b.visible))
            .set("lblButtonStatsCaption", hasText("Has Caption: ", b.captionTextId))
            .set("lblButtonStatsSound", std::string("Has Sounds: ") + (hasSounds ? "YES" : "NO"))
            .set("lblButtonStatsCursor", hasText("Has Cursor: ", b.cursorId))
            .set("lblButtonStatsIcon", hasText("Has Icon: ", b.iconId));
    });
}

QuickStats UpdateCursorStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Cursors, slot), [](Panel &panel, const CursorRec &c) {
        panel
            .set("lblCursorStatsOrientation",
                 firstMatch("Cursor Orientation: ",
                            c.orientation,
                            {{1, "CENTER"},
                             {2, "LOWER-LEFT"},
                             {3, "LOWER-RIGHT"},
                             {4, "UPPER-RIGHT"},
                             {5, "UPPER-LEFT"}}))
            .set("lblCursorStatsImage", "Cursor Image: " + c.imageId);
    });
}

QuickStats UpdateImageStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Images, slot), [](Panel &panel, const ImageRec &i) {
        panel.set("lblImageStatsPathBottom", textOr("", i.path, ""))
            .set("lblImageStatsRed", number("Transparent R: ", i.red))
            .set("lblImageStatsGreen", number("Transparent G: ", i.green))
            .set("lblImageStatsBlue", number("Transparent B: ", i.blue))
            .set("lblImageStatsAlpha", number("Alpha Value: ", i.alpha))
            .set("lblImageStatsWidth", number("Img Width: ", i.cellWidth))
            .set("lblImageStatsHeight", number("Img Height: ", i.cellHeight))
            .set("lblImageStatsPosX", number("Image X: ", i.positionX))
            .set("lblImageStatsPosY", number("Image Y: ", i.positionY))
            .set("lblImageStatsBound", flag("Is Bound: ", i.bound))
            .set("lblImageStatsVisible", flag("Is Visible: ", i.visible));
    });
}

QuickStats UpdateTextStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Texts, slot), [](Panel &panel, const TextRec &t) {
        panel.set("lblTextStatsFont", textOr("Font: ", t.fontId, "Font: "))
            .set("lblTextStatsPosX", number("Text X: ", t.x))
            .set("lblTextStatsPosY", number("Text Y: ", t.y))
            .set("lblTextStatsCentered", flag("Text Centered: ", t.centered))
            .set("lblTextStatsVisible", flag("Text Visible: ", t.visible))
            .set("lblTextStatsPoint", number("Text Point: ", t.pointSize))
            .set("lblTextStatsDelay", number("Text Delay: ", t.delay))
            .set("lblTextStatsRepeat", flag("Repeat On: ", t.repeat))
            .set("lblTextStatsClipWidth", number("Clip Width: ", t.clipWidth))
            // The clip-height label has always shown the clip width; users know it so.
            .set("lblTextStatsClipHeight", number("Clip Height: ", t.clipWidth))
            .set("lblTextStatsType",
                 firstMatch(
                     "Text Type: ", t.textType, {{0, "NORMAL"}, {1, "INPUT"}, {2, "SELECT"}}));
    });
}

QuickStats UpdateFontStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Fonts, slot), [](Panel &panel, const FontRec &f) {
        panel.set("lblFontStatsPath", textOr("Font Path: ", f.path, "Font Path: "));
    });
}

QuickStats UpdateMusicStats(const Document &doc, int slot)
{
    return soundStats(at(doc.MusicTracks, slot), MusicPanel);
}

QuickStats UpdateSFXStats(const Document &doc, int slot)
{
    return soundStats(at(doc.SoundEffects, slot), SFXPanel);
}

QuickStats UpdateSpriteStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Sprites, slot), [](Panel &panel, const SpriteRec &s) {
        panel.set("lblSpriteStatsImage", textOr("Sprite Image: ", s.imageId, "Sprite Image:"))
            .set("lblSpriteStatsAnim",
                 textOr("Current Animation: ", s.currentAnimId, "Current Animation:"))
            .set("lblSpriteStatsPosX", number("Sprite X: ", s.positionX))
            .set("lblSpriteStatsPosY", number("Sprite Y: ", s.positionY))
            .set("lblSpriteStatsVisible", flag("Is Visible: ", s.visible))
            .set("lblSpriteStatsAnimCount", number("# of Anims: ", s.animCount));
    });
}

QuickStats UpdateSceneStats(const Document &doc, int slot)
{
    return unlessNew(at(doc.Scenes, slot), [](Panel &panel, const SceneRec &s) {
        panel.set("lblSceneStatsLayers", number("# of Layers: ", s.layerCount))
            .set("lblSceneStatsCursor", flag("Show Mouse: ", s.useCursor))
            .set("lblSceneStatsMusic", flag("Stop Music: ", s.useMusic));
    });
}

QuickStats UpdateAppStats(const Document &doc)
{
    const AppSettingsRec &app = doc.AppSettings;
    return Panel()
        .set("lblAppStatsScreenType",
             firstMatch("Screen Type: ", app.screenType, {{1, "FULLSCREEN"}, {2, "WINDOWED"}}))
        .set("lblAppStatsCaption", "Window Caption: " + app.windowCaption)
        .set("lblAppStatsWidth", number("Screen Width: ", app.screenWidth))
        .set("lblAppStatsHeight", number("Screen Height: ", app.screenHeight))
        .set("lblAppStatsDepth", number("Screen Depth: ", app.screenBpp))
        .set("lblAppStatsFramerate", number("Framerate: ", app.fps))
        .set("lblAppStatsMixrate", number("Mixrate: ", app.soundMix))
        .set("lblAppStatsChannels", number("# Channels: ", app.soundChannels))
        .set("lblAppStatsLogging", enabled("Error Logging: ", app.logEnabled))
        .set("lblAppStatsTileEngine", enabled("Tile Engine: ", app.useEngineScreen))
        .set("lblAppStatsSplash", enabled("Splash Screen: ", app.splashEnabled))
        .done();
}

QuickStats UpdateAnimStats(const Document &doc, int indexAnim, int indexSprite)
{
    const AnimRec &anim = at(at(doc.Sprites, indexSprite).anims, indexAnim);
    return unlessNew(anim, [](Panel &panel, const AnimRec &a) {
        // "No default frame" is stored as -1, which is the 16-bit pattern 65535.
        const bool noDefault = static_cast<uint16_t>(a.defaultFrame) == 65535;
        panel.set("lblAnimStatsFrames", number("# of Frames: ", a.frameCount))
            .set("lblAnimStatsFrameDelay", number("Frame Delay: ", a.frameDelay))
            .set("lblAnimStatsAnimDelay", number("Anim Delay: ", a.animDelay))
            .set("lblAnimStatsDefFrame",
                 noDefault ? std::string("Def Frame: NONE")
                           : number("Default Frame: ", a.defaultFrame))
            .set("lblAnimStatsRepeat", flag("Repeating: ", a.repeat))
            .set("lblAnimStatsPlaying", flag("Playing: ", a.play))
            .set("lblAnimStatsDirection",
                 flag("Anim Direction: ", a.direction, "FORWARD", "REVERSE"));
    });
}

QuickStats statsFor(const Document &doc, Kind kind, int slot)
{
    switch (kind) {
    case Kind::Button:
        return UpdateButtonStats(doc, slot);
    case Kind::Cursor:
        return UpdateCursorStats(doc, slot);
    case Kind::Image:
        return UpdateImageStats(doc, slot);
    case Kind::Text:
        return UpdateTextStats(doc, slot);
    case Kind::Font:
        return UpdateFontStats(doc, slot);
    case Kind::Music:
        return UpdateMusicStats(doc, slot);
    case Kind::SFX:
        return UpdateSFXStats(doc, slot);
    case Kind::Sprite:
        return UpdateSpriteStats(doc, slot);
    case Kind::Scene:
        break;
    }
    return UpdateSceneStats(doc, slot);
}

} // namespace vorlane
