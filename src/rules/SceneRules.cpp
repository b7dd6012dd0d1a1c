#include "rules/SceneRules.h"

#include "rules/FieldRules.h"
#include "rules/SlotAllocation.h"

#include <cstddef>
#include <iterator>
#include <utility>

namespace vorlane {

namespace {

bool hasSelectedLine(const LayerList &layers)
{
    return layers.selected >= 0 && static_cast<size_t>(layers.selected) < layers.lines.size();
}

int lineCount(const LayerList &layers)
{
    return static_cast<int>(layers.lines.size());
}

// Exchanges the selected line with the line `step` away and selects it there.
bool exchangeSelected(LayerList &layers, int step)
{
    if (!hasSelectedLine(layers))
        return false;
    const int other = layers.selected + step;
    if (other < 0 || other >= lineCount(layers))
        return false;
    std::swap(layers.lines[static_cast<size_t>(layers.selected)],
              layers.lines[static_cast<size_t>(other)]);
    layers.selected = other;
    return true;
}

} // namespace

std::optional<Kind> layerObjectKind(int objectKind)
{
    if (objectKind < 1 || objectKind > static_cast<int>(LayerKinds.size()))
        return std::nullopt;
    return LayerKinds[static_cast<size_t>(objectKind - 1)].kind;
}

std::string layerTypeCaption(int objectKind)
{
    if (!layerObjectKind(objectKind))
        return {};
    return LayerKinds[static_cast<size_t>(objectKind - 1)].caption;
}

std::vector<std::string> layerObjectChoices(const Document &doc, int choice)
{
    const std::optional<Kind> kind = layerObjectKind(choice + 1);
    if (!kind)
        return {};
    return offeredIds(doc, *kind);
}

void setSceneDefaults(SceneRec &scene)
{
    scene.useCursor = 1;
    scene.useMusic = 1;
    scene.layerCount = 0;
}

LayerList sceneLayerList(const SceneRec &scene)
{
    LayerList layers;
    if (scene.layerCount < 1)
        return layers;
    for (int slot = 0; slot <= LastLayerSlot; ++slot) {
        const LayerRec &layer = scene.layers[static_cast<size_t>(slot)];
        if (layer.inUse != 0)
            layers.lines.push_back({layer.objectId, static_cast<int16_t>(slot)});
    }
    return layers;
}

Message layerOverloadMessage()
{
    return Message{"No space left for Layers! (Max 100)",
                   "Object Overload",
                   MessageIcon::Critical,
                   MessageButtons::OK};
}

LayerAddResult addLayer(SceneRec &scene,
                        int16_t &layerOverflow,
                        LayerList &layers,
                        int16_t objectKind,
                        const std::string &objectId)
{
    if (lineCount(layers) >= MaxLayers)
        return LayerAddResult{layerOverloadMessage()};

    const auto slot = allocateSlot(
        LastLayerSlot,
        [&scene](int candidate) { return scene.layers[static_cast<size_t>(candidate)].inUse == 0; },
        layerOverflow,
        [&](int taken) {
            LayerRec &layer = scene.layers[static_cast<size_t>(taken)];
            layer.inUse = -1;
            layer.objectKind = objectKind;
            layer.objectId = objectId;
        });
    if (!slot)
        return LayerAddResult{layerOverloadMessage()};

    layers.lines.push_back({objectId, *slot});
    layers.selected = lineCount(layers) - 1;
    return LayerAddResult{std::nullopt, *slot};
}

bool deleteLayer(SceneRec &scene, LayerList &layers)
{
    if (!hasSelectedLine(layers))
        return false;
    const int position = layers.selected;
    const int16_t slot = layers.lines[static_cast<size_t>(position)].slot;
    if (slot >= 0 && slot <= LastLayerSlot)
        scene.layers[static_cast<size_t>(slot)].inUse = 0;
    layers.lines.erase(std::next(layers.lines.begin(), position));
    const int remaining = lineCount(layers);
    layers.selected = remaining == 0 ? -1 : (position < remaining ? position : position - 1);
    return true;
}

bool moveLayerUp(LayerList &layers)
{
    return exchangeSelected(layers, -1);
}

bool moveLayerDown(LayerList &layers)
{
    return exchangeSelected(layers, +1);
}

LayerButtons buttonsAfterLoad(const LayerList &layers)
{
    LayerButtons buttons;
    if (lineCount(layers) >= 1)
        buttons.remove = true;
    if (lineCount(layers) >= 2) {
        buttons.up = true;
        buttons.down = true;
    }
    return buttons;
}

LayerButtons buttonsAfterAdd(const LayerList &layers)
{
    LayerButtons buttons;
    buttons.remove = true;
    if (lineCount(layers) > 1) {
        buttons.down = true;
        if (layers.selected >= 1)
            buttons.up = true;
    }
    return buttons;
}

LayerButtons buttonsAfterDelete(const LayerList &layers)
{
    if (!layers.lines.empty())
        return {};
    return LayerButtons{false, false, false, false};
}

LayerButtons buttonsAfterSelection(const LayerList &layers)
{
    LayerButtons buttons;
    buttons.up = hasSelectedLine(layers) && layers.selected > 0;
    buttons.down = hasSelectedLine(layers) && layers.selected < lineCount(layers) - 1;
    return buttons;
}

} // namespace vorlane
