#pragma once

#include "model/modGlobal.h"
#include "rules/UserInterface.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vorlane {

// A kind of object a scene layer can hold, with its entry in the scene editor's kind box.
struct LayerKindInfo
{
    Kind kind;
    const char *caption;
};

// The kind box's entries in order; a layer stores its kind as the entry's index plus 1.
inline constexpr std::array<LayerKindInfo, 5> LayerKinds{{{Kind::Text, "Texts"},
                                                          {Kind::Sprite, "Sprites"},
                                                          {Kind::Image, "Images"},
                                                          {Kind::Button, "Buttons"},
                                                          {Kind::Music, "Music"}}};

// The most lines a scene's layer list holds; the layer slots are 0..LastLayerSlot.
inline constexpr int MaxLayers = 100;
inline constexpr int LastLayerSlot = SubSlotCount - 1;

// The kind of object behind a layer's stored objectKind (1..5); nothing for any other value.
std::optional<Kind> layerObjectKind(int objectKind);

// The caption of the layer-type label for a layer of `objectKind`: the kind box's entry
// ("Sprites"), empty for a kind the box does not have.
std::string layerTypeCaption(int objectKind);

// The identifiers offered for the kind box's entry `choice` (0..4): the objects of that kind
// that are not new, in the main window's list order. None for any other entry.
std::vector<std::string> layerObjectChoices(const Document &doc, int choice);

// A new scene's own defaults: both options on, a layer count of 0. Layer slots that an
// earlier scene of the same slot left in use keep their flags, as removal and New leave them.
void setSceneDefaults(SceneRec &scene);

// The scene editor's layer list: each line's text is the layer's objectId, its item data
// the layer's slot; `selected` is the selected line, -1 for none.
using LayerList = ObjectList;

// The layer list of `scene` as the editor opens it: when layerCount is at least 1, a line
// for every used layer slot in slot order; no line selected.
LayerList sceneLayerList(const SceneRec &scene);

// The "Object Overload" message refusing one more layer.
Message layerOverloadMessage();

// What Add did. When `refusal` holds a message nothing was changed; otherwise a line was
// appended to the list and selected, and the layer written into `slot`.
struct LayerAddResult
{
    std::optional<Message> refusal;
    int16_t slot = 0;
};

// Adds a layer placing `objectId`, of stored kind `objectKind`, to `scene`: into its first
// free layer slot, or the slot of the layer overflow counter when there is none or only the
// last one, as objects are added. The scene's layerCount is left as it is.
LayerAddResult addLayer(SceneRec &scene,
                        int16_t &layerOverflow,
                        LayerList &layers,
                        int16_t objectKind,
                        const std::string &objectId);

// Deletes the selected layer: frees its slot (its kind and objectId stay), removes the line
// and selects the line now at its place, or the one before when it was the last. Returns
// false, changing nothing, when no line is selected.
bool deleteLayer(SceneRec &scene, LayerList &layers);

// Exchange the selected line with the line above or below it (texts and slots) and select it
// again at its new place; the layer records keep their slots. Return false, changing
// nothing, when no line is selected or there is no line to exchange with.
bool moveLayerUp(LayerList &layers);
bool moveLayerDown(LayerList &layers);

// The enabled states of the four layer buttons that a step sets; a state not set is left
// as it is.
struct LayerButtons
{
    std::optional<bool> add;
    std::optional<bool> remove;
    std::optional<bool> up;
    std::optional<bool> down;

    bool operator==(const LayerButtons &) const = default;
};

// On opening: Delete with at least one line, Up and Down with at least two.
LayerButtons buttonsAfterLoad(const LayerList &layers);
// After a layer was added: Delete; with more than one line Down, and Up unless the selected
// line is the first.
LayerButtons buttonsAfterAdd(const LayerList &layers);
// After a layer was deleted: all four off once the list is empty.
LayerButtons buttonsAfterDelete(const LayerList &layers);
// After a line was selected, by a click or by a step that selects one: Up unless it is the
// first line, Down unless it is the last.
LayerButtons buttonsAfterSelection(const LayerList &layers);

} // namespace vorlane
