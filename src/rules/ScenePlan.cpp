#include "rules/ScenePlan.h"

#include "rules/AnimationTimeline.h"
#include "rules/ObjectFilePath.h"

#include <algorithm>
#include <array>

namespace vorlane {

namespace {

// The kinds a layer holds, by stored objectKind - 1.
constexpr std::array<Kind, 5> LayerKinds{
    Kind::Text, Kind::Sprite, Kind::Image, Kind::Button, Kind::Music};

bool isLayerKind(int16_t objectKind)
{
    return objectKind >= 1 && objectKind <= static_cast<int16_t>(LayerKinds.size());
}

// The picture of the image named `imageId`; false when no such image is listed.
bool takePicture(const Document &doc, const std::string &imageId, SceneItem &item)
{
    const std::optional<int> slot = findListedObject(doc, Kind::Image, imageId);
    if (!slot)
        return false;
    item.picture = pictureOf(doc, doc.Images[static_cast<size_t>(*slot)]);
    item.hasPicture = true;
    return true;
}

// The first cell of the sprite's current animation, or the first cell of the sheet when the
// animation is missing or has no frames.
int firstCellOf(const SpriteRec &sprite)
{
    for (const AnimRec &anim : sprite.anims) {
        if (anim.inUse != -1 || anim.id != sprite.currentAnimId)
            continue;
        const std::vector<int16_t> cells = animationCells(anim);
        return cells.empty() ? 1 : cells.front();
    }
    return 1;
}

void describe(const Document &doc, int slot, SceneItem &item)
{
    const size_t at = static_cast<size_t>(slot);
    switch (LayerKinds[static_cast<size_t>(item.objectKind - 1)]) {
    case Kind::Image: {
        const ImageRec &image = doc.Images[at];
        item.kind = SceneItemKind::Image;
        item.x = image.positionX;
        item.y = image.positionY;
        item.visible = image.visible != 0;
        item.picture = pictureOf(doc, image);
        item.hasPicture = true;
        return;
    }
    case Kind::Sprite: {
        const SpriteRec &sprite = doc.Sprites[at];
        item.kind = SceneItemKind::Sprite;
        item.x = sprite.positionX;
        item.y = sprite.positionY;
        item.visible = sprite.visible != 0;
        takePicture(doc, sprite.imageId, item);
        item.cell = firstCellOf(sprite);
        return;
    }
    case Kind::Button: {
        const ButtonRec &button = doc.Buttons[at];
        item.x = button.x;
        item.y = button.y;
        // The engine tells a hot spot by its id, as button.dat does.
        if (!button.id.empty() && button.id.front() == '_') {
            item.kind = SceneItemKind::HotSpot;
            item.width = button.hotSpotWidth;
            item.height = button.hotSpotHeight;
            return;
        }
        item.kind = SceneItemKind::Button;
        item.visible = button.visible != 0;
        takePicture(doc, button.templateId, item);
        item.cell = button.frameUp;
        item.rows = button.templateRows;
        item.columns = button.templateColumns;
        return;
    }
    case Kind::Text: {
        const TextRec &text = doc.Texts[at];
        item.kind = SceneItemKind::Text;
        item.x = text.x;
        item.y = text.y;
        item.visible = text.visible != 0;
        static_cast<TextLook &>(item) = textLookOf(doc, text);
        return;
    }
    default:
        item.kind = SceneItemKind::Music;
        return;
    }
}

} // namespace

ScreenSize previewScreen(const AppSettingsRec &app)
{
    if (app.screenWidth <= 0 || app.screenHeight <= 0)
        return DefaultScreen;
    return ScreenSize{app.screenWidth, app.screenHeight};
}

std::vector<int> engineLayerSlots(const SceneRec &scene)
{
    std::vector<int> slots;
    if (scene.layerCount <= 0)
        return slots;
    for (int k = 0; k < SubSlotCount; ++k) {
        if (scene.layers[static_cast<size_t>(k)].inUse == -1)
            slots.push_back(k);
    }
    return slots;
}

std::optional<Kind> layerObjectKind(int16_t objectKind)
{
    if (!isLayerKind(objectKind))
        return std::nullopt;
    return LayerKinds[static_cast<size_t>(objectKind - 1)];
}

std::vector<SceneItem>
scenePlan(const Document &doc, const SceneRec &scene, std::vector<int> layerSlots)
{
    std::sort(layerSlots.begin(), layerSlots.end());
    layerSlots.erase(std::unique(layerSlots.begin(), layerSlots.end()), layerSlots.end());
    std::vector<SceneItem> items;
    for (int slot : layerSlots) {
        if (slot < 0 || slot >= SubSlotCount)
            continue;
        const LayerRec &layer = scene.layers[static_cast<size_t>(slot)];
        if (layer.inUse != -1)
            continue;
        SceneItem item;
        item.layerSlot = slot;
        item.objectKind = layer.objectKind;
        item.objectId = layer.objectId;
        if (isLayerKind(layer.objectKind)) {
            const Kind kind = LayerKinds[static_cast<size_t>(layer.objectKind - 1)];
            if (const std::optional<int> object = findListedObject(doc, kind, layer.objectId))
                describe(doc, *object, item);
        }
        items.push_back(std::move(item));
    }
    return items;
}

} // namespace vorlane
