#pragma once

#include "model/modGlobal.h"
#include "rules/PictureSpec.h"
#include "rules/TextLook.h"

#include <optional>
#include <string>
#include <vector>

namespace vorlane {

// The screen a scene is laid out on: the application's screen size, or 640 x 480 when either
// side is 0 or less.
struct ScreenSize
{
    int width = 0;
    int height = 0;

    bool operator==(const ScreenSize &) const = default;
};
inline constexpr ScreenSize DefaultScreen{640, 480};
ScreenSize previewScreen(const AppSettingsRec &app);

// What a scene layer puts on the screen.
enum class SceneItemKind {
    Image,   // the whole picture
    Sprite,  // one cell of the sprite's image
    Button,  // the up cell of the template
    HotSpot, // an outlined rectangle of the hot spot's size
    Text,    // the text in its colour and point size
    Music,   // nothing to draw
    Missing, // the layer names no listed object of its kind, or a kind that does not exist
};

// Texts draw with the look they take from their record.
struct SceneItem : TextLook
{
    int layerSlot = 0;
    int16_t objectKind = 0;
    std::string objectId;
    SceneItemKind kind = SceneItemKind::Missing;
    int x = 0;
    int y = 0;
    bool visible = true;
    // Pictures: the file, and the cell to draw (0 for the whole picture) cut by `rows` x
    // `columns` when both are above 0 (a button's template), else by the picture's cells.
    PictureSpec picture;
    bool hasPicture = false;
    int cell = 0;
    int rows = 0;
    int columns = 0;
    // Hot spots.
    int width = 0;
    int height = 0;
};

// The layer slots the engine reads: the used ones in slot order, when layerCount is above 0.
std::vector<int> engineLayerSlots(const SceneRec &scene);

// The kind of object a layer's stored objectKind names (1 texts, 2 sprites, 3 images,
// 4 buttons, 5 music); none for any other number.
std::optional<Kind> layerObjectKind(int16_t objectKind);

// What each of `layerSlots` of `scene` draws, in slot order (the order the engine reads and
// draws the layers), whatever order the slots are given in. Layers not in use are left out.
std::vector<SceneItem>
scenePlan(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots);

} // namespace vorlane
