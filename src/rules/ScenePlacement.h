#pragma once

#include "model/modGlobal.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vorlane {

// A point of a scene, in the pixels of its screen.
struct ScenePoint
{
    int x = 0;
    int y = 0;

    bool operator==(const ScenePoint &) const = default;
};

// The grid a dragged object snaps to when the scene editor's "Snap to 8 px" is checked.
inline constexpr int SnapStep = 8;

// The two position fields of the object a layer places: a button's (or hot spot's) x and y,
// an image's and a sprite's positionX and positionY, a text's x and y. None for music, and
// for a layer whose object is not listed or whose kind holds no objects.
struct PositionFields
{
    int16_t *x = nullptr;
    int16_t *y = nullptr;

    ScenePoint point() const { return ScenePoint{*x, *y}; }
};
std::optional<PositionFields> layerPosition(Document &doc, const LayerRec &layer);

// Where a dragged object lands: `start` moved by `delta`, each side rounded to the nearest
// multiple of SnapStep (halves away from zero) when `snap` is set.
ScenePoint droppedAt(ScenePoint start, ScenePoint delta, bool snap);

// Stores `to` in the position fields through the number rule of their boxes, so that the
// fields hold what typing the numbers would store (a number beyond 16 bits stops at its end).
// True when a field changed.
bool placeAt(const PositionFields &fields, ScenePoint to);

// The name of the history step of a drag: "Move Button \"btnPlay\"", "Move Image \"imgSky\"".
std::string moveStepName(const LayerRec &layer);

} // namespace vorlane
