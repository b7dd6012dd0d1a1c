#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// Records of the nine object tables, in their declared field order.

struct ButtonRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    int16_t x = 0;
    int16_t y = 0;
    std::string cursorId;
    int16_t currentFrame = 0;
    std::string templateId;
    int16_t frameUp = 0;
    int16_t frameDown = 0;
    int16_t frameOver = 0;
    int16_t frameDisabled = 0;
    int16_t templateRows = 0;
    int16_t templateColumns = 0;
    int16_t hotSpotWidth = 0;
    int16_t hotSpotHeight = 0;
    std::string iconId;
    int16_t visible = 0;
    int16_t captionVisible = 0;
    int16_t iconVisible = 0;
    int16_t isHotSpot = 0;
    std::string captionTextId;
    std::string soundUp;
    std::string soundDown;
    std::string soundOver;
    std::string soundDisabled;

    bool operator==(const ButtonRec &) const = default;
};

struct CursorRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    std::string imageId;
    int16_t orientation = 0;

    bool operator==(const CursorRec &) const = default;
};

struct ImageRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    std::string path;
    int16_t red = 0;
    int16_t green = 0;
    int16_t blue = 0;
    int16_t cellWidth = 0;
    int16_t cellHeight = 0;
    int16_t bound = 0;
    int16_t positionX = 0;
    int16_t positionY = 0;
    int16_t visible = 0;
    int16_t alpha = 0;

    bool operator==(const ImageRec &) const = default;
};

struct TextRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    std::string content;
    std::string fontId;
    std::string selectionImageId;
    int16_t x = 0;
    int16_t y = 0;
    int16_t clipWidth = 0;
    int16_t clipHeight = 0;
    int16_t centered = 0;
    int16_t visible = 0;
    int16_t delay = 0;
    int16_t textType = 0;
    int16_t repeat = 0;
    int16_t foreRed = 0;
    int16_t foreGreen = 0;
    int16_t foreBlue = 0;
    int16_t backRed = 0;
    int16_t backGreen = 0;
    int16_t backBlue = 0;
    int16_t pointSize = 0;
    int16_t styleNormal = 0;
    int16_t styleBold = 0;
    int16_t styleItalic = 0;
    int16_t styleUnderline = 0;

    bool operator==(const TextRec &) const = default;
};

struct FontRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    std::string path;

    bool operator==(const FontRec &) const = default;
};

// Music tracks and sound effects share one layout.
struct MusicRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    std::string path;
    int16_t defaultVolume = 0;
    int16_t defaultPriority = 0;
    int16_t defaultPan = 0;

    bool operator==(const MusicRec &) const = default;
};

struct SFXRec : MusicRec
{
    bool operator==(const SFXRec &) const = default;
};

inline constexpr int SubSlotCount = 101; // animations, frames and layers: slots 0..100

struct FrameRec
{
    int16_t inUse = 0;
    int16_t cell = 0;

    bool operator==(const FrameRec &) const = default;
};

struct AnimRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    int16_t frameCount = 0;
    std::array<FrameRec, SubSlotCount> frames{};
    int16_t frameDelay = 0;
    int16_t animDelay = 0;
    int16_t repeat = 0;
    int16_t play = 0;
    int16_t direction = 0;
    int16_t defaultFrame = 0;

    bool operator==(const AnimRec &) const = default;
};

struct SpriteRec
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
    std::array<AnimRec, SubSlotCount> anims{};
    int32_t reserved = 0;

    bool operator==(const SpriteRec &) const = default;
};

struct LayerRec
{
    int16_t inUse = 0;
    int16_t objectKind = 0;
    std::string objectId;

    bool operator==(const LayerRec &) const = default;
};

struct SceneRec
{
    int16_t inUse = 0;
    int16_t isNew = 0;
    std::string id;
    int16_t layerCount = 0;
    int16_t useCursor = 0;
    int16_t useMusic = 0;
    std::array<LayerRec, SubSlotCount> layers{};

    bool operator==(const SceneRec &) const = default;
};

struct CustomFilterRec
{
    int16_t inUse = 0;
    std::string text;

    bool operator==(const CustomFilterRec &) const = default;
};

inline constexpr int LogTypeCount = 7;
inline constexpr int LogModuleCount = 11;
inline constexpr int CustomFilterSlots = 51; // slots 0..50

struct AppSettingsRec
{
    int16_t screenWidth = 0;
    int16_t screenHeight = 0;
    int16_t screenBpp = 0;
    int16_t splashWidth = 0;
    int16_t splashHeight = 0;
    int16_t splashBpp = 0;
    int16_t screenType = 0;
    int16_t splashTimer = 0;
    int16_t fps = 0;
    int32_t soundMix = 0;
    int16_t soundChannels = 0;
    int16_t splashRed = 0;
    int16_t splashGreen = 0;
    int16_t splashBlue = 0;
    int16_t logEnabled = 0;
    int16_t splashEnabled = 0;
    std::string windowCaption;
    std::string windowIcon;
    std::string splashImagePath;
    std::string logPath;
    int16_t useEngineScreen = 0;
    std::string rootFolder;
    int16_t customFilterCount = 0;
    int16_t logTypeFilterCount = 0;
    int16_t logFileFilterCount = 0;
    std::array<int16_t, LogTypeCount> logTypeFilters{};
    std::array<int16_t, LogModuleCount> logFileFilters{};
    std::array<CustomFilterRec, CustomFilterSlots> CustomFilters{};

    bool operator==(const AppSettingsRec &) const = default;
};

struct ProjectInfoRec
{
    std::string projectName;
    std::string projectFilePath;
    std::string generatePath;
    int16_t projectOpen = 0;

    bool operator==(const ProjectInfoRec &) const = default;
};

// The nine kinds in the order of the main window's lists (tabs 2..10) and of the counts in
// the project file.
enum class Kind : int { Button, Cursor, Image, Text, Font, Music, SFX, Sprite, Scene };
inline constexpr int KindCount = 9;
inline constexpr std::array<Kind, KindCount> ListOrder{Kind::Button,
                                                       Kind::Cursor,
                                                       Kind::Image,
                                                       Kind::Text,
                                                       Kind::Font,
                                                       Kind::Music,
                                                       Kind::SFX,
                                                       Kind::Sprite,
                                                       Kind::Scene};
// The order of the record sections in the project file and of the engine's .dat files.
inline constexpr std::array<Kind, KindCount> FileOrder{Kind::Button,
                                                       Kind::Image,
                                                       Kind::Cursor,
                                                       Kind::Text,
                                                       Kind::Font,
                                                       Kind::Music,
                                                       Kind::SFX,
                                                       Kind::Sprite,
                                                       Kind::Scene};

constexpr int kindIndex(Kind kind)
{
    return static_cast<int>(kind);
}
constexpr int tabOf(Kind kind)
{
    return kindIndex(kind) + 2;
}
constexpr bool isObjectTab(int tab)
{
    return tab >= 2 && tab <= 10;
}
constexpr Kind kindOfTab(int tab)
{
    return static_cast<Kind>(tab - 2);
}

// One line of a main-window object list: its text and its item data (the slot).
struct ListLine
{
    std::string text;
    int16_t slot = 0;

    bool operator==(const ListLine &) const = default;
};

// A main-window object list; `selected` is the selected line's position, -1 for none.
struct ObjectList
{
    std::vector<ListLine> lines;
    int selected = -1;

    bool operator==(const ObjectList &) const = default;
};

// Log tables used by the log filter dialogs and log.cfg.
inline constexpr std::array<std::string_view, LogTypeCount> LogTypePrefixes{"Application: ",
                                                                            "System: ",
                                                                            "@App Status: ",
                                                                            "@System Status: ",
                                                                            "&App Status: ",
                                                                            "&System Status: ",
                                                                            "!DEBUG!: "};
inline constexpr std::array<std::string_view, LogModuleCount> LogModuleFiles{"capp.cpp",
                                                                             "cbuttonmngr.cpp",
                                                                             "ccursormngr.cpp",
                                                                             "cimagemngr.cpp",
                                                                             "CSceneMngr.cpp",
                                                                             "csoundmngr.cpp",
                                                                             "cspritemngr.cpp",
                                                                             "ctextmngr.cpp",
                                                                             "ctilemngr.cpp",
                                                                             "ctimermngr.cpp",
                                                                             "cvideo.cpp"};

// Everything a running editor knows about the open project: the tables, the settings, the
// counters and the nine object lists. An ordinary value: copied, compared and kept like any
// other. About 10 MB, most of it the sprites' frames, so it lives on the heap
// (makeDocument()), never on the stack.
struct Document
{
    std::array<ButtonRec, 101> Buttons{};
    std::array<CursorRec, 26> Cursors{};
    std::array<ImageRec, 201> Images{};
    std::array<TextRec, 201> Texts{};
    std::array<FontRec, 26> Fonts{};
    std::array<MusicRec, 101> MusicTracks{};
    std::array<SFXRec, 201> SoundEffects{};
    std::array<SpriteRec, 201> Sprites{};
    std::array<SceneRec, 101> Scenes{};

    AppSettingsRec AppSettings;
    ProjectInfoRec ProjectInfo;
    std::array<int16_t, KindCount> ObjectCounts{}; // indexed by kindIndex()

    int16_t customFilterOverflow = 0;
    int16_t animOverflow = 0;
    int16_t frameOverflow = 0;
    int16_t layerOverflow = 0;
    int16_t newObjectCounter = 0;
    int16_t currentObjectIndex = 0;
    int16_t currentAnimIndex = 0;

    std::array<ObjectList, KindCount> lists; // indexed by kindIndex()

    // The project file last opened, in whose folder a relative projectFilePath is taken;
    // not part of the file.
    std::string openedFrom;

    ObjectList &list(Kind kind) { return lists[kindIndex(kind)]; }
    const ObjectList &list(Kind kind) const { return lists[kindIndex(kind)]; }
    int16_t &objectCount(Kind kind) { return ObjectCounts[kindIndex(kind)]; }

    // Every table, flag, setting, counter and list line alike.
    bool operator==(const Document &) const = default;
};

// A new document with every initial value: std::make_unique<Document>().
std::unique_ptr<Document> makeDocument();

// The file Save writes: ProjectInfo.projectFilePath, taken against the folder of the file the
// project was opened from when it is relative. A Windows path ("C:\\...") is kept as it stands.
std::string projectSavePath(const Document &doc);

// Frees every slot of every table (flags only), as before a project is loaded or created.
void InitData(Document &doc);

// Empties the nine object lists.
void clearLists(Document &doc);

// Sets every splash value to 0 and the splash image to "null": the splash screen is off.
void resetSplash(AppSettingsRec &app);

// Resets the settings, counters and tables for a fresh project named `name`.
void setUpNewProject(Document &doc, const std::string &name);

} // namespace vorlane
