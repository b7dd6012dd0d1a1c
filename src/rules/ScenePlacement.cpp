#include "rules/ScenePlacement.h"

#include "model/Kinds.h"
#include "rules/FieldRules.h"
#include "rules/PictureSpec.h"
#include "rules/ScenePlan.h"

#include <cctype>
#include <cstdlib>

namespace vorlane {

namespace {

int snappedSide(int value)
{
    const int half = SnapStep / 2;
    const int magnitude = (std::abs(value) + half) / SnapStep * SnapStep;
    return value < 0 ? -magnitude : magnitude;
}

bool storeSide(int16_t &field, int value)
{
    // The box's own rule, on the text the number would be typed as.
    const int16_t stored = static_cast<int16_t>(numberRule(std::to_string(value)).value);
    const bool changed = field != stored;
    field = stored;
    return changed;
}

} // namespace

std::optional<PositionFields> layerPosition(Document &doc, const LayerRec &layer)
{
    const std::optional<Kind> kind = layerObjectKind(layer.objectKind);
    if (!kind)
        return std::nullopt;
    const std::optional<int> slot = findListedObject(doc, *kind, layer.objectId);
    if (!slot)
        return std::nullopt;
    const size_t at = static_cast<size_t>(*slot);
    switch (*kind) {
    case Kind::Button:
        return PositionFields{&doc.Buttons[at].x, &doc.Buttons[at].y};
    case Kind::Image:
        return PositionFields{&doc.Images[at].positionX, &doc.Images[at].positionY};
    case Kind::Text:
        return PositionFields{&doc.Texts[at].x, &doc.Texts[at].y};
    case Kind::Sprite:
        return PositionFields{&doc.Sprites[at].positionX, &doc.Sprites[at].positionY};
    default:
        return std::nullopt;
    }
}

ScenePoint droppedAt(ScenePoint start, ScenePoint delta, bool snap)
{
    ScenePoint to{start.x + delta.x, start.y + delta.y};
    if (snap)
        to = ScenePoint{snappedSide(to.x), snappedSide(to.y)};
    return to;
}

bool placeAt(const PositionFields &fields, ScenePoint to)
{
    const bool x = storeSide(*fields.x, to.x);
    const bool y = storeSide(*fields.y, to.y);
    return x || y;
}

std::string moveStepName(const LayerRec &layer)
{
    const std::optional<Kind> kind = layerObjectKind(layer.objectKind);
    std::string name = kind ? kindInfo(*kind).name : "object";
    name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return "Move " + name + " \"" + layer.objectId + "\"";
}

} // namespace vorlane
